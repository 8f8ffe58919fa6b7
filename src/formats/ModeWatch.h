// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace tarsil {

class FindingList;

/// Follows the points of a file by mode. Finds modes whose length differs from the declared one,
/// repeated mode numbers, and speeds that do not increase.
class ModeWatch
{
public:
    enum class ModeEnds {
        WhenTheNumberChanges,
        WhenAllSpeedsAreThere ///< or when the number changes
    };

    ModeWatch(FindingList& findings, ModeEnds ends);

    /// Sets the declared number of speeds.
    void declareSpeeds(int speeds) { m_declaredSpeeds = speeds; }

    /// Adds a point, read from `line`. A point without a valid mode number belongs to the current
    /// mode.
    void addPoint(std::size_t line, std::optional<std::int16_t> number, std::optional<float> speed);

    /// Ends the last mode.
    void finish();

    std::size_t modeCount() const { return m_modes; }
    std::size_t wholeModeCount() const { return m_wholeModes; }

private:
    bool isFull() const;
    void startMode();
    void learnNumber(std::size_t line, std::int16_t number);
    std::string modeText() const;
    void checkSpeed(std::size_t line, float speed);

    FindingList& m_findings;
    ModeEnds m_ends;
    std::optional<int> m_declaredSpeeds;
    std::map<std::int16_t, std::size_t> m_lastLineOfMode;
    std::optional<std::int16_t> m_number; ///< of the current mode; empty: not known yet
    std::size_t m_line = 0;
    int m_points = 0; ///< of the current mode
    std::optional<float> m_speed;
    std::size_t m_modes = 0;
    std::size_t m_wholeModes = 0;
};

} // namespace tarsil
