// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/ScriptedUserInterface.h"

namespace tarsil::test {

// Messages of the dialogs that add a reference speed or a damping line.

using Message = ScriptedUserInterface::Message;

inline const Message notNumeric = {"Please enter a numeric value.", "Tarsil", MessageIcon::None};
inline const Message noPlot = {"Please select activate a plot.", "Tarsil",
                               MessageIcon::Exclamation};

} // namespace tarsil::test
