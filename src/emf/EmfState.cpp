// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfState.h"

namespace tarsil {

namespace {

constexpr int lastSaved = -1;
constexpr int transparent = 1;

namespace region {
constexpr int headerBytes = 32;
constexpr int rectangleBytes = 16;
constexpr int ofRectangles = 1;
constexpr int replaces = 5;
} // namespace region

/// Right and bottom of a clip are exclusive.
QRect exclusive(const QRect& rectangle)
{
    return rectangle.adjusted(0, 0, 1, 1);
}

EmfRecord regionRecord(const QRect& clip)
{
    EmfRecord record(EmfType::SelectClipRegion);
    record.add(region::headerBytes + region::rectangleBytes).add(region::replaces);
    record.add(region::headerBytes).add(region::ofRectangles).add(1).add(region::rectangleBytes);
    return record.add(exclusive(clip)).add(exclusive(clip)); // bounds, then the only rectangle
}

} // namespace

EmfState::EmfState(EmfStream& stream, EmfObjects& objects)
    : m_stream(stream), m_objects(objects) { }

void EmfState::begin()
{
    m_stream.write(EmfRecord(EmfType::SaveContext));
}

void EmfState::prepare(const std::optional<QRect>& clip)
{
    if (clip != m_clip) {
        restore();
        begin();
        if (clip)
            setClip(*clip);
        m_clip = clip;
    }
    if (!m_written.isTransparent)
        m_stream.write(EmfRecord(EmfType::SetBackgroundMode).add(transparent));
    m_written.isTransparent = true;
}

void EmfState::restore()
{
    m_stream.write(EmfRecord(EmfType::RestoreContext).add(lastSaved));
    m_written = {};
}

/// Some players know only regions, others only intersections, so both are written.
void EmfState::setClip(const QRect& clip)
{
    m_stream.write(regionRecord(clip));
    m_stream.write(EmfRecord(EmfType::IntersectClipRectangle).add(exclusive(clip)));
}

void EmfState::selectPen(const Pen& pen)
{
    if (m_written.pen == pen)
        return;
    if (pen.style == penstyle::none) {
        select(emfstock::nullPen);
    } else {
        makeRoom();
        select(m_objects.kept(penRecord(pen)));
    }
    m_written.pen = pen;
}

void EmfState::selectFont(const Font& font)
{
    if (m_written.font == font)
        return;
    makeRoom();
    select(m_objects.kept(fontRecord(font)));
    m_written.font = font;
}

void EmfState::setTextColor(ColorValue color)
{
    if (m_written.textColor == color)
        return;
    m_stream.write(
        EmfRecord(EmfType::SetTextColor).add(static_cast<std::uint32_t>(color) & rgbBits));
    m_written.textColor = color;
}

void EmfState::setTextAlignment(TextAlignment alignment)
{
    if (m_written.alignment == alignment)
        return;
    m_stream.write(EmfRecord(EmfType::SetTextAlign).add(static_cast<int>(alignment)));
    m_written.alignment = alignment;
}

void EmfState::end()
{
    restore();
    m_objects.removeAll();
}

void EmfState::select(std::uint32_t object)
{
    m_stream.write(EmfRecord(EmfType::SelectObject).add(object));
}

/// Empties a full object table. Deselects all objects first; the initial state uses none of them.
void EmfState::makeRoom()
{
    if (!m_objects.isFull())
        return;
    select(emfstock::blackPen);
    select(emfstock::systemFont);
    m_written.pen.reset();
    m_written.font.reset();
    m_objects.removeAll();
}

} // namespace tarsil
