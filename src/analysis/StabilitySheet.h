// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/StabilityTable.h"
#include "base/user/Progress.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class Sheet;

/// The title of the sheet in a workbook.
inline constexpr std::string_view stabilitySheetTitle = "Stability";

/// The stability of evolutions and the program that computed it.
struct StabilityReport
{
    std::vector<EvolutionStability> evolutions;
    StabilitySettings settings;
    std::string program; ///< name and version: "Tarsil 4.0.0"
};

/// Writes the stretches of evolutions as a table. Each evolution has its verdicts, one row for each
/// level, and its margin if requested; then a row for each real stretch, sorted by start; then the
/// number of noise and weak stretches left out:
///
///     file | level | mode | finding | kind | start (KEAS) | +- | start (Hz) | confidence
///     | altitude (ft) | altitude from | Mach | end (KEAS) | end (Hz) | peak | at (KEAS) | at (Hz)
///     | largest MPF | its value | remark
///
/// A crossing between different roots has no speed; the remark gives its interval. At the end are
/// the settings, the program, each source file with its present size, date and SHA-256, and the
/// meaning of words and colours. Reports progress after each source file, which is read for this.
/// Returns false after a stop; the sheet is not complete then.
bool writeStability(const StabilityReport& report, Sheet& sheet, const Progress& progress = {});

} // namespace tarsil
