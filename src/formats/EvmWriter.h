// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace tarsil {

class EVM;

/// The evolution in the fixed-column layout of `PrintEVM`. The two counts are five and one columns
/// to the left of where the reader expects them, and the damping keeps its stored sign: the
/// programs that read these files expect that. Error 5 for a value that is too long for its
/// columns.
std::string evmText(const EVM& evolution);

} // namespace tarsil
