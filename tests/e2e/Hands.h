#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

namespace tarsil::test {

/// Looks until `condition` holds; false when it does not within half a minute.
bool waitUntil(const std::function<bool()>& condition);

/// A person before a display: real key events to the window that has the focus, and a mouse.
/// There is no window manager, so a window gets the focus by being told.
class Hands
{
public:
    explicit Hands(QString display) : m_display(std::move(display)) { }

    /// Waits for a window whose title matches the regular expression, other than the one of this
    /// name that was focused before, and gives it the keyboard; false when none comes.
    bool focusNew(const QString& title);

    /// Gives the keyboard back to a window that has been there before.
    bool focus(const QString& title);

    /// Keys by their names, such as "alt+t" or "Return".
    void press(const QStringList& keys) const;
    void type(const QString& text) const;

    /// A click of a button (1 left, 3 right) at a place of the screen.
    void click(QPoint place, int button = 1) const;

    void doubleClick(QPoint place) const;

    /// Presses the left button at one place and releases it at another, with a few steps between.
    void drag(QPoint from, QPoint to) const;

    /// Moves the pointer to a place of the screen.
    void point(QPoint place) const;

    /// Whether the window that has the keyboard is called so.
    bool isFocused(const QString& name) const;

    /// Whether a window of this title is on the screen.
    bool isShown(const QString& title) const;

private:
    QStringList windows(const QString& title) const;
    QString run(const QStringList& arguments, QString* failure = nullptr) const;

    QString m_display;
    QStringList m_known; ///< windows that have had the focus
};

} // namespace tarsil::test
