#include "runtime/TextCodec.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarsil {

namespace {

/// Windows-1252 0x80 to 0x9F (Unicode Consortium mapping CP1252.TXT); unused bytes map to
/// themselves.
constexpr std::array<char16_t, 32> windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned byteAt(std::string_view bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

/// The number of bytes of the well-formed sequence at `start` and its character; 0 when malformed.
std::size_t sequence(std::string_view bytes, std::size_t start, char32_t& character)
{
    const unsigned lead = byteAt(bytes, start);
    if (lead < 0x80) {
        character = lead;
        return 1;
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || start + length > bytes.size())
        return 0;
    character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned next = byteAt(bytes, start + i);
        if ((next & 0xC0) != 0x80)
            return 0;
        character = (character << 6) | (next & 0x3F);
    }
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    return character < smallest[length] || surrogate || character > 0x10FFFF ? 0 : length;
}

void appendUtf8(std::string& text, char16_t character)
{
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

std::optional<char> windows1252Byte(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<char>(character);
    const auto* const place = std::find(windows1252.begin(), windows1252.end(), character);
    if (place == windows1252.end())
        return std::nullopt;
    return static_cast<char>(0x80 + (place - windows1252.begin()));
}

} // namespace

bool isUtf8(std::string_view bytes)
{
    char32_t character = 0;
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t length = sequence(bytes, i, character);
        if (length == 0)
            return false;
        i += length;
    }
    return true;
}

std::string decodeText(std::string_view bytes)
{
    if (isUtf8(bytes))
        return std::string(bytes);
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const unsigned byte = byteAt(bytes, i);
        const bool mapped = byte >= 0x80 && byte < 0xA0;
        appendUtf8(text, mapped ? windows1252[byte - 0x80] : static_cast<char16_t>(byte));
    }
    return text;
}

std::string encodeText(std::string_view utf8)
{
    std::string bytes;
    char32_t character = 0;
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t length = sequence(utf8, i, character);
        const std::optional<char> byte = length == 0 ? std::nullopt : windows1252Byte(character);
        if (!byte)
            return std::string(utf8);
        bytes += *byte;
        i += length;
    }
    // Bytes that would be taken for UTF-8 when read again stay UTF-8.
    return bytes != utf8 && isUtf8(bytes) ? std::string(utf8) : bytes;
}

} // namespace tarsil
