// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil::test {

/// The knots in a metre per second.
inline constexpr double knots = 1.94384449244;

} // namespace tarsil::test
