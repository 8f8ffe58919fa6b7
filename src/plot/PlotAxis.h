// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/PlotControl.h"
#include "plot/PropertyBag.h"

#include <cstdint>

namespace tarsil {

/// The common part of both axes: equal intervals between two bounds.
class PlotAxis : public PlotControl
{
public:
    std::int16_t nThick() const { return m_nThick; } ///< number of equal intervals
    void setNThick(std::int16_t count);
    double Min() const { return m_min; }
    void setMin(double value);
    double Max() const { return m_max; }
    void setMax(double value);

    const ChangedProperties& changedProperties() const { return m_changed; }

protected:
    PlotAxis(std::int16_t intervals, double max) : m_nThick(intervals), m_max(max) { }

    /// Keys "nThick", "Min" 0 and "Max", with the given defaults.
    void readRange(const PropertyBag& bag, std::int16_t intervals, double max);
    PropertyBag writtenRange() const;

    ChangedProperties& changed() { return m_changed; }

private:
    std::int16_t m_nThick;
    double m_min = 0;
    double m_max;
    ChangedProperties m_changed;
};

} // namespace tarsil
