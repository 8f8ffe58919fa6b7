// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

namespace tarsil::test {

// Black pens: a solid one of one pixel and a dashed one.

inline constexpr Pen thin {penstyle::solid, 1, 0};
inline constexpr Pen dashed {penstyle::dash, 0, 0};

} // namespace tarsil::test
