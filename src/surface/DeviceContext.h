// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/ColorValue.h"

#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QSize>
#include <QString>

namespace tarsil {

/// The numbers of the pen styles in files and series.
namespace penstyle {
constexpr int solid = 0;
constexpr int dash = 1;
constexpr int dot = 2;
constexpr int dashDot = 3;
constexpr int dashDotDot = 4;
constexpr int none = 5;
} // namespace penstyle

/// How a line is drawn. A dashed pen wider than one pixel is solid, and so is a style outside 0 to
/// 5.
struct Pen
{
    int style = penstyle::solid;
    int width = 0; ///< pixels; 0 is one pixel at any scale
    ColorValue color = 0;

    bool operator==(const Pen&) const = default;
};

/// A font family and its size in points. Points are converted to pixels at 96 per inch on every
/// surface.
struct Font
{
    QString family = QStringLiteral("Arial");
    double points = 8;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;

    bool operator==(const Font&) const = default;
};

/// The position of the reference point in a text. The values are those of the metafile format.
enum class TextAlignment {
    TopLeft = 0,
    TopRight = 2,
    TopCenter = 6,
    BottomCenter = 14,
    BaselineLeft = 24
};

/// The rectangle of a text of this extent whose reference point is at `reference`.
QRect textRectangle(QPoint reference, QSize extent, int ascent, TextAlignment alignment);

/// A surface to draw on: the screen, a picture file, or a test. Coordinates are whole pixels at 96
/// per inch relative to the origin, with y downwards. Style is passed with each call, so that only
/// origin and clip are state. Text and the gaps of dashed lines have a transparent background. Each
/// line is drawn with its own pen, and dashes begin anew with each line; a surface may reuse pens
/// and join lines if the picture stays the same.
class DeviceContext
{
public:
    DeviceContext() = default;
    virtual ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;

    virtual void drawLine(QPoint from, QPoint to, const Pen& pen) = 0;

    /// A line between positions that need not be whole pixels, such as a segment of a curve. A
    /// surface of whole pixels rounds both ends by `roundToPixel`, as this function does; one that
    /// keeps fractions overrides it.
    virtual void drawExactLine(QPointF from, QPointF to, const Pen& pen);

    /// Whether `drawExactLine` keeps fractions of a pixel.
    virtual bool keepsFractions() const { return false; }

    /// Whether the format requires that each part of a plot is drawn as a whole and in its order.
    virtual bool hasFixedOrder() const { return false; }

    virtual void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                          TextAlignment alignment) = 0;

    /// Width: the sum of the advances, each a whole pixel. Height: ascent plus descent.
    virtual QSize textExtent(const QString& text, const Font& font) const = 0;

    /// The distance from the top of a text to its baseline.
    virtual int textAscent(const Font& font) const = 0;

    virtual void fillRectangle(const QRect& rectangle, ColorValue color) = 0;

    /// Clips drawing to a rectangle in pixels of the whole surface, independent of the origin.
    virtual void setClip(const QRect& rectangle) = 0;
    virtual void clearClip() = 0;

    /// Sets the pixel of the whole surface that is (0, 0) in later calls.
    virtual void setOrigin(QPoint origin) = 0;
};

} // namespace tarsil
