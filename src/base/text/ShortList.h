#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// The most entries of a list in a message: a message box must not be higher than a small screen.
constexpr std::size_t mostRowLines = 30; ///< short lines, one for each row of a plot
constexpr std::size_t mostFileLines = 20; ///< paths and findings, which the box may break
constexpr std::size_t mostReports = 8; ///< reports of errors, of two lines or more

/// The entries of a list as one text. When there are more than `most`, only the first ones, and in
/// a last line how many more there are.
std::string shortList(const std::vector<std::string>& entries, std::size_t most,
                      std::string_view separator = "\n");

} // namespace tarsil
