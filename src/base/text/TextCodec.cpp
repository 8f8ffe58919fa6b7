// SPDX-License-Identifier: Apache-2.0
#include "base/text/TextCodec.h"

#include "base/text/CodePages.h"
#include "base/text/Utf16.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>

namespace tarsil {

namespace {

unsigned byteAt(std::string_view bytes, std::size_t index)
{
    return static_cast<unsigned char>(bytes[index]);
}

/// The length of the well-formed sequence at `start`, with its character; 0 when malformed.
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

void appendUtf8(std::string& text, char32_t character)
{
    if (character < 0x80) {
        text += static_cast<char>(character);
        return;
    }
    const int following = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr std::array<unsigned, 4> lead = {0, 0xC0, 0xE0, 0xF0};
    text += static_cast<char>(lead[static_cast<std::size_t>(following)]
                              | (character >> (6 * following)));
    for (int shift = 6 * (following - 1); shift >= 0; shift -= 6)
        text += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
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
    for (const char byte : bytes)
        appendUtf8(text, windows1252Character(static_cast<unsigned char>(byte)));
    return text;
}

std::string encodeText(std::string_view utf8)
{
    std::string bytes;
    char32_t character = 0;
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t length = sequence(utf8, i, character);
        const auto byte = length == 0 ? std::nullopt : windows1252Byte(character);
        if (!byte)
            return std::string(utf8);
        bytes += static_cast<char>(*byte);
        i += length;
    }
    // Text whose Windows-1252 bytes would be read back as UTF-8 stays UTF-8.
    return bytes != utf8 && isUtf8(bytes) ? std::string(utf8) : bytes;
}

bool isControlCharacter(char32_t character)
{
    const auto isBetween = [character](char32_t first, char32_t last) {
        return character >= first && character <= last;
    };
    return character < 0x20 || isBetween(0x7F, 0x9F) || isBetween(0x2028, 0x202E)
        || isBetween(0x2066, 0x2069);
}

std::string printableText(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        char32_t character = 0;
        std::size_t length = sequence(text, i, character);
        if (length == 0) {
            character = byteAt(text, i); // read as 8-bit text
            length = 1;
        }
        result.append(isControlCharacter(character) ? "?" : text.substr(i, length));
        i += length;
    }
    return result;
}

std::u16string utf16FromUtf8(std::string_view utf8)
{
    std::u16string text;
    for (std::size_t i = 0; i < utf8.size();) {
        char32_t character = 0;
        const std::size_t length = sequence(utf8, i, character);
        appendUtf16(text, length == 0 ? replacementCharacter : character);
        i += std::max<std::size_t>(length, 1);
    }
    return text;
}

std::string utf8FromUtf16(std::u16string_view utf16)
{
    std::string text;
    for (std::size_t i = 0; i < utf16.size(); ++i) {
        char32_t character = utf16[i];
        const bool high = isHighSurrogate(utf16[i]);
        if (high && i + 1 < utf16.size() && isLowSurrogate(utf16[i + 1])) {
            character = joinSurrogates(utf16[i], utf16[i + 1]);
            ++i;
        } else if (high || isLowSurrogate(utf16[i])) {
            character = replacementCharacter;
        }
        appendUtf8(text, character);
    }
    return text;
}

} // namespace tarsil
