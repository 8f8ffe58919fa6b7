// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarsil {

/// The conversion of one code page to UTF-16 by the tables of the system, which differ in a few
/// characters: on Windows 10000 has U+2126 and U+2206 for omega and delta, 1255 leaves points of
/// Hebrew letters separate, and 1361 has a backslash for the won sign.
class CodePageConverter
{
public:
    /// Opens the tables of a page.
    explicit CodePageConverter(int codePage);
    ~CodePageConverter();
    CodePageConverter(const CodePageConverter&) = delete;
    CodePageConverter& operator=(const CodePageConverter&) = delete;

    /// Whether the system has this page.
    bool isOpen() const { return m_page != noPage; }

    /// Decodes bytes that hold whole characters; the page must be open. An invalid byte or a
    /// truncated character becomes U+FFFD, and decoding continues with the next byte.
    std::u16string decode(std::string_view bytes);

private:
    static constexpr std::intptr_t noPage = -1;

    std::intptr_t m_page; ///< the system's handle or number
};

} // namespace tarsil
