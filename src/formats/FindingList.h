// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarsil {

/// A part of a file that the reader ignores or fails at.
struct Finding
{
    std::size_t line; ///< counted from 1
    std::string text;
};

constexpr std::size_t mostFindings = 1000;

/// Collects findings. Beyond `mostFindings` they are only counted, which limits the cost of a file
/// full of faults.
class FindingList
{
public:
    void add(std::size_t line, std::string text);

    /// Adds one of the few findings about the whole file; it is kept in any case.
    void addSummary(std::size_t line, std::string text);

    /// Returns the findings sorted by line; the last one contains the number of those not listed.
    std::vector<Finding> take();

private:
    std::vector<Finding> m_findings;
    std::vector<Finding> m_summaries;
    std::size_t m_count = 0;
};

} // namespace tarsil
