#pragma once

#include "emf/EmfObjects.h"
#include "emf/EmfStream.h"
#include "surface/DeviceContext.h"

#include <optional>

namespace tarsil {

/// What a player of the metafile has been told so far: clip, pen, font, colours and modes. It is
/// told what differs from that, before each drawing record. The clip can only be taken back
/// together with all the rest, by going back to the state at the beginning.
class EmfState
{
public:
    /// Both must outlive this state.
    EmfState(EmfStream& stream, EmfObjects& objects);

    /// Keeps the state at the beginning, to go back to.
    void begin();

    /// What every drawing record needs: the clip, and a background that stays as it is between
    /// letters and in the gaps of dashed lines. Comes before pen, font and colour.
    void prepare(const std::optional<QRect>& clip);

    /// Style and width must be those that are written.
    void selectPen(const Pen& pen);
    void selectFont(const Font& font);
    void setTextColor(ColorValue color);
    void setTextAlignment(TextAlignment alignment);

    /// Goes back to the beginning, and removes all objects.
    void end();

private:
    struct Told
    {
        std::optional<Pen> pen;
        std::optional<Font> font;
        std::optional<ColorValue> textColor;
        std::optional<TextAlignment> alignment;
        bool isTransparent = false;
    };

    void restore();
    void setClip(const QRect& clip);
    void select(std::uint32_t object);
    void makeRoom();

    EmfStream& m_stream;
    EmfObjects& m_objects;
    std::optional<QRect> m_clip;
    Told m_told;
};

} // namespace tarsil
