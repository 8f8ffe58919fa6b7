#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarsil {

/// Something in a file that its reader passes over, or stops at.
struct Finding
{
    std::size_t line; ///< counted from 1
    std::string text;
};

constexpr std::size_t mostFindings = 1000;

/// Collects findings; beyond `mostFindings` they are only counted, so that a file full of defects
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

} // namespace tarsil
