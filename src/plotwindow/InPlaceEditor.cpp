// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/InPlaceEditor.h"

#include <QApplication>
#include <QKeyEvent>

namespace tarsil {

namespace {

bool isReturn(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

} // namespace

InPlaceEditor::InPlaceEditor(QWidget* parent) : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget* /*before*/, QWidget* now) { followFocus(now); });
}

/// Focus still changes while the children are destroyed; the editor must not react any more.
InPlaceEditor::~InPlaceEditor()
{
    qApp->disconnect(this);
}

void InPlaceEditor::watch(QWidget& field)
{
    field.installEventFilter(this);
}

/// Across windows too: a dialog belongs to its opener.
bool InPlaceEditor::contains(const QWidget* widget) const
{
    while (widget != nullptr && widget != this)
        widget = widget->parentWidget();
    return widget == this;
}

/// Does nothing while another program has the focus: editing continues afterwards.
void InPlaceEditor::followFocus(QWidget* now)
{
    if (now != nullptr && isVisible() && !contains(now))
        Q_EMIT left();
}

bool InPlaceEditor::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey)
        return QFrame::eventFilter(watched, event);
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool isEscape = key.key() == Qt::Key_Escape;
    const bool isCommit = isReturn(key) && key.modifiers().testFlag(Qt::ControlModifier);
    if (!isEscape && !isCommit)
        return QFrame::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress && isEscape)
        Q_EMIT cancelled();
    else if (event->type() == QEvent::KeyPress)
        Q_EMIT committed();
    return true;
}

} // namespace tarsil
