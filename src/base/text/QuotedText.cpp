// SPDX-License-Identifier: Apache-2.0
#include "base/text/QuotedText.h"

#include "base/text/TextCodec.h"

namespace tarsil {

namespace {

constexpr std::size_t longest = 60;

/// Whether a byte continues a character of several bytes.
bool continues(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

} // namespace

std::string quotedText(std::string_view text)
{
    std::size_t end = text.size();
    if (end > longest) {
        end = longest;
        while (end > longest - 4 && continues(text[end]))
            --end;
    }
    std::string quoted = "\"";
    quoted += printableText(text.substr(0, end));
    quoted += end < text.size() ? "...\"" : "\"";
    return quoted;
}

} // namespace tarsil
