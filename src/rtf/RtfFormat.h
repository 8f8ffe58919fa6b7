#pragma once

#include "rtf/RichText.h"
#include "rtf/RtfTables.h"
#include "rtf/RtfTokens.h"
#include "rtf/RtfWords.h"

#include <optional>

namespace tarsil {

/// No reader takes a size beyond 1638 points.
constexpr int largestHalfPoints = 3276;

/// How a character of a source looks, in the source's own terms. What the tables say of the numbers
/// may come after the text, so that they are looked up at the end.
struct RtfFormat
{
    std::optional<int> font; ///< nothing for the default font
    std::optional<int> halfPoints; ///< nothing for the box's own size
    std::optional<int> color; ///< nothing for the automatic colour
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;

    bool operator==(const RtfFormat&) const = default;
};

/// Does to a format what a control word says; false for a word that says nothing about it. The
/// fonts are those that are known so far.
bool applyFormatWord(RtfFormat& format, RtfWord word, const RtfToken& token,
                     const RtfFontTable& fonts);

/// The font of a format, which is the default font where the table lacks it. Null for none.
const RtfFont* fontOf(const RtfFormat& format, const RtfFontTable& fonts);

/// The format in terms of the text. What the source does not name is the fallback's.
TextFormat textFormatOf(const RtfFormat& format, const RtfFontTable& fonts,
                        const RtfColorTable& colors, const TextFormat& fallback);

} // namespace tarsil
