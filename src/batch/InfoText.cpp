// SPDX-License-Identifier: Apache-2.0
#include "batch/InfoText.h"

#include "base/text/TextCodec.h"
#include "batch/CommandLine.h"

#include <algorithm>
#include <ostream>

namespace tarsil::batch {

std::string rightAligned(const std::string& text, std::size_t width)
{
    return std::string(width - std::min(width, text.size()), ' ') + text;
}

void printLine(std::ostream& out, std::string_view name, const std::string& text)
{
    constexpr std::size_t width = 23;
    if (text.empty())
        return;
    for (const std::string_view line : split(text, '\n')) {
        if (!name.empty() || !line.empty())
            out << "  " << name << std::string(width - std::min(width, name.size()), ' ')
                << printableText(line);
        out << '\n';
        name = {};
    }
}

void printRow(std::ostream& out, std::size_t width, const std::vector<std::string>& cells)
{
    for (const std::string& cell : cells)
        out << rightAligned(cell, width);
    out << '\n';
}

} // namespace tarsil::batch
