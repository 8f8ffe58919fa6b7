// SPDX-License-Identifier: Apache-2.0
#include "app/PlainMessageBoxes.h"

#include <QEvent>
#include <QMessageBox>

namespace tarsil {

bool PlainMessageBoxes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish) { // before it is shown
        if (auto* const box = qobject_cast<QMessageBox*>(watched))
            box->setTextFormat(Qt::PlainText);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace tarsil
