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
        context.drawLine(pixel(column, line - thick / 2), pixel(column, line + thick / 2),
                         axis::pen);
        const double value = map.divisionValue(k, nThick());
        const QString label = QString::fromStdString(formatNumber(value, "0"));
        context.drawText(pixel(column, line + thick / 2), label, Font(), axis::textColor,
                         TextAlignment::TopCenter);
    }
}

void xAxis::drawMark(DeviceContext& context, const RefThick& mark) const
{
    if (Max() - Min() == 0)
        throw RunTimeError(ErrorNumber::DivisionByZero, "xAxis",
                           "the bounds of the speed axis are equal: " + shortestText(Min()));
    const double line = Height() / 2.0;
    const double column = ValueMap(Min(), Max(), Width()).lengthOf(static_cast<double>(mark.Speed));
    const QPoint top = pixel(column, line - 1.1 * thick);
    context.drawLine(pixel(column, line + 0.4 * thick), top, axis::pen);
    context.drawText(top, mark.Caption, Font(), axis::textColor, TextAlignment::BottomCenter);
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
