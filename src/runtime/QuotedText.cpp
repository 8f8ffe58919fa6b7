#include "runtime/QuotedText.h"

namespace tarsil {

namespace {

constexpr std::size_t longest = 60;

bool isControl(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

/// Whether a character of several bytes goes on here.
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
    std::string result = "\"";
    for (const char c : text.substr(0, end))
        result += isControl(c) ? '?' : c;
    return result + (end < text.size() ? "...\"" : "\"");
}

} // namespace tarsil
