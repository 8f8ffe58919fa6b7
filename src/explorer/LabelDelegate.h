// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace tarsil {

/// Edits labels of a tree without changing them: the typed text is passed on by a signal, and its
/// receiver may refuse it.
class LabelDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user has entered a text for a label, maybe the same as before.
    void renamed(const QModelIndex& index, const QString& text) const;
};

} // namespace tarsil
