// SPDX-License-Identifier: Apache-2.0
#include "app/KeysInToolTips.h"

#include "plotwindow/ToolTipText.h"

#include <QEvent>
#include <QPushButton>

namespace tarsil {

namespace {

/// Adds the key of a button: Alt and the letter that its caption underlines.
void showKey(QPushButton& button)
{
    if (button.shortcut().isEmpty())
        return;
    const QString caption = button.text().remove(u'&');
    const QString text = button.toolTip().isEmpty() ? caption : button.toolTip();
    button.setToolTip(toolTipWithKeys(text, {button.shortcut()}));
}

} // namespace

bool KeysInToolTips::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish) { // once, before it is shown
        if (auto* const button = qobject_cast<QPushButton*>(watched))
            showKey(*button);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarsil
