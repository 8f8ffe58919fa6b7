// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"
#include "surface/TextMetrics.h"

#include <QLineF>
#include <QList>
#include <QPen>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <optional>

class QPainter;

namespace tarsil {

/// How a painter draws lines.
struct LineDrawing
{
    bool keepsFractions = false; ///< always true on a surface that is no raster of pixels
    double leastWidth = 1; ///< pixels; pens that are narrower get this width
};

/// Draws with a QPainter on an image or a printer page. Lines run through pixel centres. Connected
/// solid lines of one pen are collected and drawn as one polyline: the picture is complete after
/// `flush`. The destructor draws the rest when drawing failed.
class PainterContext : public DeviceContext
{
public:
    explicit PainterContext(QPainter& painter, const LineDrawing& lines = {});
    ~PainterContext() override;

    void drawLine(QPoint from, QPoint to, const Pen& pen) override;
    void drawExactLine(QPointF from, QPointF to, const Pen& pen) override;
    bool keepsFractions() const override { return m_lines.keepsFractions; }
    void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                  TextAlignment alignment) override;
    QSize textExtent(const QString& text, const Font& font) const override;
    int textAscent(const Font& font) const override;
    void fillRectangle(const QRect& rectangle, ColorValue color) override;
    void setClip(const QRect& rectangle) override;
    void clearClip() override;
    void setOrigin(QPoint origin) override;

    /// Draws the collected lines.
    void flush();

private:
    void addLine(QPointF from, QPointF to, const Pen& pen);
    bool isBeyond(QPointF from, QPointF to, const Pen& pen) const;
    double widthOf(const Pen& pen) const;
    QPen painterPen(const Pen& pen) const;
    void drawPolyline();
    void drawNarrowLines();
    void drawThinLines();

    QPainter& m_painter;
    LineDrawing m_lines;
    QPoint m_origin;
    std::optional<QRect> m_clip; ///< in pixels of the whole surface
    Pen m_pen; ///< pen of the collected lines
    QPolygonF m_points; ///< connected lines not drawn yet
    QList<QLineF> m_segments; ///< memory for lines that are drawn one by one
    std::optional<QRectF> m_surface; ///< the surface, if it is a raster
    TextMetrics m_text;
    double m_narrowWidth; ///< up to this width lines have no round joins
    bool m_thinLinesByPixels; ///< lines one pixel wide use the fast path of the raster engine
};

} // namespace tarsil
