// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarsil {

/// The code pages that this program names.
namespace codepage {
constexpr int windows1252 = 1252;
constexpr int macRoman = 10000;
constexpr int utf8 = 65001;
} // namespace codepage

/// The character of a Windows-1252 byte. The five unused bytes (81, 8D, 8F, 90, 9D) give the C1
/// controls of the same value.
char16_t windows1252Character(unsigned char byte);

/// The Windows-1252 byte of a character; empty when the code page lacks the character.
std::optional<unsigned char> windows1252Byte(char32_t character);

class CodePageConverter;

/// Converts bytes of many code pages to UTF-16. The table of a page is opened on first use and
/// stays open while the decoder exists. Not shared: each reader has its own decoder.
class CodePageDecoder
{
public:
    CodePageDecoder();
    ~CodePageDecoder();
    CodePageDecoder(const CodePageDecoder&) = delete;
    CodePageDecoder& operator=(const CodePageDecoder&) = delete;

    /// Decodes bytes that hold whole characters. An invalid byte or a truncated character becomes
    /// U+FFFD, and decoding continues with the next byte. An unknown page is read as Windows-1252.
    std::u16string decode(int codePage, std::string_view bytes);

private:
    /// The converter of a page, opened on first use; null for an unknown page.
    CodePageConverter* converter(int codePage);

    std::unordered_map<int, std::unique_ptr<CodePageConverter>> m_converters;
};

} // namespace tarsil
