// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"
#include "surface/DeviceContext.h"

#include <functional>
#include <vector>

namespace tarsil {

/// The font of a look; its family is `drawnFace` of the look's family.
Font fontOf(const TextFormat& format);

/// How text is measured: by the functions of a surface, or those of the screen.
struct TextMeasure
{
    std::function<QSize(const QString&, const Font&)> extent;
    std::function<int(const Font&)> ascent;
};

/// Consecutive characters of one look on one line.
struct TextPiece
{
    QPoint baseline; ///< left end, relative to the upper left corner of the text
    QString text;
    Font font;
    ColorValue color;
};

struct RichTextLayout
{
    std::vector<TextPiece> pieces;
    QSize size;
};

/// Positions the characters of a text. A line is as high as its highest character, its line break
/// included; baselines are one line height apart. The first baseline is one ascent below the top. A
/// tab advances to the next half inch. Automatic colour becomes `automaticColor`.
RichTextLayout layOutRichText(const RichText& text, ColorValue automaticColor,
                              const TextMeasure& measure);

} // namespace tarsil
