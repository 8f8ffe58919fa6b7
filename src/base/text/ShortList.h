#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tarsil {

/// The lines as one text for a message box. Of more than `most` lines only so many, and in a last
/// one how many more there are: a box must not be higher than the screen.
std::string shortList(const std::vector<std::string>& lines, std::size_t most);

} // namespace tarsil
