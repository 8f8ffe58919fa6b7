#pragma once

#include <QStyledItemDelegate>

namespace tarsil {

/// Edits the labels of a tree without writing into them: what the user typed goes to whoever knows
/// what the label stands for, and may be refused.
class LabelDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

Q_SIGNALS:
    /// The user has given a label a text, which may be the one it had.
    void renamed(const QModelIndex& index, const QString& text) const;
};

} // namespace tarsil
