// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plotwindow/EvmPlotView.h"
#include "vgfplot/PlotRows.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QTextEdit>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarsil::test {

/// A view of 800 x 600 with the keyboard, and a user's events.
class EvmPlotViewTest : public ::testing::Test
{
protected:
    using Rows = std::vector<RowId>;

    EvmPlotViewTest() : view(plot)
    {
        view.resize(800, 600);
        view.show();
        view.activateWindow();
        view.setFocus();
        QApplication::processEvents();
    }

    void mouse(QEvent::Type type, QPoint position, Qt::MouseButton button = Qt::LeftButton)
    {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : button;
        QMouseEvent event(type, position, view.mapToGlobal(position), changed, held,
                          Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
    }

    void drag(QPoint from, QPoint to)
    {
        mouse(QEvent::MouseButtonPress, from);
        mouse(QEvent::MouseMove, to);
        mouse(QEvent::MouseButtonRelease, to);
    }

    void doubleClick(QPoint position)
    {
        mouse(QEvent::MouseButtonPress, position);
        mouse(QEvent::MouseButtonRelease, position);
        mouse(QEvent::MouseButtonDblClick, position);
    }

    /// The open editor; null when there is none.
    QTextEdit* editor()
    {
        for (QTextEdit* child : view.findChildren<QTextEdit*>()) {
            if (child->isVisible())
                return child;
        }
        return nullptr;
    }

    void press(QWidget* widget, Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&view, &event);
    }

    QMenu* boxMenu() { return view.findChild<QMenu*>(QStringLiteral("mnuErtb")); }

    /// Opens the menu at a position with the right button. Returns whether the view accepted it.
    bool openMenu(QPoint position)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, position, view.mapToGlobal(position));
        QApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }

    void choose(const char* action)
    {
        boxMenu()->hide();
        boxMenu()->findChild<QAction*>(QString::fromLatin1(action))->trigger();
    }

    /// Whether any pixel of a rectangle is not white.
    static bool isInked(const QImage& image, const QRect& rectangle)
    {
        for (int row = rectangle.top(); row <= rectangle.bottom(); ++row) {
            for (int column = rectangle.left(); column <= rectangle.right(); ++column) {
                if (image.pixelColor(column, row) != Qt::white)
                    return true;
            }
        }
        return false;
    }

    /// Turns the wheel by notches, at a time in milliseconds.
    void turn(QPoint position, double notches, quint64 time = 0,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWheelEvent event(position, view.mapToGlobal(position), {},
                          QPoint(0, static_cast<int>(120 * notches)), Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        event.setTimestamp(time);
        QApplication::sendEvent(&view, &event);
    }

    /// Records the names of the undo steps from now on; "+" for those that join the last one.
    void listen()
    {
        QObject::connect(&view, &EvmPlotView::edited, &view,
                         [this](const QString& what, UndoHistory::Joining joining) {
                             const bool joins = joining == UndoHistory::Joining::Yes;
                             steps.push_back((joins ? "+" : "") + what.toStdString());
                         });
    }

    QPoint legendCentre() { return plot.Legend().geometry().center(); }

    EvmPlot plot;
    EvmPlotView view;
    std::vector<std::string> steps;
};

} // namespace tarsil::test
