// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

#include <array>

namespace tarsil {

/// The styles that tell files or curves apart, in the order of use. Long dashes come last: dashes
/// begin anew at every point, and between close points there is no room for their gaps.
inline constexpr std::array lineStylesInUse = {penstyle::solid, penstyle::dot, penstyle::dashDot,
                                               penstyle::dashDotDot, penstyle::dash};

} // namespace tarsil
