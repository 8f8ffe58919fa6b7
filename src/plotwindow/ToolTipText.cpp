// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/ToolTipText.h"

#include <QStringList>
#include <QTextDocument>

namespace tarsil {

QString toolTipText(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

QString toolTipWithKeys(const QString& text, const QList<QKeySequence>& keys)
{
    QStringList names;
    for (const QKeySequence& key : keys) {
        if (!key.isEmpty())
            names.append(key.toString(QKeySequence::NativeText));
    }
    return names.isEmpty() ? text
                           : QStringLiteral("%1 (%2)").arg(text, names.join(QStringLiteral(", ")));
}

} // namespace tarsil
