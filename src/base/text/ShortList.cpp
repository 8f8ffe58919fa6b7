// SPDX-License-Identifier: Apache-2.0
#include "base/text/ShortList.h"

#include <algorithm>

namespace tarsil {

std::string shortList(const std::vector<std::string>& entries, std::size_t most,
                      std::string_view separator)
{
    std::string text;
    for (std::size_t i = 0; i < std::min(entries.size(), most); ++i)
        text.append(i == 0 ? "" : separator).append(entries[i]);
    if (entries.size() > most)
        text.append(separator).append("and " + std::to_string(entries.size() - most) + " more");
    return text;
}

} // namespace tarsil
