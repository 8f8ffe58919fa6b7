// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"
#include "rtf/RtfTables.h"
#include "rtf/RtfTokens.h"
#include "rtf/RtfWords.h"

#include <optional>

namespace tarsil {

/// Readers accept at most 1638 points.
constexpr int largestHalfPoints = 3276;

/// The format of a character in terms of the source: table indices, which are resolved at the end
/// because the tables may come after the text.
struct RtfFormat
{
    std::optional<int> font; ///< empty: the default font
    std::optional<int> halfPoints; ///< empty: the size of the box
    std::optional<int> color; ///< empty: the automatic colour
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;

    bool operator==(const RtfFormat&) const = default;
};

/// Applies a control word to a format. Returns false for a word that is not about formats. `fonts`
/// holds the fonts read so far.
bool applyFormatWord(RtfFormat& format, RtfWord word, const RtfToken& token,
                     const RtfFontTable& fonts);

/// The font of a format; the default font when the table lacks it. Null when there is none.
const RtfFont* fontOf(const RtfFormat& format, const RtfFontTable& fonts);

/// Resolves a format. What the source does not specify comes from `fallback`.
TextFormat textFormatOf(const RtfFormat& format, const RtfFontTable& fonts,
                        const RtfColorTable& colors, const TextFormat& fallback);

} // namespace tarsil
