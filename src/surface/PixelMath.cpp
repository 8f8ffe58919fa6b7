// SPDX-License-Identifier: Apache-2.0
#include "surface/PixelMath.h"

#include <algorithm>

namespace tarsil {

namespace {

/// Rounds to the nearest whole number, ties to even: the sum has no bits left for a fraction.
/// Exact below 2^51; std::nearbyint, which calls a library, takes four times as long.
double nearestWhole(double number)
{
    constexpr double wholeOnly = 0x1.8p52;
    return number + wholeOnly - wholeOnly;
}

} // namespace

int roundToPixel(double position)
{
    constexpr double finest = 1024.0;
    constexpr double farAway = 1 << 26;
    const double bounded = std::clamp(position, -farAway, farAway);
    return static_cast<int>(nearestWhole(nearestWhole(bounded * finest) / finest));
}

} // namespace tarsil
