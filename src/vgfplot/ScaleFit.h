#pragma once

#include "model/PlotAxes.h"
#include "plot/Series.h"

namespace tarsil {

/// The steps that an axis can label. The speed axis labels whole numbers only, so other steps would
/// give wrong labels.
enum class Steps { Any, Whole };

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

/// Axes with round ticks that show all speeds and frequencies of the series from 0, with a little
/// room above the highest frequency, and dampings up to 0.5 on both sides of the speed axis (a
/// strongly damped mode must not flatten the others). The axes of a new plot when there are no
/// points. The speed axis always begins at 0, because only then are reference-speed marks at their
/// speeds.
PlotAxes fitAxes(const SeriesList& series);

} // namespace tarsil
