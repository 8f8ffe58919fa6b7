#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tarsil {

enum class RtfTokenKind {
    End, ///< nothing whole is left
    GroupStart,
    GroupEnd,
    Word, ///< \word or \wordN
    Symbol, ///< a backslash and one character that is no letter
    CodedByte, ///< \'hh
    Text ///< neighbouring plain bytes
};

struct RtfToken
{
    RtfTokenKind kind = RtfTokenKind::End;
    std::string_view text {}; ///< the letters of a word, or the plain bytes
    std::optional<int> number {}; ///< of a word; one that is too large is the largest there is
    char byte = 0; ///< of a symbol or a coded byte
};

/// The tokens of a Rich Text Format source, one after the other, without copying any. The source
/// may be anything and may end anywhere: what it cuts in the middle of a token is left out.
class RtfTokens
{
public:
    /// `source` must outlive the tokens.
    explicit RtfTokens(std::string_view source) : m_source(source) { }

    RtfToken next();

    /// Passes over raw bytes, at most to the end.
    void skip(std::size_t count);

private:
    RtfToken take(RtfTokenKind kind, std::size_t length);
    RtfToken plainText();
    RtfToken escape();
    RtfToken word();
    RtfToken codedByte();
    RtfToken symbol();
    RtfToken cutAtTheEnd();

    /// The end of the letters, or of the digits, that begin at a place.
    std::size_t endOfLetters(std::size_t place) const;
    std::size_t endOfDigits(std::size_t place) const;

    bool isEnd(std::size_t place) const { return place >= m_source.size(); }

    std::string_view m_source;
    std::size_t m_position = 0;
};

} // namespace tarsil
