// SPDX-License-Identifier: Apache-2.0
#include "surface/DeviceContext.h"

#include "surface/PixelMath.h"

namespace tarsil {

namespace {

QPoint roundedToPixel(QPointF position)
{
    return {roundToPixel(position.x()), roundToPixel(position.y())};
}

} // namespace

DeviceContext::~DeviceContext() = default;

void DeviceContext::drawExactLine(QPointF from, QPointF to, const Pen& pen)
{
    drawLine(roundedToPixel(from), roundedToPixel(to), pen);
}

QRect textRectangle(QPoint reference, QSize extent, int ascent, TextAlignment alignment)
{
    QPoint corner = reference;
    switch (alignment) {
    case TextAlignment::TopLeft:
        break;
    case TextAlignment::TopRight:
        corner.rx() -= extent.width();
        break;
    case TextAlignment::TopCenter:
        corner.rx() -= extent.width() / 2;
        break;
    case TextAlignment::BottomCenter:
        corner -= QPoint(extent.width() / 2, extent.height());
        break;
    case TextAlignment::BaselineLeft:
        corner.ry() -= ascent;
        break;
    }
    return {corner, extent};
}

} // namespace tarsil
