// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/LineSample.h"

#include "datacontrol/SeriesGridModel.h"
#include "surface/PainterContext.h"

#include <QPainter>

#include <algorithm>

namespace tarsil {

/// A curve without a line is shown as a square of its colour, which its markers may have.
void drawLineSample(QPainter& painter, const QRect& rectangle, const Series& series)
{
    constexpr int margin = 3;
    constexpr QSize square {7, 7};
    const QPoint center = rectangle.center();
    PainterContext context(painter);
    if (series.LineStyle == penstyle::none) {
        context.fillRectangle({center - QPoint(3, 3), square}, series.ColorIndex);
        return;
    }
    const int width = std::clamp<int>(series.LineWidth, 1, std::max(rectangle.height() - 2, 1));
    context.drawLine({rectangle.left() + margin, center.y()},
                     {rectangle.right() - margin, center.y()},
                     {series.LineStyle, width, series.ColorIndex});
    context.flush();
}

void LineSampleDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const auto* const model = qobject_cast<const SeriesGridModel*>(index.model());
    const PlotRow* const row = model != nullptr ? model->row(index.row()) : nullptr;
    if (row == nullptr)
        return;
    const QRect ground = option.rect.adjusted(2, 2, -2, -2);
    painter->fillRect(ground, Qt::white); // as in the plot
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    drawLineSample(*painter, ground, row->series);
    painter->restore();
}

} // namespace tarsil
