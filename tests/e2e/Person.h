// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Hands.h"
#include "Program.h"
#include "VirtualDisplay.h"

#include <QImage>
#include <QPointF>
#include <QRect>
#include <QStringList>

#include <functional>
#include <stdexcept>

namespace tarsil::test {

/// A step of a user that cannot be done. It ends the test, because no later step makes sense.
class StepFailed : public std::runtime_error
{
public:
    explicit StepFailed(const QString& step) : std::runtime_error(step.toStdString()) { }
};

/// A user of the program, who performs actions one by one and waits for their effect. Everything is
/// found by its name: the object name of a widget or command, its accessible name, or its caption.
/// Raises StepFailed for what does not appear within half a minute.
class Person
{
public:
    Person(const VirtualDisplay& display, const Program& program);

    /// Presses keys given by name, separated by blanks.
    void press(const char* keys) const;
    void type(const QString& text) const { m_hands.type(text); }

    /// The rectangle of a widget on the screen.
    QRect area(const char* widget) const;

    /// The rectangle of the plot without its frame.
    QRect plot() const { return area("evpVgf"); }

    /// The rectangle of a cell of the grid, counted from 0.
    QRect cell(int row, int column) const;

    void clickOn(const char* widget) const;
    void clickAt(QPoint position, int button = 1) const;

    /// Replaces the text in a field.
    void fill(const char* field, const QString& text) const;

    /// Selects an entry of a list of choices by its text.
    void chooseIn(const char* list, const QString& entry) const;

    /// Selects an entry of a tree or list by its text.
    void select(const char* view, const QString& entry) const;

    /// Ticks the box of an entry of the explorer.
    void tick(const QString& entry) const;

    /// Chooses a command of the menu bar, both by object name.
    void choose(const char* menu, const char* command) const;

    /// Chooses a command of the pop-up of an entry of the explorer.
    void chooseFor(const QString& entry, const char* command) const;

    /// Opens a dialog with `open`, runs `action` on it, and waits until it is closed.
    void inDialog(const std::function<void()>& open, const char* title,
                  const std::function<void()>& action);

    /// Handles a dialog that asks for a file, opened by `open`.
    void nameFile(const std::function<void()>& open, const char* title, const QString& path);
    void addEvolution(const char* name);

    /// Answers a box of the program by a button.
    void answer(const char* button);

    /// Types an answer to a question of the program.
    void answerWith(const QString& text);

    /// Closes the message box of a dialog. Returns whether the dialog then has the focus by itself.
    bool closesBoxOf(const char* dialog);

    /// Adds a plot and gives it a caption.
    void addPlot(const QString& caption);

    void activatePlot(const QString& caption) const;

    // Focus a child window.
    void goToDataControl() const { choose("mnuView", "mnuDataControl"); }
    void goToExplorer() const;

    /// Double-clicks the header, types, and clicks outside.
    void typeHeader(const QStringList& lines);

    /// Draws the second, third and fourth mode of an evolution by the pop-up of the tree.
    void selectModes(const QString& evolution);
    void setLargestSpeed(const QString& speed);

    /// Draws the first mode of the ticked evolutions.
    void drawTicked();

    /// Drags in the plot with a button (1 left, 2 middle), between parts of its width and height.
    void dragInPlot(QPointF from, QPointF to, int button) const;

    /// Turns the wheel over a part of the plot's width and height, towards the screen.
    void turnWheel(QPointF position) const;

    /// Double-clicks a part of the plot's width and height.
    void doubleClickInPlot(QPointF position) const;

    /// A pixel of a colour in the plot.
    QPoint pixelOf(QRgb color) const;

    /// Chooses a command of the pop-up at a position.
    void chooseAt(QPoint position, const char* command) const;

    /// Drags a row of the grid below another.
    void dragRow(int row, int below);

    /// Waits until the plot has curves of a colour; false on a timeout.
    bool waitForColor(QRgb color) const;

    /// Waits until the plot has (or has not) curves of a colour and is stable; returns its picture.
    QImage plotWith(QRgb color, bool isThere = true) const;
    bool seesPlot(const QImage& picture) const;

    /// Waits until a rectangle differs from a picture; false on a timeout.
    bool seesChange(const QRect& rectangle, const QImage& before) const;

    /// Waits until a rectangle is stable in several consecutive screenshots.
    bool standsStill(const QRect& rectangle) const;

    /// A screenshot of a rectangle.
    QImage look(const QRect& rectangle) const { return m_display.screen().copy(rectangle); }

    bool isAsked() const { return m_hands.isShown(QStringLiteral("^Tarsil$")); }

private:
    QPoint inPlot(QPointF part) const;
    QRect find(const QStringList& request) const;
    QRect findByScrolling(const char* view, const QStringList& request) const;
    void leave() const;
    void goTo(const QString& title);
    void inBox(const std::function<void()>& action);
    void changes(const QRect& rectangle, const std::function<void()>& action) const;
    bool waitFor(const QRect& rectangle, const std::function<bool(const QImage&)>& condition) const;

    const VirtualDisplay& m_display;
    const Program& m_program;
    Hands m_hands;
};

} // namespace tarsil::test
