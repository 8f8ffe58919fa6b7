// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "document/UndoHistory.h"
#include "vgfplot/PlotZoom.h"

#include <QPoint>
#include <QRect>

#include <optional>

class QWheelEvent;

namespace tarsil {

class EvmPlot;

/// Zooming and panning of a plot by the mouse (`PlotZoom`): the left button draws a rubber band,
/// the middle one drags the plot, the wheel zooms about the pointer. Ctrl limits the last two to
/// the speed axis, Shift to the other one.
class ZoomGesture
{
public:
    /// `plot` must outlive this object.
    explicit ZoomGesture(EvmPlot& plot) : m_plot(plot) { }

    /// A button was pressed. Only the left and the middle one inside the canvases, and the middle
    /// one on an axis, begin a gesture.
    void press(QPoint position, Qt::MouseButton button);

    /// The pointer moved with the button held.
    void pointTo(QPoint position, Qt::KeyboardModifiers modifiers);

    /// What ended with the button.
    enum class Result { Nothing, Click, Zoomed, Panned };
    Result release(Qt::MouseButton button);

    /// Drops the gesture; a dragged plot returns. False when there is none.
    bool cancel();

    /// Whether a gesture has begun to have an effect: the pointer was moved far enough.
    bool isActive() const { return m_zoom && m_isActive; }
    bool isPanning() const { return isActive() && m_button == Qt::MiddleButton; }

    /// The rubber band in the plot; null when there is none.
    QRect band() const;

    /// Zooms by the wheel. Turns within a second are one undo step: the first one begins it, the
    /// others join it. Empty when the pointer is outside canvases and axes.
    std::optional<UndoHistory::Joining> turn(const QWheelEvent& event);

private:
    bool continuesTurn(const QWheelEvent& event) const;

    EvmPlot& m_plot;
    std::optional<PlotZoom> m_zoom; ///< while a button is held
    Qt::MouseButton m_button = Qt::NoButton;
    bool m_isActive = false;
    QPoint m_from;
    QPoint m_to;
    PlotAxes m_before; ///< when the button was pressed
    std::optional<PlotZoom> m_turn; ///< of the last turns of the wheel
    PlotAxes m_turned; ///< the axes that they gave
    bool m_hasTurned = false; ///< whether they have changed the axes
    quint64 m_turnTime = 0; ///< milliseconds, by the clock of the events
};

} // namespace tarsil
