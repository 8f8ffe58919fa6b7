// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstdint>

namespace tarsil {

/// A colour in every record and file: 32-bit RGB, red in the low byte.
using ColorValue = std::int32_t;

constexpr ColorValue rgb(int red, int green, int blue)
{
    return red | (green << 8) | (blue << 16);
}

/// The colours of new series, used in this order and then from the start again.
constexpr std::array<ColorValue, 7> BaseColors = {
    rgb(128, 128, 128), rgb(0, 0, 255),   rgb(0, 128, 0),  rgb(255, 0, 0),
    rgb(0, 191, 191),   rgb(191, 0, 191), rgb(191, 191, 0)};

} // namespace tarsil
