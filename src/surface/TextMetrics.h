#pragma once

#include "surface/DeviceContext.h"

#include <QFont>
#include <QFontMetrics>

#include <vector>

namespace tarsil {

/// Height of a font's em in whole pixels, at least 1.
int pixelSize(const Font& font);

/// The font that Qt draws and measures with: pixel size, full hinting and no kerning, so that every
/// advance is a whole pixel, the same on screen and in files.
QFont screenFont(const Font& font);

/// A text as it is drawn and measured: a blank for each character that shows nothing, or that
/// picture files cannot hold (controls, tabs and line ends among them), and the replacement
/// character for half of a character of two units.
QString drawableText(const QString& text);

/// Measures texts in whole pixels, for every surface the same. It remembers the font last asked
/// for, as texts of one font mostly follow each other.
class TextMetrics
{
public:
    TextMetrics();

    /// `screenFont` of the font.
    const QFont& qtFont(const Font& font) const;

    /// Width: the sum of the advances; height: ascent and descent.
    QSize extent(const QString& text, const Font& font) const;

    /// Distance from the top of a text to its baseline.
    int ascent(const Font& font) const;

    /// How far each UTF-16 unit moves on; the second unit of a character of two does not. Letters
    /// that join (Arabic ones do) are together narrower than each by itself: all of them give way.
    std::vector<int> advances(const QString& text, const Font& font) const;

    /// The rectangle of a text whose reference point stands at `reference`.
    QRect box(QPoint reference, const QString& text, const Font& font,
              TextAlignment alignment) const;

    /// What the letters of a text in this rectangle can ink: they reach out of it, slanted ones
    /// above all.
    static QRect reach(const QRect& box, const Font& font);

private:
    const QFontMetrics& metricsOf(const Font& font) const;

    mutable Font m_font;
    mutable QFont m_qtFont;
    mutable QFontMetrics m_metrics;
};

} // namespace tarsil
