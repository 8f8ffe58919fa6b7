#include "plot/YAxis.h"

#include "plot/AxisMetrics.h"
#include "runtime/NumberFormat.h"

namespace tarsil {

using axis::pixel;
using axis::thick;

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
    axis::requireIntervals(m_nThick, "yAxis");
    const double pixelStep = static_cast<double>(Height()) / m_nThick;
    const double valueStep = (m_max - m_min) / m_nThick;
    const std::string pattern = m_thickFormat.toStdString();
    for (int k = 1; k < m_nThick; ++k) {
        const double row = k * pixelStep;
        context.drawLine(pixel(line, row), pixel(line + thick, row), axis::pen);
        const double value = m_direction ? m_min + k * valueStep : m_max - k * valueStep;
        const QString label = QString::fromStdString(formatNumber(value, pattern));
        const int height = context.textExtent(label, Font()).height();
        context.drawText(pixel(line - thick / 2, row - height / 2.0), label, Font(),
                         axis::textColor, TextAlignment::TopRight);
    }
}

QMargins yAxis::overhang() const
{
    return {40, 10, 0, 10}; // long labels, and labels near the ends
}

void yAxis::setNThick(std::int16_t count)
{
    m_nThick = count;
    m_changed.mark(QStringLiteral("nThick"));
}

void yAxis::setMin(double value)
{
    m_min = value;
    m_changed.mark(QStringLiteral("Min"));
}

void yAxis::setMax(double value)
{
    m_max = value;
    m_changed.mark(QStringLiteral("Max"));
}

void yAxis::setDirection(bool minimumAtTop)
{
    m_direction = minimumAtTop;
    m_changed.mark(QStringLiteral("Direction"));
}

void yAxis::setThickFormat(const QString& pattern)
{
    m_thickFormat = pattern;
    m_changed.mark(QStringLiteral("ThickFormat"));
}

void yAxis::ReadProperties(const PropertyBag& bag)
{
    m_nThick = static_cast<std::int16_t>(readProperty(bag, QStringLiteral("nThick"), 5));
    m_min = readProperty(bag, QStringLiteral("Min"), 0.0);
    m_max = readProperty(bag, QStringLiteral("Max"), 50.0);
    m_direction = readProperty(bag, QStringLiteral("Direction"), false);
    m_thickFormat = readProperty(bag, QStringLiteral("ThickFormat"), QStringLiteral("0.00"));
}

PropertyBag yAxis::WriteProperties() const
{
    return {{QStringLiteral("nThick"), m_nThick},
            {QStringLiteral("Min"), m_min},
            {QStringLiteral("Max"), m_max},
            {QStringLiteral("Direction"), m_direction},
            {QStringLiteral("ThickFormat"), m_thickFormat}};
}

} // namespace tarsil
