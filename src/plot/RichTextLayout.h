#pragma once

#include "rtf/RichText.h"
#include "surface/DeviceContext.h"

#include <functional>
#include <vector>

namespace tarsil {

/// The font of a look, on every surface: its face is `drawnFace` of the family.
Font fontOf(const TextFormat& format);

/// How texts are measured: a surface's own functions, or those of the screen without a surface.
struct TextMeasure
{
    std::function<QSize(const QString&, const Font&)> extent;
    std::function<int(const Font&)> ascent;
};

/// Characters of one look that stand side by side.
struct TextPiece
{
    QPoint baseline; ///< left end, relative to the text's upper left corner
    QString text;
    Font font;
    ColorValue color;
};

struct RichTextLayout
{
    std::vector<TextPiece> pieces;
    QSize size;
};

/// Where the characters of a text stand. Each moves on by its own advance; a line is as high as its
/// highest character, its line break included, and the next baseline lies that much lower. The
/// first baseline stands one ascent below the upper edge, so that the line is seen whole. A tab
/// goes on to the next half inch. Automatic colour becomes `automaticColor`.
RichTextLayout layOutRichText(const RichText& text, ColorValue automaticColor,
                              const TextMeasure& measure);

} // namespace tarsil
