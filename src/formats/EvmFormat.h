// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "formats/EvolutionFormat.h"

namespace tarsil {

/// Reads fixed columns: two points on a line, the damping with the opposite sign.
void readEvm(TextStream& stream, EVM& evolution);

/// The findings in a file in fixed columns.
void checkEvm(TextStream& stream, FindingList& findings);

/// The old format.
inline constexpr EvolutionFormat evmFormat {"evm",
                                            "fixed columns (.evm)",
                                            ".evm",
                                            "Modal Evolution Files (*.evm)|*.evm|",
                                            readOne<readEvm>,
                                            checkEvm};

} // namespace tarsil
