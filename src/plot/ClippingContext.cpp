#include "plot/ClippingContext.h"

#include <algorithm>
#include <array>

namespace tarsil {

namespace {

struct Segment
{
    QPoint from;
    QPoint to;
};

/// The part of a line within a rectangle, by the method of Liang and Barsky: each side of the
/// rectangle narrows the range of the line's parameter, 0 at its beginning and 1 at its end.
std::optional<Segment> partWithin(const QRect& rectangle, const Segment& line)
{
    if (rectangle.contains(line.from) && rectangle.contains(line.to))
        return line;
    const double across = line.to.x() - line.from.x();
    const double down = line.to.y() - line.from.y();
    // For each side: how fast the line goes out of it, and how far inside it begins.
    const std::array<std::pair<double, double>, 4> sides = {
        {{-across, line.from.x() - rectangle.left()},
         {across, rectangle.right() - line.from.x()},
         {-down, line.from.y() - rectangle.top()},
         {down, rectangle.bottom() - line.from.y()}}};
    double begin = 0;
    double end = 1;
    for (const auto& [outwards, inside] : sides) {
        if (outwards == 0 && inside < 0)
            return std::nullopt;
        if (outwards < 0)
            begin = std::max(begin, inside / outwards);
        else if (outwards > 0)
            end = std::min(end, inside / outwards);
    }
    if (begin > end)
        return std::nullopt;
    const auto at = [&line, across, down](double parameter) {
        return line.from + QPoint(qRound(parameter * across), qRound(parameter * down));
    };
    return Segment {at(begin), at(end)};
}

} // namespace

void ClippingContext::drawLine(QPoint from, QPoint to, const Pen& pen)
{
    if (!m_clip) {
        m_surface.drawLine(from, to, pen);
        return;
    }
    if (const auto part = partWithin(m_clip->translated(-m_origin), {from, to}))
        m_surface.drawLine(part->from, part->to, pen);
}

void ClippingContext::drawText(QPoint reference, const QString& text, const Font& font,
                               ColorValue color, TextAlignment alignment)
{
    const QRect covered =
        textRectangle(reference, textExtent(text, font), textAscent(font), alignment);
    if (!m_clip || m_clip->translated(-m_origin).intersects(covered))
        m_surface.drawText(reference, text, font, color, alignment);
}

QSize ClippingContext::textExtent(const QString& text, const Font& font) const
{
    return m_surface.textExtent(text, font);
}

int ClippingContext::textAscent(const Font& font) const
{
    return m_surface.textAscent(font);
}

void ClippingContext::fillRectangle(const QRect& rectangle, ColorValue color)
{
    const QRect visible = m_clip ? rectangle & m_clip->translated(-m_origin) : rectangle;
    if (!visible.isEmpty())
        m_surface.fillRectangle(visible, color);
}

void ClippingContext::setOrigin(QPoint origin)
{
    m_origin = origin;
    m_surface.setOrigin(origin);
}

} // namespace tarsil
