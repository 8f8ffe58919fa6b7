// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

#include <QFont>
#include <QFontMetrics>

#include <vector>

namespace tarsil {

/// The size of the font's em in whole pixels, at least 1.
int pixelSize(const Font& font);

/// The font for drawing and measuring: pixel size, full hinting and no kerning, so that every
/// advance is a whole pixel, the same on the screen and in files.
QFont screenFont(const Font& font);

/// The text to draw and measure: each invisible character, and each that picture files cannot
/// contain (controls, tabs, line ends), becomes a blank; an unpaired surrogate becomes U+FFFD.
QString drawableText(const QString& text);

/// Measures text in whole pixels, the same for every surface. Caches the last font, because texts
/// of one font usually follow each other.
class TextMetrics
{
public:
    TextMetrics();

    /// `screenFont` of the font.
    const QFont& qtFont(const Font& font) const;

    /// Width: the sum of the advances. Height: ascent plus descent.
    QSize extent(const QString& text, const Font& font) const;

    /// The distance from the top of a text to its baseline.
    int ascent(const Font& font) const;

    /// The advance of each UTF-16 unit; 0 for the second unit of a surrogate pair. Letters that
    /// join, as in Arabic, are narrower together than alone: their advances are scaled down to the
    /// joint width.
    std::vector<int> advances(const QString& text, const Font& font) const;

    /// The rectangle of a text whose reference point is at `reference`.
    QRect box(QPoint reference, const QString& text, const Font& font,
              TextAlignment alignment) const;

    /// The rectangle that the letters of a text in `box` can ink: some letters, above all slanted
    /// ones, extend beyond it.
    static QRect reach(const QRect& box, const Font& font);

private:
    const QFontMetrics& metricsOf(const Font& font) const;

    mutable Font m_font;
    mutable QFont m_qtFont;
    mutable QFontMetrics m_metrics;
};

} // namespace tarsil
