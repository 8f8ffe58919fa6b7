// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tarsil {

/// An axis of a V-g-f plot: its title (UTF-8), the values at its ends, and the number of equal
/// intervals. `min` is at the left end of the speed axis, at the lower end of the frequency axis,
/// and at the speed axis for the damping axis.
struct AxisValues
{
    std::string title;
    float min = 0;
    float max = 0;
    std::int16_t ticks = 0;

    bool operator==(const AxisValues&) const = default;
};

/// The bounds of all axes in the order vmin, vmax, fmin, fmax, gmin, gmax.
using PlotBounds = std::array<float, 6>;

/// The tick counts in the order speed, damping, frequency.
using PlotTicks = std::array<std::int16_t, 3>;

/// The three axes of a V-g-f plot; by default those of a new one. Speeds are KEAS, frequencies Hz,
/// dampings dimensionless (negative is stable). Values are not checked.
struct PlotAxes
{
    AxisValues speed {"V(keas)", 0, 700, 7};
    AxisValues frequency {"f(Hz)", 0, 50, 5};
    AxisValues damping {"g", 0, -0.25F, 5};

    PlotBounds bounds() const;
    void setBounds(const PlotBounds& bounds);
    PlotTicks ticks() const;
    void setTicks(const PlotTicks& ticks);

    bool operator==(const PlotAxes&) const = default;
};

} // namespace tarsil
