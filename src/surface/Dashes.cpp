// SPDX-License-Identifier: Apache-2.0
#include "surface/Dashes.h"

namespace tarsil {

bool isDashed(const Pen& pen)
{
    return pen.width <= 1 && pen.style >= penstyle::dash && pen.style <= penstyle::dashDotDot;
}

QList<qreal> dashPattern(const Pen& pen)
{
    if (!isDashed(pen))
        return {};
    switch (pen.style) {
    case penstyle::dash:
        return {18, 6};
    case penstyle::dot:
        return {3, 3};
    case penstyle::dashDot:
        return {9, 6, 3, 6};
    default:
        return {9, 3, 3, 3, 3, 3};
    }
}

} // namespace tarsil
