#pragma once

#include "base/numbers/Numbers.h"
#include "model/EvolutionChecker.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class TextStream;

/// Gathers findings; beyond `mostFindings` they are only counted, so that a file full of defects
/// costs no more than its first thousand.
class FindingList
{
public:
    void add(std::size_t line, std::string text);

    /// A finding about the whole file, at most a handful: kept however many there are before it.
    void addSummary(std::size_t line, std::string text);

    /// The findings in the order of their lines, the last one saying how many more there are.
    std::vector<Finding> take();

private:
    std::vector<Finding> m_findings;
    std::vector<Finding> m_summaries;
    std::size_t m_count = 0;
};

/// "is blank", "is not a number", ...: what is wrong with a number text, its status not being Ok.
std::string numberComplaint(NumberStatus status, std::string_view text);

/// `quotedText` without the blanks around the text.
std::string quotedTrimmed(std::string_view text);

/// Whether there is nothing but blanks in a text.
bool isBlank(std::string_view text);

/// Whether the stream has ended with this line, which was the last one read, without an end of line
/// after it.
bool isCutOff(const TextStream& stream, std::string_view line);

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
    std::optional<std::int16_t> m_number; ///< of the current mode, once a point has told it
    std::size_t m_line = 0;
    int m_points = 0; ///< of the current mode
    std::optional<float> m_speed;
    std::size_t m_modes = 0;
    std::size_t m_wholeModes = 0;
};

// The checks of the two layouts. `stream` stands at the start of a text that is not empty.
void checkEvm(TextStream& stream, FindingList& findings);
void checkEv2(TextStream& stream, FindingList& findings);

} // namespace tarsil
