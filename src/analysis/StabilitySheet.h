#pragma once

#include "analysis/Stability.h"

#include <vector>

namespace tarsil {

class EVM;
class Sheet;

/// The stretches of some evolutions as a table. For each evolution come first its verdicts, a line
/// for each level, then a line for each real stretch by rising start, and last how many noise and
/// weak stretches are left out:
///
///     file | mode | level | start (KEAS) | start (Hz) | kind | confidence | end (KEAS) | end (Hz)
///     | peak | at (KEAS) | remark
///
/// A crossing between different roots has no speed, only its interval, in the remark. Errors: those
/// of `stabilityOf`.
void writeStability(const std::vector<const EVM*>& evolutions, const StabilitySettings& settings,
                    Sheet& sheet);

} // namespace tarsil
