#pragma once

#include "Hands.h"
#include "VirtualDisplay.h"

#include <QImage>
#include <QStringList>

#include <functional>

namespace tarsil::test {

// Places on the screen of 1000 x 800 pixels, which the default layout divides: the explorer is the
// upper quarter of the left half, Data Control the rest of it, the plot window the right half.
constexpr QRect treeArea(2, 80, 495, 122);
constexpr QRect dataArea(2, 230, 495, 535);
constexpr QRect plotArea(505, 45, 490, 720); // without the frame and its title
constexpr QPoint selectButton(174, 60);
constexpr QPoint addPlotButton(209, 60);

/// Somebody before the program in its default layout, who does one thing after the other and looks
/// at what it brings.
class Person
{
public:
    explicit Person(const VirtualDisplay& display);

    /// Keys by their names, with blanks between them.
    void press(const char* keys) const;

    /// The same keys several times.
    void press(const char* keys, int times) const;
    void type(const QString& text) const { m_hands.type(text); }

    /// Opens a dialog with keys, handles it, and waits until it is gone. "File" and "Format" take
    /// turns for their key, so both are reached from the menu between them.
    void inDialog(const char* keys, const char* title, const std::function<void()>& action);

    /// A dialog that asks for a file.
    void nameFile(const char* keys, const char* title, const QString& path);
    void addEvolution(const char* name);

    /// Closes the box that a dialog shows; whether the dialog has the keyboard then by itself.
    bool closesBoxOf(const char* dialog);

    // The keyboard to a child window.
    void goToDataControl() const { press("alt+v Return"); }
    void goToExplorer() const { press("alt+v Down Return"); }

    /// Double clicks the header, types, and clicks beside it.
    void typeHeader(const QStringList& lines);

    /// The second, third and fourth mode of the selected evolution, from the pop-up of the tree.
    void selectModes();
    void setLargestSpeed(const QString& speed);

    /// A button of the explorer's toolbar; the rectangle shows that it did something.
    void pushButton(QPoint button, const QRect& rectangle);

    /// Drags something of one rectangle, which shows that it did something.
    void drag(QPoint from, QPoint to, const QRect& rectangle);

    /// Whether the plot comes to have curves of a colour.
    bool waitForColor(QRgb color) const;

    /// The picture of the plot once it has, or has not, curves of a colour, and stands still.
    QImage plotWith(QRgb color, bool isThere = true) const;
    bool seesPlot(const QImage& picture) const;

    /// Whether a rectangle comes to look other than in a picture.
    bool seesChange(const QRect& rectangle, const QImage& before) const;

    /// Whether a rectangle comes to look several times in a row as it has looked before.
    bool standsStill(const QRect& rectangle) const;

    /// A picture of a part of the screen.
    QImage look(const QRect& rectangle) const { return m_display.screen().copy(rectangle); }

    bool isAsked() const { return m_hands.isShown(QStringLiteral("^Tarsil$")); }

private:
    bool waitFor(const QRect& rectangle, const std::function<bool(const QImage&)>& condition) const;

    const VirtualDisplay& m_display;
    Hands m_hands;
};

} // namespace tarsil::test
