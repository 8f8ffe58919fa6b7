// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "emf/EmfObjects.h"
#include "emf/EmfStream.h"
#include "surface/DeviceContext.h"

#include <optional>

namespace tarsil {

/// The state of a player of the metafile: clip, pen, font, colours and modes. Writes the
/// differences before each drawing record. A clip cannot be removed on its own, only by restoring
/// the state at the beginning.
class EmfState
{
public:
    /// Both must outlive this state.
    EmfState(EmfStream& stream, EmfObjects& objects);

    /// Saves the initial state for `end` and for removing a clip.
    void begin();

    /// Sets what every drawing record needs: the clip, and a transparent background for text and
    /// dashed lines. Call before selecting pen, font and colour.
    void prepare(const std::optional<QRect>& clip);

    /// The pen must already have the style and width to be written.
    void selectPen(const Pen& pen);
    void selectFont(const Font& font);
    void setTextColor(ColorValue color);
    void setTextAlignment(TextAlignment alignment);

    /// Restores the initial state and removes all objects.
    void end();

private:
    struct Written
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
    Written m_written;
};

} // namespace tarsil
