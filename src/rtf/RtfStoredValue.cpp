// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfStoredValue.h"

namespace tarsil {

namespace {

constexpr std::string_view lineEnd = "\r\n";

} // namespace

std::string rtfFromStoredValue(std::string_view value)
{
    std::string rtf;
    for (const char c : value) {
        if (c == '\0')
            rtf += lineEnd;
        else
            rtf += c;
    }
    return rtf;
}

std::string storedValueFromRtf(std::string_view rtf)
{
    std::string value;
    for (std::size_t i = 0; i < rtf.size(); ++i) {
        if (rtf.substr(i, lineEnd.size()) == lineEnd) {
            value += '\0';
            ++i;
        } else {
            value += rtf[i] == '\0' ? ' ' : rtf[i];
        }
    }
    return value;
}

} // namespace tarsil
