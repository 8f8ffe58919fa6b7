// SPDX-License-Identifier: Apache-2.0
#include "model/Provenance.h"

#include <algorithm>
#include <cstddef>

namespace tarsil {

std::vector<std::string> Provenance::logEntries() const
{
    std::vector<std::string> entries;
    std::string_view rest = log;
    while (!rest.empty()) {
        const std::size_t end = rest.find(logSeparator);
        entries.emplace_back(rest.substr(0, end));
        if (end == std::string_view::npos)
            break;
        rest.remove_prefix(end + logSeparator.size());
    }
    return entries;
}

void Provenance::setLogEntries(const std::vector<std::string>& entries)
{
    log.clear();
    for (std::string entry : entries) {
        std::replace(entry.begin(), entry.end(), ';', ',');
        if (!log.empty())
            log += logSeparator;
        log += entry;
    }
}

} // namespace tarsil
