#include "base/text/ShortList.h"

#include <algorithm>

namespace tarsil {

std::string shortList(const std::vector<std::string>& lines, std::size_t most)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(lines.size(), most); ++i)
        text += (i == 0 ? "" : "\n") + lines[i];
    if (lines.size() > most)
        text += "\nand " + std::to_string(lines.size() - most) + " more";
    return text;
}

} // namespace tarsil
