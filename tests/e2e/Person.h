#pragma once

#include "Hands.h"
#include "VirtualDisplay.h"

#include <QImage>
#include <QStringList>

#include <functional>

namespace tarsil::test {

// Areas of the screen of 1000 x 800 pixels in the default layout: the explorer in the upper quarter
// of the left half, Data Control below it, the plot window in the right half.
constexpr QRect treeArea(2, 80, 495, 122);
constexpr QRect dataArea(2, 230, 495, 535);
constexpr QRect plotArea(505, 45, 490, 720); // without the frame and its title
constexpr QPoint selectButton(174, 60);
constexpr QPoint addPlotButton(209, 60);

/// A user of the program in its default layout, who performs actions one by one and waits for their
/// effect.
class Person
{
public:
    explicit Person(const VirtualDisplay& display);

    /// Presses keys given by name, separated by blanks.
    void press(const char* keys) const;

    /// Presses the keys several times.
    void press(const char* keys, int times) const;
    void type(const QString& text) const { m_hands.type(text); }

    /// Opens a dialog with keys, runs `action` on it, and waits until it is closed. "File" and
    /// "Format" share a mnemonic, so both are reached from the menu between them.
    void inDialog(const char* keys, const char* title, const std::function<void()>& action);

    /// Handles a dialog that asks for a file.
    void nameFile(const char* keys, const char* title, const QString& path);
    void addEvolution(const char* name);

    /// Closes the message box of a dialog. Returns whether the dialog then has the focus by itself.
    bool closesBoxOf(const char* dialog);

    // Focus a child window.
    void goToDataControl() const { press("alt+v Return"); }
    void goToExplorer() const { press("alt+v Down Return"); }

    /// Double-clicks the header, types, and clicks outside.
    void typeHeader(const QStringList& lines);

    /// Draws the second, third and fourth mode of the selected evolution by the pop-up of the tree.
    void selectModes();
    void setLargestSpeed(const QString& speed);

    /// Clicks a button of the explorer's toolbar and waits for a change in `rectangle`.
    void pushButton(QPoint button, const QRect& rectangle);

    /// Drags and waits for a change in `rectangle`.
    void drag(QPoint from, QPoint to, const QRect& rectangle);

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
    bool waitFor(const QRect& rectangle, const std::function<bool(const QImage&)>& condition) const;

    const VirtualDisplay& m_display;
    Hands m_hands;
};

} // namespace tarsil::test
