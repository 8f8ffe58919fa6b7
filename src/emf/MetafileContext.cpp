// SPDX-License-Identifier: Apache-2.0
#include "emf/MetafileContext.h"

#include "emf/EmfHeader.h"
#include "emf/EmfText.h"
#include "surface/Dashes.h"
#include "surface/LineCut.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>

namespace tarsil {

namespace {

constexpr std::size_t longestPolyline = 4096;
/// The largest distance of coordinates from the picture. Beyond twice this distance LibreOffice
/// draws lines with a wrong slope or not at all.
constexpr int farthest = 1 << 16;
constexpr int widestPen = 1 << 20;
constexpr std::uint32_t patternCopy = 0x00F00021;
constexpr std::uint32_t white = 0xFFFFFF;

int within(std::int64_t coordinate)
{
    return static_cast<int>(std::clamp<std::int64_t>(coordinate, -farthest, farthest));
}

QPoint placed(QPoint point, QPoint origin)
{
    return {within(std::int64_t {point.x()} + origin.x()),
            within(std::int64_t {point.y()} + origin.y())};
}

QRect placed(const QRect& rectangle, QPoint origin)
{
    return {placed(rectangle.topLeft(), origin), placed(rectangle.bottomRight(), origin)};
}

struct Segment
{
    QPoint from;
    QPoint to;
};

/// The part of a line within the largest distance.
std::optional<Segment> placedLine(QPoint from, QPoint to, QPoint origin)
{
    QPointF start = QPointF(from) + QPointF(origin);
    QPointF end = QPointF(to) + QPointF(origin);
    if (!cutLine(start, end, guardBand(farthest)))
        return std::nullopt;
    return Segment {start.toPoint(), end.toPoint()};
}

/// The pen for the file. A dashed pen of one pixel gets width 0: only then it keeps its dashes when
/// the picture is enlarged. A wider pen is drawn solid everywhere.
Pen writtenPen(const Pen& pen)
{
    if (pen.style == penstyle::none)
        return {penstyle::none, 0, 0};
    if (pen.width <= 1 && pen.style >= penstyle::dash && pen.style <= penstyle::dashDotDot)
        return {pen.style, 0, pen.color};
    return {penstyle::solid, std::clamp(pen.width, 0, widestPen), pen.color};
}

QRect grown(const QRect& box, const Pen& pen)
{
    const int half = pen.width / 2;
    return box.adjusted(-half, -half, half, half);
}

QRect boxOf(std::span<const QPoint> points)
{
    QPoint first = points.front();
    QPoint last = first;
    for (const QPoint point : points) {
        first = {std::min(first.x(), point.x()), std::min(first.y(), point.y())};
        last = {std::max(last.x(), point.x()), std::max(last.y(), point.y())};
    }
    return {first, last};
}

bool fits16Bits(const QRect& box)
{
    constexpr int lowest = std::numeric_limits<std::int16_t>::min();
    constexpr int highest = std::numeric_limits<std::int16_t>::max();
    return box.left() >= lowest && box.top() >= lowest && box.right() <= highest
        && box.bottom() <= highest;
}

EmfRecord polylineRecord(const std::vector<QPoint>& points, const QRect& box, const QRect& bounds)
{
    const bool isShort = fits16Bits(box);
    EmfRecord record(isShort ? EmfType::Polyline16 : EmfType::Polyline);
    record.add(bounds).add(static_cast<std::uint32_t>(points.size()));
    for (const QPoint point : points) {
        if (isShort)
            record.addPair(point.x(), point.y());
        else
            record.add(point);
    }
    return record;
}

/// Fills a rectangle with the brush. The record has fields for a bitmap, which are unused.
EmfRecord fillRecord(const QRect& rectangle)
{
    EmfRecord record(EmfType::BitBlockTransfer);
    record.add(rectangle).add(rectangle.topLeft());
    record.add(rectangle.width()).add(rectangle.height()).add(patternCopy);
    record.add(QPoint()); // upper left corner of the bitmap
    record.add(1.0F).add(0.0F).add(0.0F).add(1.0F).add(0.0F).add(0.0F); // its transformation
    return record.add(white).addZeros(5);
}

EmfRecord endRecord()
{
    constexpr int bytes = 20;
    constexpr int offsetOfPalette = 16;
    return EmfRecord(EmfType::EndOfFile).add(0).add(offsetOfPalette).add(bytes);
}

} // namespace

MetafileContext::MetafileContext(EmfSink& sink, const QString& description, MetafileDashes dashes)
    : m_stream(sink), m_objects(m_stream), m_state(m_stream, m_objects), m_description(description),
      m_dashes(dashes)
{
    m_stream.write(headerRecord({m_description}));
    m_state.begin();
}

void MetafileContext::drawLine(QPoint from, QPoint to, const Pen& pen)
{
    if (drawsNothing())
        return;
    if (m_dashes == MetafileDashes::Lines && isDashed(pen)) {
        addDashes(QPointF(from) + QPointF(m_origin), QPointF(to) + QPointF(m_origin), pen);
        return;
    }
    const auto line = placedLine(from, to, m_origin);
    if (!line)
        return;
    const Pen written = writtenPen(pen);
    if (isDashed(written))
        writeDashes(line->from, line->to, written);
    else
        addLine(line->from, line->to, written);
}

/// Adds a solid line to those that are not written yet, if it continues them.
void MetafileContext::addLine(QPoint from, QPoint to, const Pen& written)
{
    const bool continues = !m_lines.points.empty() && m_lines.points.back() == from
        && m_lines.pen == written && m_lines.clip == m_clip
        && m_lines.points.size() < longestPolyline;
    if (!continues) {
        writeLines();
        m_lines.pen = written;
        m_lines.clip = m_clip;
        m_lines.points.push_back(from);
    }
    m_lines.points.push_back(to);
}

/// Adds the dashes of a line that are within the clip, as the pattern begins at `from`.
void MetafileContext::addDashes(QPointF from, QPointF to, const Pen& pen)
{
    const QPointF way = to - from;
    const double length = std::hypot(way.x(), way.y());
    QPointF start = from;
    QPointF end = to;
    const QRectF seen = m_clip ? QRectF(*m_clip) : guardBand(farthest);
    if (length == 0 || !cutLine(start, end, seen))
        return;
    const auto distance = [from](QPointF point) {
        return std::hypot(point.x() - from.x(), point.y() - from.y());
    };
    const auto pointAt = [&](double position) {
        return (from + way * (position / length)).toPoint();
    };
    const Pen solid = {penstyle::solid, std::max(pen.width, 0), pen.color};
    for (const Dash& dash : dashesBetween(dashPattern(pen), distance(start), distance(end)))
        addLine(pointAt(dash.begin), pointAt(dash.end), solid);
}

void MetafileContext::drawText(QPoint reference, const QString& text, const Font& font,
                               ColorValue color, TextAlignment alignment)
{
    const QPoint point = placed(reference, m_origin);
    const bool isTooFar = QPointF(point) != QPointF(reference) + QPointF(m_origin);
    const QRect box = m_text.box(point, text, font, alignment);
    if (isTooFar || drawsNothing() || box.isEmpty())
        return;
    writeLines();
    m_state.prepare(m_clip);
    m_state.selectFont(font);
    m_state.setTextColor(color);
    m_state.setTextAlignment(alignment);
    const QRect bounds = TextMetrics::reach(box, font);
    // A separating record: some players (Inkscape) join consecutive texts into paragraphs with
    // their own line spacing.
    m_stream.write(EmfRecord(EmfType::MoveTo).add(point));
    m_stream.write(textRecord(point, text, m_text.advances(text, font), bounds));
    addBounds(bounds, m_clip);
}

QSize MetafileContext::textExtent(const QString& text, const Font& font) const
{
    return m_text.extent(text, font);
}

int MetafileContext::textAscent(const Font& font) const
{
    return m_text.ascent(font);
}

void MetafileContext::fillRectangle(const QRect& rectangle, ColorValue color)
{
    const QRect area = placed(rectangle, m_origin);
    if (drawsNothing() || area.isEmpty())
        return;
    writeLines();
    m_state.prepare(m_clip);
    const std::uint32_t brush = m_objects.create(brushRecord(color));
    m_stream.write(EmfRecord(EmfType::SelectObject).add(brush));
    m_stream.write(fillRecord(area));
    m_stream.write(EmfRecord(EmfType::SelectObject).add(emfstock::whiteBrush));
    m_objects.remove(brush);
    addBounds(area, m_clip);
}

void MetafileContext::setClip(const QRect& rectangle)
{
    m_clip = placed(rectangle, {});
}

void MetafileContext::clearClip()
{
    m_clip.reset();
}

void MetafileContext::setOrigin(QPoint origin)
{
    m_origin = origin;
}

void MetafileContext::close()
{
    if (m_isClosed)
        return;
    m_isClosed = true;
    writeLines();
    m_state.end();
    m_stream.write(endRecord());
    m_stream.finish(headerRecord({m_description, m_bounds, m_stream.byteCount(),
                                  m_stream.recordCount(), m_objects.highestIndex() + 1}));
}

bool MetafileContext::drawsNothing() const
{
    return m_isClosed || (m_clip && m_clip->isEmpty());
}

void MetafileContext::writeLines()
{
    if (m_lines.points.empty())
        return;
    const QRect box = boxOf(m_lines.points);
    const QRect bounds = grown(box, m_lines.pen);
    m_state.prepare(m_lines.clip);
    m_state.selectPen(m_lines.pen);
    m_stream.write(polylineRecord(m_lines.points, box, bounds));
    if (m_lines.pen.style != penstyle::none)
        addBounds(bounds, m_lines.clip);
    m_lines.points.clear();
}

/// Writes a line whose dashes begin anew; players restart them at each MoveTo.
void MetafileContext::writeDashes(QPoint from, QPoint to, const Pen& pen)
{
    writeLines();
    m_state.prepare(m_clip);
    m_state.selectPen(pen);
    m_stream.write(EmfRecord(EmfType::MoveTo).add(from));
    m_stream.write(EmfRecord(EmfType::LineTo).add(to));
    addBounds(boxOf(std::array {from, to}), m_clip);
}

void MetafileContext::addBounds(const QRect& box, const std::optional<QRect>& clip)
{
    m_bounds |= clip ? box & *clip : box;
}

} // namespace tarsil
