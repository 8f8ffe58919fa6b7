// SPDX-License-Identifier: Apache-2.0
#include "base/text/CodePageConverter.h"

#include "base/text/CodePages.h"
#include "base/text/Utf16.h"

#include <algorithm>
#include <cstddef>

#include <windows.h>

namespace tarsil {

namespace {

/// Accents that follow their letter are joined with it, as these pages mean them.
std::u16string composed(const std::u16string& text)
{
    const auto* const wide = reinterpret_cast<const wchar_t*>(text.data());
    const int size = static_cast<int>(text.size());
    const int most = NormalizeString(NormalizationC, wide, size, nullptr, 0);
    std::u16string result(static_cast<std::size_t>(std::max(most, 0)), u'\0');
    const int length = NormalizeString(NormalizationC, wide, size,
                                       reinterpret_cast<wchar_t*>(result.data()), most);
    if (length <= 0)
        return text;
    result.resize(static_cast<std::size_t>(length));
    return result;
}

/// Whether the system uses this character for a byte without a meaning: the control character of
/// the same value, or one of its private characters.
bool isPlaceholder(char16_t character)
{
    return (character >= 0x80 && character < 0xA0) || (character >= 0xE000 && character <= 0xF8FF);
}

/// Appends the first character of `bytes` and returns its length; 0 for an invalid byte.
std::size_t appendCharacter(UINT page, std::string_view bytes, std::u16string& text)
{
    constexpr std::size_t longest = 4; // bytes of a character
    for (std::size_t length = 1; length <= std::min(longest, bytes.size()); ++length) {
        wchar_t units[2] = {};
        const int count = MultiByteToWideChar(page, MB_ERR_INVALID_CHARS, bytes.data(),
                                              static_cast<int>(length), units, 2);
        if (count == 0)
            continue;
        if (length == 1 && isPlaceholder(static_cast<char16_t>(units[0])))
            return 0;
        text.append(units, units + count);
        return length;
    }
    return 0;
}

} // namespace

CodePageConverter::CodePageConverter(int codePage)
    : m_page(IsValidCodePage(static_cast<UINT>(codePage)) ? codePage : noPage)
{ }

CodePageConverter::~CodePageConverter() = default;

std::u16string CodePageConverter::decode(std::string_view bytes)
{
    const auto page = static_cast<UINT>(m_page);
    std::u16string text;
    while (!bytes.empty()) {
        const std::size_t length = appendCharacter(page, bytes, text);
        if (length == 0)
            text += replacementCharacter;
        bytes.remove_prefix(std::max<std::size_t>(length, 1));
    }
    const bool hasAccents = page == 1255 || page == 1258;
    return hasAccents && !text.empty() ? composed(text) : text;
}

} // namespace tarsil
