// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>
#include <Qt>

#include <deque>
#include <memory>

class QAbstractButton;
class QEvent;
class QKeyEvent;
class QMouseEvent;

namespace tarsil {

/// Decides what becomes of the user's input while an operation runs. None of it reaches a window
/// before the operation ends:
///
/// - Input that arrives before the progress is visible is kept, and delivered in its order when the
///   program is idle again. It is lost if its window has gone or is blocked by a newer dialog.
/// - While the progress is visible, a click on the button "Stop" or the key Escape stops the
///   operation. Other input is dropped.
///
/// Input is never left in the queue of the platform: on X11, Qt forgets what it has left there
/// until another event arrives.
class OperationInput : public QObject
{
    Q_OBJECT

public:
    /// `stop` must exist while the functions below are called.
    explicit OperationInput(const QAbstractButton& stop);

    /// Paints the windows and keeps the input.
    void paintWindows();

    /// Paints the windows of an operation whose progress is visible. Returns whether the user
    /// stopped it.
    bool paintStoppable();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    /// `Idle` while events are not being processed here.
    enum class Phase { Idle, Keeping, Stoppable };

    struct Kept
    {
        QPointer<QObject> receiver;
        QPointer<QWindow> modal; ///< the dialog in front when the event arrived
        std::unique_ptr<QEvent> event;
    };

    void processEvents(Phase phase);
    bool filterInput(QObject& receiver, QEvent& event);
    bool filterMouse(QObject& receiver, const QMouseEvent& event);
    bool filterClose(QObject& receiver, QEvent& event);
    void keepOrDrop(QObject& receiver, const QEvent& event);
    void keep(QObject& receiver, const QEvent& event);
    bool isOnStop(const QMouseEvent& event) const;
    void deliverLater();
    void deliverNext();
    static bool isLost(const Kept& kept);

    const QAbstractButton& m_stop;
    Phase m_phase = Phase::Idle;
    bool m_isStopped = false;
    Qt::MouseButtons m_onStop; ///< the buttons pressed on "Stop"
    Qt::MouseButtons m_dropped; ///< the buttons whose press was dropped
    std::deque<Kept> m_kept;
    const QEvent* m_delivered = nullptr; ///< passes the filter
    int m_deliveries = 0; ///< nested ones
};

} // namespace tarsil
