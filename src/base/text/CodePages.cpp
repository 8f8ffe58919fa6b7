// SPDX-License-Identifier: Apache-2.0
#include "base/text/CodePages.h"

#include "base/text/Utf16.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstddef>
#include <cstdint>

#include <iconv.h>

namespace tarsil {

namespace {

/// Windows-1252 0x80 to 0x9F (Unicode Consortium mapping CP1252.TXT); unused bytes map to
/// themselves.
constexpr std::array<char16_t, 32> windows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The pages that iconv knows as "CP" and their number. The list is fixed, so that a text full of
/// invented page numbers does not make iconv search for each of them.
constexpr std::array<int, 28> numberedPages = {
    437, 737, 775, 850, 852, 855, 857,  858,  860,  861,  862,  863,  865,  866,
    869, 874, 932, 936, 949, 950, 1250, 1251, 1253, 1254, 1255, 1256, 1257, 1258};

/// The iconv name of a page; empty for an unknown page.
std::string systemName(int codePage)
{
    if (std::find(numberedPages.begin(), numberedPages.end(), codePage) != numberedPages.end())
        return "CP" + std::to_string(codePage);
    switch (codePage) {
    case 1361:
        return "JOHAB";
    case codepage::macRoman:
        return "MACINTOSH";
    case codepage::utf8:
        return "UTF-8";
    default:
        return {};
    }
}

const char* utf16InMemory()
{
    return std::endian::native == std::endian::little ? "UTF-16LE" : "UTF-16BE";
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

/// An open iconv conversion.
class CodePageDecoder::Converter
{
public:
    explicit Converter(const std::string& name)
        : m_handle(iconv_open(utf16InMemory(), name.c_str()))
    { }
    ~Converter()
    {
        if (isOpen())
            iconv_close(m_handle);
    }
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;

    bool isOpen() const { return m_handle != noHandle(); }

    std::u16string decode(std::string_view bytes)
    {
        std::u16string text;
        iconv(m_handle, nullptr, nullptr, nullptr, nullptr);
        while (!bytes.empty()) {
            if (step(bytes, text) || errno == E2BIG)
                continue;
            // An invalid byte, or the start of a truncated character.
            flush(text);
            text += replacementCharacter;
            bytes.remove_prefix(1);
        }
        flush(text);
        return text;
    }

private:
    /// The handle of a page that could not be opened: iconv_open returns -1.
    static iconv_t noHandle() { return reinterpret_cast<iconv_t>(std::intptr_t {-1}); }

    /// Decodes as many bytes as the buffer allows and removes them from `bytes`. False when it
    /// stopped before the end; errno holds the reason.
    bool step(std::string_view& bytes, std::u16string& text)
    {
        // iconv does not write to the bytes, although its declaration allows it.
        char* in = const_cast<char*>(bytes.data());
        std::size_t left = bytes.size();
        const bool whole = convert(&in, &left, text);
        bytes = bytes.substr(bytes.size() - left);
        return whole;
    }

    /// Pages with combining accents hold back a letter until the next byte is known.
    void flush(std::u16string& text) { convert(nullptr, nullptr, text); }

    bool convert(char** in, std::size_t* left, std::u16string& text)
    {
        std::array<char16_t, 256> buffer {};
        constexpr std::size_t capacity = sizeof buffer;
        auto* out = reinterpret_cast<char*>(buffer.data());
        std::size_t room = capacity;
        const bool whole = iconv(m_handle, in, left, &out, &room) != static_cast<std::size_t>(-1);
        text.append(buffer.data(), (capacity - room) / sizeof(char16_t));
        return whole;
    }

    iconv_t m_handle;
};

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

CodePageDecoder::Converter* CodePageDecoder::converter(int codePage)
{
    const auto known = m_converters.find(codePage);
    if (known != m_converters.end())
        return known->second.get();
    const std::string name = systemName(codePage);
    if (name.empty())
        return nullptr;
    auto opened = std::make_unique<Converter>(name);
    if (!opened->isOpen())
        opened.reset();
    return m_converters.emplace(codePage, std::move(opened)).first->second.get();
}

std::u16string CodePageDecoder::decode(int codePage, std::string_view bytes)
{
    Converter* const table = converter(codePage);
    return table == nullptr ? decodeWindows1252(bytes) : table->decode(bytes);
}

} // namespace tarsil
