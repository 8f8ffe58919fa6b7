// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyledItemDelegate>

namespace tarsil {

struct Series;

/// Draws the line of a series across the middle of a rectangle, as in the plot.
void drawLineSample(QPainter& painter, const QRect& rectangle, const Series& series);

/// Shows the lines of the series in a column of the grid.
class LineSampleDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

} // namespace tarsil
