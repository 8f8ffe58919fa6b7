// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/TextBoxMover.h"

#include "surface/PixelMath.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PlotLayout.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>

#include <algorithm>

namespace tarsil {

namespace {

/// The step of an arrow key; empty for other keys.
std::optional<QPoint> stepOf(const QKeyEvent& key)
{
    const int length = key.modifiers() & Qt::ShiftModifier ? 10 : 1;
    switch (key.key()) {
    case Qt::Key_Left:
        return QPoint(-length, 0);
    case Qt::Key_Right:
        return QPoint(length, 0);
    case Qt::Key_Up:
        return QPoint(0, -length);
    case Qt::Key_Down:
        return QPoint(0, length);
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<TextBox> TextBoxMover::boxAt(QPoint position) const
{
    const auto box =
        std::find_if(allTextBoxes.rbegin(), allTextBoxes.rend(), [&](TextBox candidate) {
            return m_plot.parts().box(candidate).geometry().contains(position);
        });
    return box == allTextBoxes.rend() ? std::nullopt : std::optional(*box);
}

void TextBoxMover::select(std::optional<TextBox> box)
{
    m_selected = box;
    m_isHeld = false;
    m_isDragging = false;
    m_isFollowing = false;
    if (!box)
        return;
    m_start = m_plot.parts().box(*box).geometry().topLeft();
    m_position = {m_plot.parts().box(*box).unitsLeft(), m_plot.parts().box(*box).unitsTop()};
}

void TextBoxMover::press(QPoint position)
{
    if (m_isFollowing) { // the click that ends the movement
        select(m_selected);
        return;
    }
    select(boxAt(position));
    m_isHeld = m_selected.has_value();
    m_grip = position - m_start;
}

void TextBoxMover::pointTo(QPoint position, bool isHeld)
{
    if (m_isFollowing || m_isDragging) {
        moveTo(position - m_grip);
    } else if (m_isHeld && isHeld) {
        const int distance = (position - m_start - m_grip).manhattanLength();
        m_isDragging = distance >= QGuiApplication::styleHints()->startDragDistance();
        if (m_isDragging)
            moveTo(position - m_grip);
    }
}

void TextBoxMover::release()
{
    if (!m_isFollowing)
        select(m_selected);
}

void TextBoxMover::follow()
{
    if (!m_selected)
        return;
    select(m_selected);
    const QSize size = m_plot.parts().box(*m_selected).geometry().size();
    m_grip = QPoint(size.width() / 2, size.height() / 2);
    m_isFollowing = true;
}

bool TextBoxMover::press(const QKeyEvent& key)
{
    if (!m_selected)
        return false;
    if (const auto step = stepOf(key)) {
        moveTo(m_plot.parts().box(*m_selected).geometry().topLeft() + *step);
        return true;
    }
    if (key.key() == Qt::Key_Escape && isMoving()) {
        takeBack();
        return true;
    }
    if (key.key() == Qt::Key_Escape) {
        select(std::nullopt);
        return true;
    }
    if ((key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) && isMoving()) {
        select(m_selected);
        return true;
    }
    return false;
}

/// Stores the position at which the box is shown, because the user sees that one.
void TextBoxMover::moveTo(QPoint corner)
{
    const QSize size = m_plot.parts().box(*m_selected).geometry().size();
    const QPoint shown = shownRectangle({corner, size}, m_plot.size()).topLeft();
    m_plot.texts().move(*m_selected, shown.x() * unitsPerPixel, shown.y() * unitsPerPixel);
}

void TextBoxMover::takeBack()
{
    m_plot.texts().move(*m_selected, m_position.x(), m_position.y());
    select(m_selected);
}

} // namespace tarsil
