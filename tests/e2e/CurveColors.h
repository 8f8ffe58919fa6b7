// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QRgb>

namespace tarsil::test {

// The colours of the curves of a plot.

inline constexpr QRgb blue = qRgb(0, 0, 255); // of the second curve
inline constexpr QRgb green = qRgb(0, 128, 0); // of the third
inline constexpr QRgb cyan = qRgb(0, 191, 191); // of the fifth

} // namespace tarsil::test
