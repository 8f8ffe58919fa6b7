// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/ZoomGesture.h"

#include "vgfplot/EvmPlot.h"

#include <QGuiApplication>
#include <QStyleHints>
#include <QWheelEvent>

#include <utility>

namespace tarsil {

namespace {

constexpr quint64 longestPause = 1000; ///< milliseconds between turns of one step
constexpr double eighthsOfNotch = 120; ///< eighths of a degree

ZoomChoice choiceOf(Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::ControlModifier)
        return ZoomChoice::Speed;
    return modifiers & Qt::ShiftModifier ? ZoomChoice::Value : ZoomChoice::SpeedAndValue;
}

/// The notches of a turn. Some platforms report the wheel sideways while a key is held.
double notchesOf(const QWheelEvent& event)
{
    const QPoint angle = event.angleDelta();
    return (angle.y() != 0 ? angle.y() : angle.x()) / eighthsOfNotch;
}

} // namespace

void ZoomGesture::press(QPoint position, Qt::MouseButton button)
{
    cancel();
    const bool isInCanvas = m_plot.parts().vgPlot.geometry().contains(position);
    const bool isPan = button == Qt::MiddleButton && zoneAt(m_plot, position) != PlotZone::Outside;
    if (!isPan && !(button == Qt::LeftButton && isInCanvas))
        return;
    m_zoom.emplace(m_plot);
    m_button = button;
    m_isActive = false;
    m_from = m_to = position;
    m_before = m_plot.axes();
}

void ZoomGesture::pointTo(QPoint position, Qt::KeyboardModifiers modifiers)
{
    if (!m_zoom)
        return;
    const int distance = (position - m_from).manhattanLength();
    m_isActive |= distance >= QGuiApplication::styleHints()->startDragDistance();
    if (!m_isActive)
        return;
    m_to = position;
    if (m_button == Qt::MiddleButton)
        m_plot.setAxes(m_zoom->panned(m_from, m_to, choiceOf(modifiers)));
}

ZoomGesture::Result ZoomGesture::release(Qt::MouseButton button)
{
    if (!m_zoom || button != m_button)
        return Result::Nothing;
    const PlotZoom zoom = *std::exchange(m_zoom, std::nullopt);
    if (!m_isActive)
        return button == Qt::LeftButton ? Result::Click : Result::Nothing;
    if (button == Qt::LeftButton)
        m_plot.setAxes(zoom.into(m_from, m_to));
    if (m_plot.axes() == m_before)
        return Result::Nothing;
    return button == Qt::LeftButton ? Result::Zoomed : Result::Panned;
}

bool ZoomGesture::cancel()
{
    if (!m_zoom)
        return false;
    m_zoom.reset();
    if (m_isActive && m_button == Qt::MiddleButton)
        m_plot.setAxes(m_before);
    return true;
}

QRect ZoomGesture::band() const
{
    return isActive() && m_button == Qt::LeftButton ? m_zoom->band(m_from, m_to) : QRect();
}

/// Whether a turn belongs to the ones before it.
bool ZoomGesture::continuesTurn(const QWheelEvent& event) const
{
    return m_turn && m_plot.axes() == m_turned && event.timestamp() >= m_turnTime
        && event.timestamp() - m_turnTime <= longestPause;
}

std::optional<UndoHistory::Joining> ZoomGesture::turn(const QWheelEvent& event)
{
    const QPoint position = event.position().toPoint();
    if (m_zoom || zoneAt(m_plot, position) == PlotZone::Outside)
        return std::nullopt;
    if (!continuesTurn(event)) {
        m_turn.emplace(m_plot);
        m_hasTurned = false;
    }
    const PlotAxes before = m_plot.axes();
    m_plot.setAxes(m_turn->turn(position, notchesOf(event), choiceOf(event.modifiers())));
    m_turned = m_plot.axes();
    m_turnTime = event.timestamp();
    const bool joins = std::exchange(m_hasTurned, m_hasTurned || m_turned != before);
    return joins ? UndoHistory::Joining::Yes : UndoHistory::Joining::Begins;
}

} // namespace tarsil
