// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfFormat.h"

#include <algorithm>

namespace tarsil {

namespace {

/// \plain means 12 points, whatever the size of the box.
constexpr int plainHalfPoints = 24;

/// A switch without a number is on; 0 turns it off.
bool isOn(const RtfToken& token)
{
    return token.number.value_or(1) != 0;
}

} // namespace

bool applyFormatWord(RtfFormat& format, RtfWord word, const RtfToken& token,
                     const RtfFontTable& fonts)
{
    const int number = token.number.value_or(0);
    switch (word) {
    case RtfWord::Bold:
        format.bold = isOn(token);
        return true;
    case RtfWord::Italic:
        format.italic = isOn(token);
        return true;
    case RtfWord::Underline:
        format.underline = isOn(token);
        return true;
    case RtfWord::NoUnderline:
        format.underline = false;
        return true;
    case RtfWord::StrikeOut:
        format.strikeOut = isOn(token);
        return true;
    case RtfWord::Font:
        // Before the font table is read, any number may be valid.
        if (token.number && (fonts.isEmpty() || fonts.find(number) != nullptr))
            format.font = number;
        return true;
    case RtfWord::FontSize:
        if (number > 0)
            format.halfPoints = std::min(number, largestHalfPoints);
        return true;
    case RtfWord::Color:
        format.color = number;
        return true;
    case RtfWord::Plain:
        format = {};
        format.halfPoints = plainHalfPoints;
        return true;
    default:
        return false;
    }
}

const RtfFont* fontOf(const RtfFormat& format, const RtfFontTable& fonts)
{
    const RtfFont* const font = format.font ? fonts.find(*format.font) : nullptr;
    return font == nullptr ? fonts.defaultFont() : font;
}

TextFormat textFormatOf(const RtfFormat& format, const RtfFontTable& fonts,
                        const RtfColorTable& colors, const TextFormat& fallback)
{
    TextFormat found;
    const RtfFont* const font = fontOf(format, fonts);
    found.family = font == nullptr || font->family.empty() ? fallback.family : font->family;
    found.points = format.halfPoints ? *format.halfPoints / 2.0 : fallback.points;
    found.bold = format.bold;
    found.italic = format.italic;
    found.underline = format.underline;
    found.strikeOut = format.strikeOut;
    if (format.color)
        found.color = colors.color(*format.color);
    return found;
}

} // namespace tarsil
