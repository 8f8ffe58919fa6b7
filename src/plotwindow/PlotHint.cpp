// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/PlotHint.h"

#include "vgfplot/EvmPlot.h"

#include <QPainter>

namespace tarsil {

namespace {

constexpr int padding = 12;
constexpr double cornerRadius = 6;

// Pictures are white in every desktop theme.
const QColor textColor(70, 70, 70);
const QColor frameColor(190, 190, 190);

} // namespace

void paintHint(const QString& text, const EvmPlot& plot, QPainter& painter)
{
    if (text.isEmpty() || !plot.rows().isEmpty())
        return;
    const QRect canvas = plot.parts().vfPlot.geometry();
    const QRect space = canvas.adjusted(2 * padding, 2 * padding, -2 * padding, -2 * padding);
    constexpr int alignment = Qt::AlignCenter | Qt::TextWordWrap;
    const QRect needed = painter.boundingRect(space, alignment, text);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(frameColor);
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(needed.adjusted(-padding, -padding, padding, padding), cornerRadius,
                            cornerRadius);
    painter.setPen(textColor);
    painter.drawText(space, alignment, text);
    painter.restore();
}

} // namespace tarsil
