// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/ColorValue.h"

#include <QString>

#include <cstdint>

namespace tarsil {

/// A straight reference line of a canvas, in the units of its axes (speed, and g or f).
struct RefLine
{
    std::int16_t LineWidth = 0; ///< pixels; 0 is a line of one pixel
    std::int32_t LineStyle = 0; ///< pen style number
    ColorValue ColorIndex = 0; ///< the colour itself
    QString Caption; ///< written near the second point
    float Y2 = 0;
    float X2 = 0;
    float Y1 = 0;
    float X1 = 0;

    bool operator==(const RefLine&) const = default;
};

} // namespace tarsil
