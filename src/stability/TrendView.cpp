// SPDX-License-Identifier: Apache-2.0
#include "stability/TrendView.h"

#include "surface/PainterContext.h"

#include <QPainter>

#include <utility>

namespace tarsil {

TrendView::TrendView(QWidget* parent) : QWidget(parent), m_plot(FlutterTrend())
{
    setAttribute(Qt::WA_OpaquePaintEvent); // every pixel is painted
    setMinimumSize(420, 300);
    setAccessibleName(tr("Lowest starts of instability of the ticked modal evolutions"));
}

void TrendView::setTrend(FlutterTrend trend)
{
    m_plot.setTrend(std::move(trend));
    update();
}

QSize TrendView::sizeHint() const
{
    return {900, 560};
}

void TrendView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    PainterContext context(painter);
    m_plot.Draw(context);
    context.flush();
}

void TrendView::resizeEvent(QResizeEvent* /*event*/)
{
    m_plot.resize(size());
}

} // namespace tarsil
