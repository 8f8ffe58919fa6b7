// SPDX-License-Identifier: Apache-2.0
#include "app/StopFilter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QSinglePointEvent>

namespace tarsil {

StopFilter::StopFilter(const QAbstractButton& button) : m_button(button)
{
    connect(&button, &QAbstractButton::clicked, this, [this] { m_isStopped = true; });
    QApplication::instance()->installEventFilter(this);
}

StopFilter::~StopFilter()
{
    QApplication::instance()->removeEventFilter(this);
}

/// Releases of mouse and keys pass: they end what began before.
bool StopFilter::eventFilter(QObject* receiver, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        m_isStopped = m_isStopped || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
        return true;
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
        return true;
    case QEvent::Close:
        event->ignore();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        return !isOnButton(*event);
    default:
        return QObject::eventFilter(receiver, event);
    }
}

bool StopFilter::isOnButton(const QEvent& event) const
{
    const auto* const pointer = dynamic_cast<const QSinglePointEvent*>(&event);
    return pointer != nullptr && m_button.isVisible()
        && m_button.rect().contains(m_button.mapFromGlobal(pointer->globalPosition().toPoint()));
}

} // namespace tarsil
