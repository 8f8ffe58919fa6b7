// SPDX-License-Identifier: Apache-2.0
#include "base/text/CodePageConverter.h"

#include "base/text/CodePages.h"
#include "base/text/Utf16.h"

#include <array>
#include <bit>
#include <cerrno>
#include <cstddef>

#include <iconv.h>

namespace tarsil {

namespace {

/// The iconv name of a page.
std::string iconvName(int codePage)
{
    switch (codePage) {
    case 1361:
        return "JOHAB";
    case codepage::macRoman:
        return "MACINTOSH";
    case codepage::utf8:
        return "UTF-8";
    default:
        return "CP" + std::to_string(codePage);
    }
}

const char* utf16InMemory()
{
    return std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";
}

bool convert(iconv_t page, char** in, std::size_t* left, std::u16string& text)
{
    std::array<char16_t, 256> buffer {};
    constexpr std::size_t capacity = sizeof buffer;
    auto* out = reinterpret_cast<char*>(buffer.data());
    std::size_t room = capacity;
    const bool whole = iconv(page, in, left, &out, &room) != static_cast<std::size_t>(-1);
    text.append(buffer.data(), (capacity - room) / sizeof(char16_t));
    return whole;
}

/// Decodes as many bytes as the buffer allows and removes them from `bytes`. False when it stopped
/// before the end; errno holds the reason.
bool step(iconv_t page, std::string_view& bytes, std::u16string& text)
{
    // iconv does not write to the bytes, although its declaration allows it.
    char* in = const_cast<char*>(bytes.data());
    std::size_t left = bytes.size();
    const bool whole = convert(page, &in, &left, text);
    bytes = bytes.substr(bytes.size() - left);
    return whole;
}

/// Pages with combining accents hold back a letter until the next byte is known.
void flush(iconv_t page, std::u16string& text)
{
    convert(page, nullptr, nullptr, text);
}

} // namespace

// iconv_open returns -1 for a page that could not be opened.
CodePageConverter::CodePageConverter(int codePage)
    : m_page(
        reinterpret_cast<std::intptr_t>(iconv_open(utf16InMemory(), iconvName(codePage).c_str())))
{ }

CodePageConverter::~CodePageConverter()
{
    if (isOpen())
        iconv_close(reinterpret_cast<iconv_t>(m_page));
}

std::u16string CodePageConverter::decode(std::string_view bytes)
{
    const auto page = reinterpret_cast<iconv_t>(m_page);
    std::u16string text;
    iconv(page, nullptr, nullptr, nullptr, nullptr);
    while (!bytes.empty()) {
        if (step(page, bytes, text) || errno == E2BIG)
            continue;
        // An invalid byte, or the start of a truncated character.
        flush(page, text);
        text += replacementCharacter;
        bytes.remove_prefix(1);
    }
    flush(page, text);
    return text;
}

} // namespace tarsil
