// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfReader.h"

#include "base/text/TextCodec.h"
#include "rtf/RtfParser.h"
#include "rtf/RtfTokens.h"
#include "rtf/RtfWords.h"

#include <algorithm>
#include <cstddef>

namespace tarsil {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

RichText plainText(std::string_view bytes, const TextFormat& format)
{
    RichText text {{}, format};
    std::u16string units;
    char16_t before = 0;
    for (const char16_t unit : utf16FromUtf8(decodeText(bytes))) {
        const bool secondOfPair = before == u'\r' && unit == u'\n';
        before = unit;
        if (!secondOfPair)
            units += unit == u'\r' ? u'\n' : unit == u'\0' ? u' ' : unit;
    }
    if (!units.empty())
        text.runs.push_back({std::move(units), format});
    return text;
}

std::string_view fromFirstCharacter(std::string_view bytes)
{
    return bytes.substr(std::min(bytes.find_first_not_of(" \r\n\0"sv), bytes.size()));
}

std::string_view withoutMark(std::string_view bytes)
{
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    return bytes;
}

} // namespace

RichText readRtf(std::string_view bytes, const TextFormat& fallback, RtfScope scope)
{
    bytes = withoutMark(bytes);
    const std::string_view source = fromFirstCharacter(bytes);
    if (!source.starts_with('{'))
        return plainText(bytes, fallback);
    return RtfParser(source, fallback, scope).read();
}

bool looksLikeRtf(std::string_view text)
{
    const std::string_view source = fromFirstCharacter(withoutMark(text));
    return source.starts_with("{\\rtf") || source.starts_with("{\\urtf")
        || source.starts_with("{{\\rtf");
}

bool isCutRtf(std::string_view text)
{
    if (!looksLikeRtf(text))
        return false;
    RtfTokens tokens(fromFirstCharacter(withoutMark(text)));
    std::size_t depth = 0;
    for (RtfToken token = tokens.next(); token.kind != RtfTokenKind::End; token = tokens.next()) {
        if (token.kind == RtfTokenKind::GroupStart)
            ++depth;
        else if (token.kind == RtfTokenKind::GroupEnd && --depth == 0)
            return false;
        else if (token.kind == RtfTokenKind::Word && rtfMeaning(token.text).word == RtfWord::Binary)
            tokens.skip(static_cast<std::size_t>(std::max(token.number.value_or(0), 0)));
    }
    return true;
}

} // namespace tarsil
