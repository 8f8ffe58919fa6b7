// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plot/Series.h"

namespace tarsil {

/// The steps that an axis can label. The labels of speeds are whole, those of frequencies have two
/// decimals, those of dampings three; finer steps give wrong labels. `PlainWhole` is whole without
/// 25, 250 and so on, whose multiples are read less easily.
enum class Steps { Any, Whole, PlainWhole, Hundredths, Thousandths };

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

/// Axes with round ticks that show the series:
/// - all speeds from 0, because only then are reference-speed marks at their speeds;
/// - all frequencies from 0, with a little room above the highest. If one is almost 0, the axis
///   begins a step below 0, because a curve on the speed axis is invisible;
/// - the dampings from 0.1 to -0.4, or less if the data need less: a strongly damped mode must not
///   flatten the others. Zero is a labelled tick at least a step below the speed axis.
/// The titles are those of `axes`; without points everything is.
PlotAxes fitAxes(const SeriesList& series, PlotAxes axes = {});

} // namespace tarsil
