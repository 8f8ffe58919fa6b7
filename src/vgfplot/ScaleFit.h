// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plot/Series.h"

namespace tarsil {

/// The steps that an axis can label. The labels of speeds are whole, those of frequencies have two
/// decimals, those of dampings three; finer steps give wrong labels.
enum class Steps { Any, Whole, Hundredths, Thousandths };

/// The smallest of these steps; 0 for any.
double smallestStep(Steps steps);

/// The smallest round step (1, 2, 2.5 or 5 times a power of ten) that is at least `least`.
double roundStep(double least, Steps steps = Steps::Any);

/// A round range that contains `low` to `high`, in four to ten steps of 1, 2, 2.5 or 5 times a
/// power of ten. An empty range is extended upwards. Whole steps are at least 1, so a short range
/// has fewer of them.
struct RoundRange
{
    double low;
    double high;
    int steps;
};
RoundRange roundRange(double low, double high, Steps steps = Steps::Any);

/// The same with the nearest round bounds, so the range may be a little shorter than `low` to
/// `high`; it has at least one step.
RoundRange nearestRoundRange(double low, double high, Steps steps);

/// Axes with round ticks that show all speeds and frequencies of the series from 0, with a little
/// room above the highest frequency, and dampings up to 0.5 on both sides of the speed axis (a
/// strongly damped mode must not flatten the others). The speed axis always begins at 0, because
/// only then are reference-speed marks at their speeds. The titles are those of `axes`; without
/// points everything is.
PlotAxes fitAxes(const SeriesList& series, PlotAxes axes = {});

} // namespace tarsil
