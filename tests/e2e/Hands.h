// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

#include <functional>

namespace tarsil::test {

/// Polls until `condition` is true. False after half a minute.
bool waitUntil(const std::function<bool()>& condition);

/// Simulates a user of a display: real key events to the focused window, and a mouse. There is no
/// window manager, so the focus of a window is set explicitly.
class Hands
{
public:
    explicit Hands(QString display) : m_display(std::move(display)) { }

    /// Waits for a window whose title matches the regular expression, other than earlier ones of
    /// this name, and focuses it. False when none appears.
    bool focusNew(const QString& title);

    /// Whether the window that `focusNew` focused last is still visible.
    bool isNewShown(const QString& title) const { return windows(title).contains(m_known.last()); }

    /// Focuses a window that was focused before.
    bool focus(const QString& title);

    /// Presses keys given by name, such as "alt+t" or "Return".
    void press(const QStringList& keys) const;
    void type(const QString& text) const;

    /// Clicks a button (1 left, 3 right) at a position on the screen.
    void click(QPoint position, int button = 1) const;

    void doubleClick(QPoint position) const;

    /// Drags with a button (1 left, 2 middle), with a few steps on the way.
    void drag(QPoint from, QPoint to, int button = 1) const;

    /// Moves the pointer to a position on the screen.
    void point(QPoint position) const;

    /// Whether the focused window has this name.
    bool isFocused(const QString& name) const;

    /// Whether a window of this title is visible.
    bool isShown(const QString& title) const;

private:
    QStringList windows(const QString& title) const;
    QString run(const QStringList& arguments, QString* failure = nullptr) const;

    QString m_display;
    QStringList m_known; ///< windows that were focused before
};

} // namespace tarsil::test
