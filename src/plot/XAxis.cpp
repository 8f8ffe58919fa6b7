// SPDX-License-Identifier: Apache-2.0
#include "plot/XAxis.h"

#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "plot/AxisMetrics.h"
#include "plot/ValueMap.h"

namespace tarsil {

using axis::pixel;
using axis::thick;

namespace {

constexpr std::int16_t defaultSpeedIntervals = 7;
constexpr double defaultMaxSpeed = 700;

/// The letters of a label of digits, and a pixel around them. Digits extend from the baseline
/// upwards by less than three quarters of the em.
QRect lettersOf(const DeviceContext& context, const QString& text, QPoint top)
{
    const int width = context.textExtent(text, Font()).width();
    const int baseline = top.y() + context.textAscent(Font());
    const int height = roundToPixel(0.75 * pixelsOfPoints(Font().points));
    return {top.x() - width / 2 - 1, baseline - height - 1, width + 2, height + 2};
}

} // namespace

xAxis::xAxis() : PlotAxis(defaultSpeedIntervals, defaultMaxSpeed) { }

void xAxis::MoveToOrigin(int x, int y)
{
    setGeometry({QPoint(x, y - Height() / 2), geometry().size()});
}

void xAxis::paint(DeviceContext& context) const
{
    const double line = Height() / 2.0;
    const int end = Width() - 1;
    context.drawLine(pixel(0, line), pixel(end, line), axis::pen);
    context.drawLine(pixel(end, line + axis::endMark / 2), pixel(end, line - axis::endMark / 2),
                     axis::pen);
    drawTicks(context);
    for (const RefThick& mark : m_marks)
        drawMark(context, mark);
}

void xAxis::drawTicks(DeviceContext& context) const
{
    axis::requireIntervals(nThick(), "xAxis");
    const double line = Height() / 2.0;
    const ValueMap map(Min(), Max(), Width());
    for (int k = 1; k < nThick(); ++k) {
        const double column = map.divisionPixel(k, nThick());
        context.drawExactLine({column, line - thick / 2}, {column, line + thick / 2}, axis::pen);
        if (!m_hasLabelsInFront || context.hasFixedOrder())
            drawText(context, labelOf(k));
    }
}

xAxis::Label xAxis::labelOf(int k) const
{
    const ValueMap map(Min(), Max(), Width());
    return {pixel(map.divisionPixel(k, nThick()), Height() / 2.0 + thick / 2),
            QString::fromStdString(formatNumber(map.divisionValue(k, nThick()), "0"))};
}

void xAxis::drawText(DeviceContext& context, const Label& label)
{
    context.drawText(label.top, label.text, Font(), axis::textColor, TextAlignment::TopCenter);
}

void xAxis::drawLabelsInFront(DeviceContext& context) const
{
    if (context.hasFixedOrder())
        return;
    for (int k = 1; k < nThick(); ++k) {
        const Label label = labelOf(k);
        context.fillRectangle(lettersOf(context, label.text, label.top), axis::ground);
        drawText(context, label);
    }
}

void xAxis::drawMark(DeviceContext& context, const RefThick& mark) const
{
    if (Max() - Min() == 0)
        throw RunTimeError(ErrorNumber::DivisionByZero, "xAxis",
                           "the bounds of the speed axis are equal: " + shortestText(Min()));
    const double line = Height() / 2.0;
    const double column = ValueMap(Min(), Max(), Width()).lengthOf(static_cast<double>(mark.Speed));
    const QPointF top(column, line - 1.1 * thick);
    context.drawExactLine({column, line + 0.4 * thick}, top, axis::pen);
    context.drawText(pixel(top.x(), top.y()), mark.Caption, Font(), axis::textColor,
                     TextAlignment::BottomCenter);
}

void xAxis::AddRef(float speed, const QString& caption)
{
    m_marks.push_back({speed, caption});
    Draw(nullptr);
}

void xAxis::RemoveRef()
{
    m_marks.clear();
    Draw(nullptr);
}

void xAxis::ReadProperties(const PropertyBag& bag)
{
    readRange(bag, defaultSpeedIntervals, defaultMaxSpeed);
}

PropertyBag xAxis::WriteProperties() const
{
    return writtenRange();
}

} // namespace tarsil
