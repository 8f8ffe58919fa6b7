// SPDX-License-Identifier: Apache-2.0
#include "plot/PlotAxis.h"

namespace tarsil {

void PlotAxis::setNThick(std::int16_t count)
{
    m_nThick = count;
    m_changed.add(QStringLiteral("nThick"));
}

void PlotAxis::setMin(double value)
{
    m_min = value;
    m_changed.add(QStringLiteral("Min"));
}

void PlotAxis::setMax(double value)
{
    m_max = value;
    m_changed.add(QStringLiteral("Max"));
}

void PlotAxis::readRange(const PropertyBag& bag, std::int16_t intervals, double max)
{
    m_nThick = static_cast<std::int16_t>(readProperty(bag, QStringLiteral("nThick"), intervals));
    m_min = readProperty(bag, QStringLiteral("Min"), 0.0);
    m_max = readProperty(bag, QStringLiteral("Max"), max);
}

PropertyBag PlotAxis::writtenRange() const
{
    return {{QStringLiteral("nThick"), m_nThick},
            {QStringLiteral("Min"), m_min},
            {QStringLiteral("Max"), m_max}};
}

} // namespace tarsil
