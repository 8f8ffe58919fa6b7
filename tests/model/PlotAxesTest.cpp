// SPDX-License-Identifier: Apache-2.0
#include "model/PlotAxes.h"

#include <gtest/gtest.h>

using tarsil::AxisValues;
using tarsil::PlotAxes;
using tarsil::PlotBounds;
using tarsil::PlotTicks;

TEST(PlotAxes, areThoseOfANewPlotAtFirst)
{
    const PlotAxes axes;
    EXPECT_EQ(axes.speed, (AxisValues {"V(keas)", 0, 700, 7}));
    EXPECT_EQ(axes.frequency, (AxisValues {"f(Hz)", 0, 50, 5}));
    EXPECT_EQ(axes.damping, (AxisValues {"g", 0, -0.25F, 5}));
}

TEST(PlotAxes, acceptBoundsInTheOrderSpeedFrequencyDamping)
{
    PlotAxes axes;
    axes.setBounds({1, 2, 3, 4, 5, 6});
    EXPECT_EQ(axes.speed, (AxisValues {"V(keas)", 1, 2, 7}));
    EXPECT_EQ(axes.frequency, (AxisValues {"f(Hz)", 3, 4, 5}));
    EXPECT_EQ(axes.damping, (AxisValues {"g", 5, 6, 5}));
    EXPECT_EQ(axes.bounds(), (PlotBounds {1, 2, 3, 4, 5, 6}));
}

TEST(PlotAxes, acceptTicksInTheOrderSpeedDampingFrequency)
{
    PlotAxes axes;
    axes.setTicks({1, 2, 3});
    EXPECT_EQ(axes.speed, (AxisValues {"V(keas)", 0, 700, 1}));
    EXPECT_EQ(axes.damping, (AxisValues {"g", 0, -0.25F, 2}));
    EXPECT_EQ(axes.frequency, (AxisValues {"f(Hz)", 0, 50, 3}));
    EXPECT_EQ(axes.ticks(), (PlotTicks {1, 2, 3}));
}
