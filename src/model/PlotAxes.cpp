// SPDX-License-Identifier: Apache-2.0
#include "model/PlotAxes.h"

namespace tarsil {

PlotBounds PlotAxes::bounds() const
{
    return {speed.min, speed.max, frequency.min, frequency.max, damping.min, damping.max};
}

void PlotAxes::setBounds(const PlotBounds& bounds)
{
    speed.min = bounds[0];
    speed.max = bounds[1];
    frequency.min = bounds[2];
    frequency.max = bounds[3];
    damping.min = bounds[4];
    damping.max = bounds[5];
}

PlotTicks PlotAxes::ticks() const
{
    return {speed.ticks, damping.ticks, frequency.ticks};
}

void PlotAxes::setTicks(const PlotTicks& ticks)
{
    speed.ticks = ticks[0];
    damping.ticks = ticks[1];
    frequency.ticks = ticks[2];
}

} // namespace tarsil
