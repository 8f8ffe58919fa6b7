#include "plot/XAxis.h"

#include "plot/AxisMetrics.h"
#include "runtime/NumberFormat.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

namespace tarsil {

using axis::pixel;
using axis::thick;

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
    axis::requireIntervals(m_nThick, "xAxis");
    const double line = Height() / 2.0;
    const double pixelStep = static_cast<double>(Width()) / m_nThick;
    const double valueStep = (m_max - m_min) / m_nThick;
    for (int k = 1; k < m_nThick; ++k) {
        const double column = k * pixelStep;
        context.drawLine(pixel(column, line - thick / 2), pixel(column, line + thick / 2),
                         axis::pen);
        const QString label = QString::fromStdString(formatNumber(m_min + k * valueStep, "0"));
        context.drawText(pixel(column, line + thick / 2), label, Font(), axis::textColor,
                         TextAlignment::TopCenter);
    }
}

void xAxis::drawMark(DeviceContext& context, const RefThick& mark) const
{
    const double range = m_max - m_min;
    if (range == 0)
        throw RunTimeError(ErrorNumber::DivisionByZero, "xAxis",
                           "the bounds of the speed axis are equal: " + shortestText(m_min));
    const double line = Height() / 2.0;
    const double column = static_cast<double>(mark.Speed) * Width() / range;
    const QPoint top = pixel(column, line - 1.1 * thick);
    context.drawLine(pixel(column, line + 0.4 * thick), top, axis::pen);
    context.drawText(top, mark.Caption, Font(), axis::textColor, TextAlignment::BottomCenter);
}

QMargins xAxis::overhang() const
{
    return {80, 10, 160, 10}; // labels and captions centred on the ends
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

void xAxis::setNThick(std::int16_t count)
{
    m_nThick = count;
    m_changed.mark(QStringLiteral("nThick"));
}

void xAxis::setMin(double value)
{
    m_min = value;
    m_changed.mark(QStringLiteral("Min"));
}

void xAxis::setMax(double value)
{
    m_max = value;
    m_changed.mark(QStringLiteral("Max"));
}

void xAxis::ReadProperties(const PropertyBag& bag)
{
    m_nThick = static_cast<std::int16_t>(readProperty(bag, QStringLiteral("nThick"), 7));
    m_min = readProperty(bag, QStringLiteral("Min"), 0.0);
    m_max = readProperty(bag, QStringLiteral("Max"), 700.0);
}

PropertyBag xAxis::WriteProperties() const
{
    return {{QStringLiteral("nThick"), m_nThick},
            {QStringLiteral("Min"), m_min},
            {QStringLiteral("Max"), m_max}};
}

} // namespace tarsil
