// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"
#include "surface/TextMetrics.h"

#include <QList>
#include <QPolygonF>
#include <QSizeF>
#include <QXmlStreamWriter>

#include <optional>

class QIODevice;

namespace tarsil {

/// Writes a picture as SVG. Lines on whole pixels run through their centres; connected solid lines
/// of one pen become one polyline. Clipped drawing goes into a group with a clip path. For readers
/// without clip paths, text outside the clip is omitted and lines are cut shortly outside it. Text
/// from files is written only as XML values.
class SvgContext : public DeviceContext
{
public:
    /// Begins a picture of `size` pixels at 96 per inch. Pens narrower than `leastWidth` pixels get
    /// this width. `output` must outlive this context.
    SvgContext(QIODevice& output, QSizeF size, const QString& title, double leastWidth = 1);

    /// Ends the picture.
    ~SvgContext() override;

    void drawLine(QPoint from, QPoint to, const Pen& pen) override;
    void drawExactLine(QPointF from, QPointF to, const Pen& pen) override;
    bool keepsFractions() const override { return true; }
    void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                  TextAlignment alignment) override;
    QSize textExtent(const QString& text, const Font& font) const override;
    int textAscent(const Font& font) const override;
    void fillRectangle(const QRect& rectangle, ColorValue color) override;
    void setClip(const QRect& rectangle) override;
    void clearClip() override;
    void setOrigin(QPoint origin) override;

private:
    void changeClip(std::optional<QRect> clip);
    void begin();
    QString pathOf(const QRect& clip);
    void flush();
    void writeLines(double dashOffset);
    void writeText(QPoint start, const QString& text, const Font& font, ColorValue color);
    void decorate(QPoint start, int width, const Font& font, ColorValue color);
    void writeRectangle(const QRectF& rectangle, const QString& fill);

    QXmlStreamWriter m_xml;
    double m_leastWidth;
    QPoint m_origin;
    std::optional<QRect> m_clip; ///< in pixels of the whole surface
    std::optional<QRect> m_groupClip; ///< clip of the open group
    QList<QRect> m_paths; ///< clip paths already written
    Pen m_pen; ///< pen of the collected lines
    QPolygonF m_points; ///< connected lines not written yet
    TextMetrics m_text;
};

} // namespace tarsil
