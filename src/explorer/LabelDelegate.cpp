// SPDX-License-Identifier: Apache-2.0
#include "explorer/LabelDelegate.h"

#include <QLineEdit>

namespace tarsil {

void LabelDelegate::setModelData(QWidget* editor, QAbstractItemModel* /*model*/,
                                 const QModelIndex& index) const
{
    const auto* const line = qobject_cast<QLineEdit*>(editor);
    if (line != nullptr)
        Q_EMIT renamed(index, line->text());
}

} // namespace tarsil
