// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "solver/SolverRun.h"

#include <optional>
#include <string>
#include <vector>

namespace tarsil::solver {

/// What the numbers of a file prove about its units. Never applied automatically: the user decides.
struct UnitEvidence
{
    /// The reference chord c = 2 k V / (2 pi f) of PK and PKNL rows in the printed unit of length
    /// (median); empty without such rows.
    std::optional<double> chord;
    bool isChordConsistent = true; ///< all rows agree within 1 %

    /// V / Mach of PKNL rows: a speed of sound in the printed unit (median).
    std::optional<double> speedOfSound;
    std::optional<Unit> speed; ///< the unit in which this speed of sound is plausible
    std::optional<Unit> density; ///< the unit in which the densities fit the temperatures
};

UnitEvidence unitEvidence(const std::vector<SolverRun>& runs);

/// The evidence as sentences, one on a line, with the cards of the deck: "reference chord 4.000:
/// metres or inches?".
std::vector<std::string> evidenceText(const UnitEvidence& evidence, const SummaryFile& file);

} // namespace tarsil::solver
