// SPDX-License-Identifier: Apache-2.0
#include "plot/YAxis.h"

#include "base/numbers/NumberFormat.h"
#include "plot/AxisMetrics.h"
#include "plot/ValueMap.h"

namespace tarsil {

using axis::pixel;
using axis::thick;

namespace {

constexpr std::int16_t defaultFrequencyIntervals = 5;
constexpr double defaultMaxFrequency = 50;

} // namespace

yAxis::yAxis() : PlotAxis(defaultFrequencyIntervals, defaultMaxFrequency) { }

void yAxis::MoveToOrigin(int x, int y)
{
    const int top = m_direction ? y : y - Height();
    setGeometry({QPoint(x - Width() / 2, top), geometry().size()});
}

void yAxis::paint(DeviceContext& context) const
{
    const double line = Width() / 2.0;
    const int end = Height() - 1;
    context.drawLine(pixel(line, 0), pixel(line, end), axis::pen);
    const int farEnd = m_direction ? end : 0;
    context.drawLine(pixel(line, farEnd), pixel(line + axis::endMark, farEnd), axis::pen);
    axis::requireIntervals(nThick(), "yAxis");
    const double upper = m_direction ? Min() : Max();
    const double lower = m_direction ? Max() : Min();
    const ValueMap map(upper, lower, Height());
    const std::string pattern = m_thickFormat.toStdString();
    for (int k = 1; k < nThick(); ++k) {
        const double row = map.divisionPixel(k, nThick());
        context.drawExactLine({line, row}, {line + thick, row}, axis::pen);
        const double value = map.divisionValue(k, nThick());
        const QString label = QString::fromStdString(formatNumber(value, pattern));
        const int height = context.textExtent(label, Font()).height();
        context.drawText(pixel(line - thick / 2, row - height / 2.0), label, Font(),
                         axis::textColor, TextAlignment::TopRight);
    }
}

void yAxis::setDirection(bool minimumAtTop)
{
    m_direction = minimumAtTop;
    changed().add(QStringLiteral("Direction"));
}

void yAxis::setThickFormat(const QString& pattern)
{
    m_thickFormat = pattern;
    changed().add(QStringLiteral("ThickFormat"));
}

void yAxis::ReadProperties(const PropertyBag& bag)
{
    readRange(bag, defaultFrequencyIntervals, defaultMaxFrequency);
    m_direction = readProperty(bag, QStringLiteral("Direction"), false);
    m_thickFormat = readProperty(bag, QStringLiteral("ThickFormat"), QStringLiteral("0.00"));
}

PropertyBag yAxis::WriteProperties() const
{
    PropertyBag bag = writtenRange();
    bag[QStringLiteral("Direction")] = m_direction;
    bag[QStringLiteral("ThickFormat")] = m_thickFormat;
    return bag;
}

} // namespace tarsil
