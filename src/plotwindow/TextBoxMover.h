// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/TextBox.h"

#include <QPoint>
#include <QPointF>
#include <QSize>

#include <optional>

class QKeyEvent;

namespace tarsil {

class EvmPlot;

/// The selected text box of a plot, and its movement by pointer and arrow keys, starting from where
/// it is shown (`shownRectangle`) and staying within the plot. A box is dragged, or after "Move" it
/// follows the pointer until a click or a key ends that.
class TextBoxMover
{
public:
    /// `plot` must outlive this object.
    explicit TextBoxMover(EvmPlot& plot) : m_plot(plot) { }

    std::optional<TextBox> boxAt(QPoint position) const;
    std::optional<TextBox> selected() const { return m_selected; }
    void select(std::optional<TextBox> box);

    /// Whether a box can be moved. The header stays in its row.
    static bool isMovable(TextBox box) { return box != TextBox::Header; }

    /// The left button was pressed: selects the box at `position` and starts dragging.
    void press(QPoint position);

    /// The pointer moved; `isHeld`: the left button is down.
    void pointTo(QPoint position, bool isHeld);
    void release();

    /// From now on the selected box follows the pointer, held at its centre.
    void follow();
    bool isMoving() const { return m_isDragging || m_isFollowing; }

    /// Handles a key: arrow keys move the selected box by a pixel, with Shift by ten. Return ends a
    /// movement; Escape reverts it, or clears the selection. False for any other key.
    bool press(const QKeyEvent& key);

private:
    void moveTo(QPoint corner);
    void takeBack();

    EvmPlot& m_plot;
    std::optional<TextBox> m_selected;
    QPoint m_grip; ///< position of the pointer in the box
    QPoint m_start; ///< shown corner of the box before the movement
    QPointF m_position; ///< position of the box then, in twentieths of a point
    bool m_isHeld = false;
    bool m_isDragging = false;
    bool m_isFollowing = false;
};

} // namespace tarsil
