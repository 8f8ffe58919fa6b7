#pragma once

#include "vgfplot/TextBox.h"

#include <QPoint>
#include <QPointF>
#include <QSize>

#include <optional>

class QKeyEvent;

namespace tarsil {

class EvmPlot;

/// Which text box of a plot is selected, and how the pointer and the arrow keys move it, from where
/// it is shown, within the plot (`shownPlace`). A box is dragged, or it follows the pointer, after
/// "Move", until a click or a key ends that.
class TextBoxMover
{
public:
    /// `plot` must outlive this object.
    explicit TextBoxMover(EvmPlot& plot) : m_plot(plot) { }

    std::optional<TextBox> boxAt(QPoint position) const;
    std::optional<TextBox> selected() const { return m_selected; }
    void select(std::optional<TextBox> box);

    /// Whether a box of this index goes where it is moved; the header keeps its row.
    static bool isMovable(TextBox box) { return box != TextBox::Header; }

    /// The left button goes down: selects the box there, and holds it.
    void press(QPoint position);

    /// The pointer moves; `isHeld` says whether the left button is down.
    void pointTo(QPoint position, bool isHeld);
    void release();

    /// The selected box follows the pointer, which holds it at its middle, from now on.
    void follow();
    bool isMoving() const { return m_isDragging || m_isFollowing; }

    /// Arrow keys move the selected box by a pixel, with Shift by ten; Return ends a movement and
    /// Escape takes it back, or ends the selection. False for every other key.
    bool press(const QKeyEvent& key);

private:
    void moveTo(QPoint corner);
    void takeBack();

    EvmPlot& m_plot;
    std::optional<TextBox> m_selected;
    QPoint m_grip; ///< where in the box the pointer holds it
    QPoint m_start; ///< the corner where the box was shown before it was moved
    QPointF m_position; ///< its position then, twentieths of a point
    bool m_isHeld = false;
    bool m_isDragging = false;
    bool m_isFollowing = false;
};

} // namespace tarsil
