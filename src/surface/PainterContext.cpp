// SPDX-License-Identifier: Apache-2.0
#include "surface/PainterContext.h"

#include "surface/Dashes.h"
#include "surface/LineCut.h"
#include "surface/QtColor.h"

#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <exception>

namespace tarsil {

namespace {

constexpr qsizetype longestPolyline = 4096;
/// The raster engine is ten times slower with round joins. On narrow lines square ends, up to two
/// pixels longer, look the same.
constexpr double narrowLine = 4;
/// Painters are exact only near the surface; lines are clipped at this distance.
constexpr double farthest = 16000;

bool isRaster(const QPainter& painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster;
}

/// Whether the raster engine draws lines one unit wide by its fast path: one pixel for each step
/// along the longer side, blended with its neighbour.
bool drawsThinLinesByPixels(const QPainter& painter)
{
    return isRaster(painter) && painter.deviceTransform().type() <= QTransform::TxTranslate;
}

/// Whether a line ends in `to` and the next one continues it along a row or a column of pixels.
bool continuesRow(QPointF from, QPointF to, QPointF next)
{
    const QPointF way = to - from;
    const QPointF nextWay = next - to;
    return (way.y() == 0 && nextWay.y() == 0 && way.x() * nextWay.x() >= 0)
        || (way.x() == 0 && nextWay.x() == 0 && way.y() * nextWay.y() >= 0);
}

/// The rectangle of a raster in the painter's units.
std::optional<QRectF> rasterOf(const QPainter& painter)
{
    if (!isRaster(painter))
        return {};
    const QPaintDevice& device = *painter.paintEngine()->paintDevice();
    return painter.deviceTransform().inverted().mapRect(
        QRectF(0, 0, device.width(), device.height()));
}

/// A line between pixel centres, extended by half a step at each end so that both end pixels are
/// fully inked. (Square caps would do the same, but on that path sloped lines shift sideways.) A
/// dashed line leaves its last pixel to the next segment.
QLineF wholePixels(QPointF from, QPointF to, bool dashed)
{
    const QPointF way = to - from;
    const double steps = std::max(std::abs(way.x()), std::abs(way.y()));
    const QPointF halfStep = steps == 0 ? QPointF(0.5, 0) : way / (2 * steps);
    return {from - halfStep, dashed ? to - halfStep : to + halfStep};
}

} // namespace

PainterContext::PainterContext(QPainter& painter, const LineDrawing& lines)
    : m_painter(painter), m_lines(lines), m_surface(rasterOf(painter)),
      m_narrowWidth(isRaster(painter) ? narrowLine / painter.deviceTransform().m11() : 0),
      m_thinLinesByPixels(drawsThinLinesByPixels(painter) && lines.leastWidth == 1)
{
    m_lines.keepsFractions |= !isRaster(painter);
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setRenderHint(QPainter::TextAntialiasing);
    m_painter.setBackgroundMode(Qt::TransparentMode);
    m_painter.setBrush(Qt::NoBrush);
}

PainterContext::~PainterContext()
{
    try {
        flush();
    } catch (const std::exception&) {
        return; // happens only after an earlier failure, which is the one to report
    }
}

void PainterContext::drawLine(QPoint from, QPoint to, const Pen& pen)
{
    addLine(from, to, pen);
}

void PainterContext::drawExactLine(QPointF from, QPointF to, const Pen& pen)
{
    if (m_lines.keepsFractions)
        addLine(from, to, pen);
    else
        DeviceContext::drawExactLine(from, to, pen);
}

void PainterContext::addLine(QPointF from, QPointF to, const Pen& pen)
{
    if (pen.style == penstyle::none)
        return;
    const QPointF pixelCentre(0.5, 0.5);
    QPointF start = from + m_origin + pixelCentre;
    QPointF end = to + m_origin + pixelCentre;
    if (isBeyond(start, end, pen) || !cutLine(start, end, guardBand(farthest)))
        return;
    const bool continues = !isDashed(pen) && !m_points.isEmpty() && pen == m_pen
        && m_points.constLast() == start && m_points.size() < longestPolyline;
    if (!continues) {
        flush();
        m_pen = pen;
        m_points.append(start);
    }
    m_points.append(end);
}

/// Whether a line is on one side of the raster, so that it inks nothing there. A curve that was
/// zoomed has most of its points there, and the engine takes long to find out.
bool PainterContext::isBeyond(QPointF from, QPointF to, const Pen& pen) const
{
    if (!m_surface)
        return false;
    const double reach = widthOf(pen) + 2;
    return std::max(from.x(), to.x()) < m_surface->left() - reach
        || std::min(from.x(), to.x()) > m_surface->right() + reach
        || std::max(from.y(), to.y()) < m_surface->top() - reach
        || std::min(from.y(), to.y()) > m_surface->bottom() + reach;
}

void PainterContext::flush()
{
    if (m_points.isEmpty())
        return;
    if (m_thinLinesByPixels && m_pen.width <= 1)
        drawThinLines();
    else if (!isDashed(m_pen) && widthOf(m_pen) <= m_narrowWidth)
        drawNarrowLines();
    else
        drawPolyline();
    m_points.clear();
}

double PainterContext::widthOf(const Pen& pen) const
{
    return std::max<double>(pen.width, m_lines.leastWidth);
}

QPen PainterContext::painterPen(const Pen& pen) const
{
    const double width = widthOf(pen);
    QPen result(qtColor(pen.color), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (pen.width <= 1) { // round caps and joins are invisible at this width, but slow
        result.setCapStyle(isDashed(pen) ? Qt::FlatCap : Qt::SquareCap);
        result.setJoinStyle(Qt::BevelJoin);
    }
    if (isDashed(pen)) {
        QList<qreal> pattern = dashPattern(pen);
        for (qreal& length : pattern) // Qt counts it in widths of the pen
            length /= width;
        result.setDashPattern(pattern);
    }
    return result;
}

void PainterContext::drawPolyline()
{
    m_painter.setPen(painterPen(m_pen));
    m_painter.drawPolyline(m_points);
}

void PainterContext::drawNarrowLines()
{
    QPen pen = painterPen(m_pen);
    pen.setCapStyle(Qt::SquareCap);
    m_painter.setPen(pen);
    m_segments.clear();
    for (qsizetype i = 1; i < m_points.size(); ++i)
        m_segments.append(QLineF(m_points.at(i - 1), m_points.at(i)));
    m_painter.drawLines(m_segments);
}

/// Draws the segments one by one: in a thin polyline the raster engine leaves lighter pixels at the
/// joins. Segments along one row or column of pixels are one line: the same pixels, in less time.
void PainterContext::drawThinLines()
{
    QPen pen = painterPen(m_pen);
    pen.setCapStyle(Qt::FlatCap);
    m_painter.setPen(pen);
    const bool isDashedPen = isDashed(m_pen);
    m_segments.clear();
    for (qsizetype i = 1; i < m_points.size(); ++i) {
        const QPointF from = m_points.at(i - 1);
        while (i + 1 < m_points.size() && continuesRow(from, m_points.at(i), m_points.at(i + 1)))
            ++i;
        m_segments.append(wholePixels(from, m_points.at(i), isDashedPen));
    }
    m_painter.drawLines(m_segments);
}

void PainterContext::drawText(QPoint reference, const QString& text, const Font& font,
                              ColorValue color, TextAlignment alignment)
{
    const QRect box = m_text.box(reference + m_origin, text, font, alignment);
    if (m_clip && !m_clip->intersects(TextMetrics::reach(box, font)))
        return; // otherwise files would contain invisible text
    flush();
    m_painter.setFont(m_text.qtFont(font));
    m_painter.setPen(qtColor(color));
    m_painter.drawText(box.topLeft() + QPoint(0, m_text.ascent(font)), drawableText(text));
}

QSize PainterContext::textExtent(const QString& text, const Font& font) const
{
    return m_text.extent(text, font);
}

int PainterContext::textAscent(const Font& font) const
{
    return m_text.ascent(font);
}

void PainterContext::fillRectangle(const QRect& rectangle, ColorValue color)
{
    flush();
    m_painter.fillRect(rectangle.translated(m_origin), qtColor(color));
}

void PainterContext::setClip(const QRect& rectangle)
{
    flush();
    m_clip = rectangle;
    m_painter.setClipRect(rectangle);
}

void PainterContext::clearClip()
{
    flush();
    m_clip.reset();
    m_painter.setClipping(false);
}

void PainterContext::setOrigin(QPoint origin)
{
    m_origin = origin;
}

} // namespace tarsil
