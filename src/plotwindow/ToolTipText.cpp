// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/ToolTipText.h"

#include <QTextDocument>

namespace tarsil {

QString toolTipText(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace tarsil
