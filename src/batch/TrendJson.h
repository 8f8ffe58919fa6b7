// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterTrend.h"

#include <string>

namespace tarsil::batch {

/// A comparison of evolutions as JSON, with `program`, the name and version of the program.
std::string trendJson(const FlutterTrend& trend, std::string_view program);

} // namespace tarsil::batch
