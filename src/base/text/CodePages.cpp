// SPDX-License-Identifier: Apache-2.0
#include "base/text/CodePages.h"

#include "base/text/CodePageConverter.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

/// Windows-1252 0x80 to 0x9F (Unicode Consortium mapping CP1252.TXT); unused bytes map to
/// themselves.
constexpr std::array<char16_t, 32> windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The pages besides Windows-1252 that are converted. The list is fixed, so that a text full of
/// invented page numbers does not make the system search for each of them.
constexpr std::array<int, 31> convertedPages = {
    437,           737,  775,  850,  852,  855,  857,  858,  860,  861,
    862,           863,  865,  866,  869,  874,  932,  936,  949,  950,
    1250,          1251, 1253, 1254, 1255, 1256, 1257, 1258, 1361, codepage::macRoman,
    codepage::utf8};

bool isConverted(int codePage)
{
    return std::find(convertedPages.begin(), convertedPages.end(), codePage)
        != convertedPages.end();
}

std::u16string decodeWindows1252(std::string_view bytes)
{
    std::u16string text(bytes.size(), u'\0');
    std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
        return windows1252Character(static_cast<unsigned char>(byte));
    });
    return text;
}

} // namespace

char16_t windows1252Character(unsigned char byte)
{
    return byte >= 0x80 && byte < 0xA0 ? windows1252[byte - 0x80U] : static_cast<char16_t>(byte);
}

std::optional<unsigned char> windows1252Byte(char32_t character)
{
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF))
        return static_cast<unsigned char>(character);
    const auto* const found = std::find(windows1252.begin(), windows1252.end(), character);
    if (found == windows1252.end())
        return std::nullopt;
    return static_cast<unsigned char>(0x80 + (found - windows1252.begin()));
}

CodePageDecoder::CodePageDecoder() = default;

CodePageDecoder::~CodePageDecoder() = default;

CodePageConverter* CodePageDecoder::converter(int codePage)
{
    const auto known = m_converters.find(codePage);
    if (known != m_converters.end())
        return known->second.get();
    if (!isConverted(codePage))
        return nullptr;
    auto opened = std::make_unique<CodePageConverter>(codePage);
    if (!opened->isOpen())
        opened.reset();
    return m_converters.emplace(codePage, std::move(opened)).first->second.get();
}

std::u16string CodePageDecoder::decode(int codePage, std::string_view bytes)
{
    CodePageConverter* const table = converter(codePage);
    return table == nullptr ? decodeWindows1252(bytes) : table->decode(bytes);
}

} // namespace tarsil
