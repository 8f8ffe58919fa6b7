#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace tarsil {

class FindingList;

/// Follows the points of a file, mode by mode: finds modes of another length than declared, mode
/// numbers that come again, and speeds that do not increase.
class ModeWatch
{
public:
    enum class ModeEnds {
        WhenTheNumberChanges,
        WhenAllSpeedsAreThere ///< or the number changes
    };

    ModeWatch(FindingList& findings, ModeEnds ends);

    /// The declared number of speeds; unknown until it is given.
    void declareSpeeds(int speeds) { m_declaredSpeeds = speeds; }

    /// One point, read from `line`. A point whose mode number could not be read belongs to the
    /// current mode.
    void addPoint(std::size_t line, std::optional<std::int16_t> number, std::optional<float> speed);

    /// Closes the last mode.
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
    std::optional<std::int16_t> m_number; ///< of the current mode, once a point had one
    std::size_t m_line = 0;
    int m_points = 0; ///< of the current mode
    std::optional<float> m_speed;
    std::size_t m_modes = 0;
    std::size_t m_wholeModes = 0;
};

} // namespace tarsil
