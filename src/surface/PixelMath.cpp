// SPDX-License-Identifier: Apache-2.0
#include "surface/PixelMath.h"

#include <algorithm>
#include <cmath>

namespace tarsil {

int roundToPixel(double position)
{
    constexpr double finest = 1024.0;
    constexpr double farAway = 1 << 26;
    const double bounded = std::clamp(position, -farAway, farAway);
    return static_cast<int>(std::nearbyint(std::nearbyint(bounded * finest) / finest));
}

} // namespace tarsil
