// SPDX-License-Identifier: Apache-2.0
#include "formats/ResultRow.h"

#include "base/numbers/ShortNumber.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace tarsil {

void ResultRow::split(std::string_view line, char separator)
{
    m_line = line;
    std::size_t count = 0;
    const auto endField = [this, &count](std::size_t end) {
        m_ends[std::min(count++, kept)] = end;
    };
    const char* const text = line.data();
    std::size_t i = 0;
    for (; i + sizeof(std::uint64_t) <= line.size(); i += sizeof(std::uint64_t)) {
        auto found = shortnumber::bytesEqual(shortnumber::load<std::uint64_t>(text + i), separator);
        for (; found != 0; found &= found - 1)
            endField(i + static_cast<std::size_t>(std::countr_zero(found)) / 8);
    }
    for (; i < line.size(); ++i) {
        if (text[i] == separator)
            endField(i);
    }
    endField(line.size());
    m_count = count;
}

std::string_view resultfield::content(std::size_t index)
{
    switch (index) {
    case modeNumber:
        return "mode number";
    case imaginaryPart:
        return "eigenvalue, imaginary part";
    case realPart:
        return "eigenvalue, real part";
    case speed:
        return "speed";
    case damping:
        return "damping";
    case frequency:
        return "frequency";
    case mach:
        return "Mach number";
    case sigma:
        return "density ratio";
    default:
        return "participation factor";
    }
}

} // namespace tarsil
