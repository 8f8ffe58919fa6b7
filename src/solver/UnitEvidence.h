#pragma once

#include "solver/SolverRun.h"

#include <optional>
#include <string>
#include <vector>

namespace tarsil::solver {

/// What the numbers of a file prove about its units. Nothing of it is ever applied by itself: the
/// user chooses.
struct UnitEvidence
{
    /// The reference chord c = 2 k V / (2 pi f) of PK and PKNL rows, in the printed unit of length
    /// (median); absent without such rows.
    std::optional<double> chord;
    bool isChordConsistent = true; ///< all rows agree within 1 %

    /// V / Mach of PKNL rows: a speed of sound in the printed unit (median).
    std::optional<double> speedOfSound;
    std::optional<Unit> speed; ///< the unit that this speed of sound is plausible in
    std::optional<Unit> density; ///< the unit in which densities fit the temperatures
};

UnitEvidence unitEvidence(const std::vector<SolverRun>& runs);

/// The evidence in sentences, one line each, with the cards of the deck: "reference chord 4.000:
/// metres or inches?".
std::vector<std::string> evidenceText(const UnitEvidence& evidence, const SummaryFile& file);

} // namespace tarsil::solver
