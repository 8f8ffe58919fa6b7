#pragma once

#include "base/numbers/ColorValue.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

namespace tarsil {

/// The platform pen styles by their numbers, as files and series hold them.
namespace penstyle {
constexpr int solid = 0;
constexpr int dash = 1;
constexpr int dot = 2;
constexpr int dashDot = 3;
constexpr int dashDotDot = 4;
constexpr int none = 5;
} // namespace penstyle

/// How a line is drawn. A dashed line wider than one pixel is drawn solid; a style number outside 0
/// to 5 is solid too.
struct Pen
{
    int style = penstyle::solid;
    int width = 0; ///< pixels; 0 is a line of one pixel at any scale
    ColorValue color = 0;

    bool operator==(const Pen&) const = default;
};

/// A face and its size in points; points are turned into pixels at 96 per inch on every surface.
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

/// Where the reference point of a text lies in it; the values are the platform's.
enum class TextAlignment {
    TopLeft = 0,
    TopRight = 2,
    TopCenter = 6,
    BottomCenter = 14,
    BaselineLeft = 24
};

/// The rectangle that a text of this extent covers, whose reference point stands at `reference`.
QRect textRectangle(QPoint reference, QSize extent, int ascent, TextAlignment alignment);

/// A surface to draw on: the screen's, a picture file's, or a test's. Coordinates are whole pixels
/// at 96 per inch, rows downwards, relative to the origin; the style comes with each call, so there
/// is no state to restore but origin and clip. The background of texts and of the gaps of dashed
/// lines is transparent. A call says what is seen: a line has a pen of its own whose dashes begin
/// anew, and a surface may reuse pens and join lines as long as the picture is the same.
class DeviceContext
{
public:
    DeviceContext() = default;
    virtual ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;

    virtual void drawLine(QPoint from, QPoint to, const Pen& pen) = 0;
    virtual void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                          TextAlignment alignment) = 0;

    /// Width: the sum of the characters' whole advances; height: ascent and descent.
    virtual QSize textExtent(const QString& text, const Font& font) const = 0;

    /// Distance from the top of a text to its baseline.
    virtual int textAscent(const Font& font) const = 0;

    virtual void fillRectangle(const QRect& rectangle, ColorValue color) = 0;

    /// The rectangle, in pixels of the whole surface whatever the origin, that drawing is kept to.
    virtual void setClip(const QRect& rectangle) = 0;
    virtual void clearClip() = 0;

    /// The pixel of the whole surface that (0, 0) of later calls means.
    virtual void setOrigin(QPoint origin) = 0;
};

} // namespace tarsil
