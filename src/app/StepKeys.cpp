// SPDX-License-Identifier: Apache-2.0
#include "app/StepKeys.h"

#include "plotwindow/InPlaceEditor.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>

namespace tarsil {

namespace {

bool isInPlace(const QWidget& field)
{
    for (const QWidget* outer = field.parentWidget(); outer != nullptr;
         outer = outer->parentWidget()) {
        if (qobject_cast<const QAbstractItemView*>(outer) != nullptr
            || qobject_cast<const InPlaceEditor*>(outer) != nullptr)
            return true;
    }
    return false;
}

/// Whether the key is one of undo or redo, of which the field has no step.
bool isWithoutStep(const QKeyEvent& key, const QLineEdit& field)
{
    return (key.matches(QKeySequence::Undo) && !field.isUndoAvailable())
        || (key.matches(QKeySequence::Redo) && !field.isRedoAvailable());
}

} // namespace

/// A field accepts these keys in any case; an ignored one becomes the shortcut of a command.
bool StepKeys::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QObject::eventFilter(watched, event);
    const auto* const field = qobject_cast<const QLineEdit*>(watched);
    if (field == nullptr || !isWithoutStep(*static_cast<QKeyEvent*>(event), *field)
        || isInPlace(*field))
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

} // namespace tarsil
