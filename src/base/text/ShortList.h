// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The maximum number of entries of a list in a message, so that its box fits on a small screen.
constexpr std::size_t mostRowLines = 30; ///< short lines, one for each row of a plot
constexpr std::size_t mostFileLines = 20; ///< paths and findings, which the box may wrap
constexpr std::size_t mostReports = 8; ///< reports of errors and other entries of several lines

/// Joins the entries of a list. Of more than `most` entries the text contains the first `most`, and
/// a last line with the number of the others.
std::string shortList(const std::vector<std::string>& entries, std::size_t most,
                      std::string_view separator = "\n");

} // namespace tarsil
