// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterTrend.h"

#include <string>

namespace tarsil {

/// The bounds of an axis, its number of equal intervals, and the pattern of its numbers
/// (`formatNumber`).
struct TrendRange
{
    double low = 0;
    double high = 1;
    int steps = 1;
    std::string pattern = "0";
};

/// The axes of a comparison.
struct TrendScales
{
    TrendRange abscissa; ///< numbers, or categories: half a unit beyond the first and the last
    TrendRange speed; ///< KEAS
    TrendRange frequency; ///< Hz
};

/// Axes with round bounds that contain every drawn point and required speed with room around them.
TrendScales scalesOf(const FlutterTrend& trend);

} // namespace tarsil
