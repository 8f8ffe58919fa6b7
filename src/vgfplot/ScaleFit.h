#pragma once

#include "model/PlotAxes.h"
#include "plot/Series.h"

namespace tarsil {

/// Which steps an axis can label: the speed axis writes whole numbers, so that between others its
/// labels would stand at values that they do not name.
enum class Steps { Any, Whole };

/// Round numbers from `low` to at least `high`: step 1, 2, 2.5 or 5 times a power of ten, in four
/// to ten steps. A range without width is widened upwards. Whole steps are 1 at least, so that a
/// short range has fewer of them.
struct RoundRange
{
    double low;
    double high;
    int steps;
};
RoundRange roundRange(double low, double high, Steps steps = Steps::Any);

/// The axes, with every tick at a round number, that show all speeds and frequencies of the series
/// from 0 on, with a little room above the highest frequency, and their dampings to both sides of
/// the speed axis up to 0.5 (a strongly damped mode must not squeeze the rest). Without any point,
/// those of a new plot. The speed axis begins at 0 always: only there do reference-speed marks
/// stand at their data position.
PlotAxes fitAxes(const SeriesList& series);

} // namespace tarsil
