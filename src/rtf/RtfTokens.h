// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tarsil {

enum class RtfTokenKind {
    End, ///< no complete token is left
    GroupStart,
    GroupEnd,
    Word, ///< \word or \wordN
    Symbol, ///< a backslash and a character other than a letter
    CodedByte, ///< \'hh
    Text ///< consecutive plain bytes
};

struct RtfToken
{
    RtfTokenKind kind = RtfTokenKind::End;
    std::string_view text {}; ///< letters of a word, or plain bytes
    std::optional<int> number {}; ///< of a word; saturates
    char byte = 0; ///< of a symbol or a coded byte
};

/// Splits a Rich Text Format source into tokens without copying it. The source may contain anything
/// and end anywhere; an incomplete last token is dropped.
class RtfTokens
{
public:
    /// `source` must outlive the tokens.
    explicit RtfTokens(std::string_view source) : m_source(source) { }

    RtfToken next();

    /// Skips raw bytes, at most up to the end.
    void skip(std::size_t count);

private:
    RtfToken take(RtfTokenKind kind, std::size_t length);
    RtfToken plainText();
    RtfToken escape();
    RtfToken word();
    RtfToken codedByte();
    RtfToken symbol();
    RtfToken cutAtTheEnd();

    /// The end of the letters or digits that begin at a position.
    std::size_t endOfLetters(std::size_t position) const;
    std::size_t endOfDigits(std::size_t position) const;

    bool isEnd(std::size_t position) const { return position >= m_source.size(); }

    std::string_view m_source;
    std::size_t m_position = 0;
};

} // namespace tarsil
