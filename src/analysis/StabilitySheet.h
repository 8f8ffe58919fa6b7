#pragma once

#include "analysis/StabilityTable.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class Sheet;

/// The title of the sheet in a workbook.
inline constexpr std::string_view stabilitySheetTitle = "Stability";

/// What is written of the stability of some evolutions, and by which program.
struct StabilityReport
{
    std::vector<EvolutionStability> evolutions;
    StabilitySettings settings;
    std::string program; ///< name and version: "Tarsil 4.0.0"
};

/// The stretches of some evolutions as a table. For each evolution come first its verdicts, a line
/// for each level, and its margin where one is asked for; then a line for each real stretch by
/// rising start; and last how many noise and weak stretches are left out:
///
///     file | level | mode | finding | kind | start (KEAS) | +- | start (Hz) | confidence
///     | altitude (ft) | altitude from | Mach | end (KEAS) | end (Hz) | peak | at (KEAS) | at (Hz)
///     | largest MPF | its value | remark
///
/// A crossing between different roots has no speed, only its interval, in the remark. Below all of
/// them are the settings, the program, each source file with its size, date and SHA-256 as it is
/// now, and what the words and colours mean.
void writeStability(const StabilityReport& report, Sheet& sheet);

} // namespace tarsil
