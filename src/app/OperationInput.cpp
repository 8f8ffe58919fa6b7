// SPDX-License-Identifier: Apache-2.0
#include "app/OperationInput.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace tarsil {

namespace {

bool isEscape(const QEvent& event)
{
    return static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

/// Whether a move of the mouse continues a kept one.
bool continues(const QEvent& last, const QEvent& next)
{
    return last.type() == QEvent::MouseMove && next.type() == QEvent::MouseMove
        && static_cast<const QMouseEvent&>(last).buttons()
        == static_cast<const QMouseEvent&>(next).buttons();
}

} // namespace

OperationInput::OperationInput(const QAbstractButton& stop) : m_stop(stop)
{
    connect(&stop, &QAbstractButton::clicked, this, [this] { m_isStopped = true; });
}

void OperationInput::paintWindows()
{
    m_onStop = {};
    processEvents(Phase::Keeping);
}

bool OperationInput::paintStoppable()
{
    m_isStopped = false;
    processEvents(Phase::Stoppable);
    return m_isStopped;
}

void OperationInput::processEvents(Phase phase)
{
    const Phase before = std::exchange(m_phase, phase);
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::processEvents();
    m_phase = before;
    if (!m_kept.empty())
        deliverLater();
    else if (m_phase == Phase::Idle)
        QCoreApplication::instance()->removeEventFilter(this);
}

/// Input reaches a window of the platform first, which passes it to widgets. The others are
/// shortcuts and the texts of input methods.
bool OperationInput::eventFilter(QObject* receiver, QEvent* event)
{
    if (event == m_delivered) {
        m_delivered = nullptr;
        return false;
    }
    const bool isFirst = receiver->isWindowType() || event->type() == QEvent::Shortcut
        || event->type() == QEvent::InputMethod;
    return isFirst && filterInput(*receiver, *event);
}

bool OperationInput::filterInput(QObject& receiver, QEvent& event)
{
    switch (event.type()) {
    case QEvent::ShortcutOverride: // asks a widget whether it needs the key, and changes nothing
        m_isStopped = m_isStopped || (m_phase == Phase::Stoppable && isEscape(event));
        return m_phase == Phase::Stoppable;
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::Wheel:
        keepOrDrop(receiver, event);
        return true;
    case QEvent::KeyRelease: // also of a kept press
        keep(receiver, event);
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
        return filterMouse(receiver, static_cast<QMouseEvent&>(event));
    case QEvent::Close:
        return filterClose(receiver, event);
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease: // Qt makes events of the mouse of what is ignored
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        event.ignore();
        return true;
    default:
        return false;
    }
}

bool OperationInput::filterMouse(QObject& receiver, const QMouseEvent& event)
{
    const Qt::MouseButton button = event.button();
    if (event.type() == QEvent::MouseMove) {
        if ((event.buttons() & ~m_dropped) != Qt::NoButton && !m_onStop)
            keep(receiver, event);
        return !m_onStop;
    }
    if (event.type() == QEvent::MouseButtonRelease) {
        const bool isOfStop = m_onStop.testFlag(button);
        if (!isOfStop && !m_dropped.testFlag(button))
            keep(receiver, event);
        m_onStop.setFlag(button, false);
        m_dropped.setFlag(button, false);
        return !isOfStop;
    }
    const bool isStoppable = m_phase == Phase::Stoppable;
    m_onStop.setFlag(button, isStoppable && isOnStop(event));
    m_dropped.setFlag(button, isStoppable && !m_onStop.testFlag(button));
    if (!isStoppable)
        keep(receiver, event);
    return !m_onStop.testFlag(button);
}

/// A window that a delivered event closes is not closed by the user.
bool OperationInput::filterClose(QObject& receiver, QEvent& event)
{
    if (m_phase == Phase::Idle && m_deliveries > 0)
        return false;
    keepOrDrop(receiver, event);
    event.ignore();
    return true;
}

void OperationInput::keepOrDrop(QObject& receiver, const QEvent& event)
{
    if (m_phase != Phase::Stoppable)
        keep(receiver, event);
}

/// Of several moves of the mouse the last one is kept.
void OperationInput::keep(QObject& receiver, const QEvent& event)
{
    if (!m_kept.empty() && m_kept.back().receiver == &receiver
        && continues(*m_kept.back().event, event))
        m_kept.pop_back();
    m_kept.push_back(
        {&receiver, QGuiApplication::modalWindow(), std::unique_ptr<QEvent>(event.clone())});
}

bool OperationInput::isOnStop(const QMouseEvent& event) const
{
    return m_stop.isVisible()
        && m_stop.rect().contains(m_stop.mapFromGlobal(event.globalPosition().toPoint()));
}

void OperationInput::deliverLater()
{
    QMetaObject::invokeMethod(this, &OperationInput::deliverNext, Qt::QueuedConnection);
}

/// Delivers one event, because it may open a dialog or begin another operation. New input is kept
/// until no older one is left.
void OperationInput::deliverNext()
{
    if (m_phase != Phase::Idle || m_kept.empty())
        return;
    const Kept next = std::move(m_kept.front());
    m_kept.pop_front();
    if (m_kept.empty())
        QCoreApplication::instance()->removeEventFilter(this);
    else
        deliverLater();
    if (isLost(next))
        return;
    ++m_deliveries;
    m_delivered = next.event.get();
    QCoreApplication::sendEvent(next.receiver, next.event.get());
    m_delivered = nullptr;
    --m_deliveries;
}

bool OperationInput::isLost(const Kept& kept)
{
    const QWindow* const modal = QGuiApplication::modalWindow();
    const auto* const window = qobject_cast<const QWindow*>(kept.receiver.data());
    if (kept.receiver == nullptr || (window != nullptr && !window->isVisible()))
        return true;
    const bool isInModal = modal != nullptr && window != nullptr
        && (window == modal || modal->isAncestorOf(window, QWindow::IncludeTransients));
    return modal != nullptr && modal != kept.modal && !isInModal;
}

} // namespace tarsil
