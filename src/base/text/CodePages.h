#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tarsil {

/// The numbers of the code pages that are spoken of by name.
namespace codepage {
constexpr int windows1252 = 1252;
constexpr int macRoman = 10000;
constexpr int utf8 = 65001;
} // namespace codepage

/// The character of a byte in Windows-1252. Its five unused bytes (81, 8D, 8F, 90, 9D) stand for
/// the C1 controls of the same value.
char16_t windows1252Character(unsigned char byte);

/// The byte of a character in Windows-1252; nothing for a character that has no place there.
std::optional<unsigned char> windows1252Byte(char32_t character);

/// Turns bytes of many code pages into UTF-16. Each page's table is opened once, when it is first
/// needed, and stays open as long as the decoder lives; a decoder belongs to one reader.
class CodePageDecoder
{
public:
    CodePageDecoder();
    ~CodePageDecoder();
    CodePageDecoder(const CodePageDecoder&) = delete;
    CodePageDecoder& operator=(const CodePageDecoder&) = delete;

    /// The text of the bytes, which must hold whole characters: one that is cut, like every byte
    /// without a meaning, becomes U+FFFD, and decoding goes on with the next byte. A page that is
    /// not known is read as Windows-1252.
    std::u16string decode(int codePage, std::string_view bytes);

private:
    class Converter;

    /// The table of a page, opened when needed; null for a page that is not known.
    Converter* converter(int codePage);

    std::unordered_map<int, std::unique_ptr<Converter>> m_converters;
};

} // namespace tarsil
