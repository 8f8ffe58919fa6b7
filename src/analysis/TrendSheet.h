// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/FlutterTrend.h"

#include <string>

namespace tarsil {

class Sheet;

/// The title of the table.
inline constexpr std::string_view trendSheetTitle = "Flutter trend";

/// Writes a comparison of evolutions as a table, one row for each evolution and level:
///
///     file | mass | Mach | altitude (ft) | level | finding | start (KEAS) | start (Hz) | kind
///     | modes | confidence | speed from (KEAS) | to (KEAS) | required (KEAS) | remark
///
/// Only a start has a speed in the column of starts; an interval, the first and the last speed are
/// in the next two. Altitudes are rounded to feet.
void writeTrend(const FlutterTrend& trend, Sheet& sheet);

/// Appends the settings and `program`, the name and version of the program.
void writeTrendOrigin(const FlutterTrend& trend, const std::string& program, Sheet& sheet);

/// The finding of a point in words: "start", "between different roots", "unstable from the first
/// speed", "no instability up to the last speed", "not judged".
std::string findingOf(const TrendPoint& point);

/// Mode numbers with commas between them.
std::string modesOf(const TrendPoint& point);

} // namespace tarsil
