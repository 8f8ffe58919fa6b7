#include "emf/EmfState.h"

namespace tarsil {

namespace {

constexpr int lastSaved = -1;
constexpr int transparent = 1;
constexpr std::uint32_t rgbBits = 0xFFFFFF;

namespace region {
constexpr int headerBytes = 32;
constexpr int rectangleBytes = 16;
constexpr int ofRectangles = 1;
constexpr int replaces = 5;
} // namespace region

/// Right and bottom of a clip are the first column and row outside.
QRect exclusive(const QRect& rectangle)
{
    return rectangle.adjusted(0, 0, 1, 1);
}

EmfRecord regionRecord(const QRect& clip)
{
    EmfRecord record(EmfType::SelectClipRegion);
    record.add(region::headerBytes + region::rectangleBytes).add(region::replaces);
    record.add(region::headerBytes).add(region::ofRectangles).add(1).add(region::rectangleBytes);
    return record.add(exclusive(clip)).add(exclusive(clip)); // bounds, and the only rectangle
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
    if (!m_told.isTransparent)
        m_stream.write(EmfRecord(EmfType::SetBackgroundMode).add(transparent));
    m_told.isTransparent = true;
}

void EmfState::restore()
{
    m_stream.write(EmfRecord(EmfType::RestoreContext).add(lastSaved));
    m_told = {};
}

/// Some players know only regions, others only the intersection: the two say the same.
void EmfState::setClip(const QRect& clip)
{
    m_stream.write(regionRecord(clip));
    m_stream.write(EmfRecord(EmfType::IntersectClipRectangle).add(exclusive(clip)));
}

void EmfState::selectPen(const Pen& pen)
{
    if (m_told.pen == pen)
        return;
    if (pen.style == penstyle::none) {
        select(emfstock::nullPen);
    } else {
        makeRoom();
        select(m_objects.kept(penRecord(pen)));
    }
    m_told.pen = pen;
}

void EmfState::selectFont(const Font& font)
{
    if (m_told.font == font)
        return;
    makeRoom();
    select(m_objects.kept(fontRecord(font)));
    m_told.font = font;
}

void EmfState::setTextColor(ColorValue color)
{
    if (m_told.textColor == color)
        return;
    m_stream.write(
        EmfRecord(EmfType::SetTextColor).add(static_cast<std::uint32_t>(color) & rgbBits));
    m_told.textColor = color;
}

void EmfState::setTextAlignment(TextAlignment alignment)
{
    if (m_told.alignment == alignment)
        return;
    m_stream.write(EmfRecord(EmfType::SetTextAlign).add(static_cast<int>(alignment)));
    m_told.alignment = alignment;
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

/// Empties a full table of objects. None of them may be selected then, and the state at the
/// beginning has none of them.
void EmfState::makeRoom()
{
    if (!m_objects.isFull())
        return;
    select(emfstock::blackPen);
    select(emfstock::systemFont);
    m_told.pen.reset();
    m_told.font.reset();
    m_objects.removeAll();
}

} // namespace tarsil
