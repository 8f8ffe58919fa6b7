// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "formats/EvolutionFormat.h"

namespace tarsil {

/// Reads sections: headers of key=value lines, results separated by "|".
void readEv2(TextStream& stream, EVM& evolution);

/// The findings in a file with sections.
void checkEv2(TextStream& stream, FindingList& findings);

/// The new format.
inline constexpr EvolutionFormat ev2Format {"ev2",
                                            "sections (.ev2)",
                                            ".ev2",
                                            "New Modal Evolution Files (*.ev2)|*.ev2|",
                                            readOne<readEv2>,
                                            checkEv2};

} // namespace tarsil
