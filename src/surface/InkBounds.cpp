// SPDX-License-Identifier: Apache-2.0
#include "surface/InkBounds.h"

namespace tarsil {

void InkBounds::add(const QRect& rectangle)
{
    m_bounds |= m_clip.isNull() ? rectangle : rectangle & m_clip;
}

void InkBounds::drawLine(QPoint from, QPoint to, const Pen& pen)
{
    if (pen.style == penstyle::none)
        return;
    const int reach = pen.width / 2 + 1;
    const QRect line = QRect(from, QSize(1, 1)) | QRect(to, QSize(1, 1));
    add(line.translated(m_origin).adjusted(-reach, -reach, reach, reach));
}

void InkBounds::drawText(QPoint reference, const QString& text, const Font& font,
                         ColorValue /*color*/, TextAlignment alignment)
{
    const QRect box = m_text.box(reference + m_origin, text, font, alignment);
    if (!box.isEmpty())
        add(TextMetrics::reach(box, font));
}

QSize InkBounds::textExtent(const QString& text, const Font& font) const
{
    return m_text.extent(text, font);
}

int InkBounds::textAscent(const Font& font) const
{
    return m_text.ascent(font);
}

void InkBounds::fillRectangle(const QRect& rectangle, ColorValue /*color*/)
{
    add(rectangle.translated(m_origin));
}

void InkBounds::setClip(const QRect& rectangle)
{
    m_clip = rectangle;
}

void InkBounds::clearClip()
{
    m_clip = {};
}

void InkBounds::setOrigin(QPoint origin)
{
    m_origin = origin;
}

} // namespace tarsil
