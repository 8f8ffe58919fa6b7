// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/numbers/ColorValue.h"

#include <QColor>

namespace tarsil {

/// Converts a stored colour, red in the low byte, to a QColor.
inline QColor qtColor(ColorValue color)
{
    return {color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF};
}

} // namespace tarsil
