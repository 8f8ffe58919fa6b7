// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/UserInterface.h"
#include "model/EVM.h"

#include <memory>
#include <string_view>
#include <vector>

namespace tarsil::mdlMix {

/// The filter of the dialog that saves a mixed evolution. All entries write the same layout. The
/// pattern of the first is that of ordinary evolutions, because that is the layout.
constexpr std::string_view mixedFilter =
    "Mixed Modal Evolution (*.mix)|*.evm|New Mixed Modal Evolution (*.mx2)|*.mx2|"
    "All Files (*.*)|*.*|";

constexpr std::string_view exportingStatus = "Exporting Mixed Modal Evolutions. Please Wait ...";

/// A mixed modal evolution: independent copies of the modes, in order. It declares its number of
/// modes, and the number of points of its longest mode as speeds. Error 91 for a null pointer.
std::unique_ptr<EVM> gather(const std::vector<const AeMode*>& modes);

/// Asks for a file and writes the modes to it as one evolution in the fixed-column layout, whatever
/// its name; a note shows its path. Writes nothing when the user cancels. Failures are reported.
void exportMixed(const std::vector<const AeMode*>& modes, UserInterface& userInterface);

} // namespace tarsil::mdlMix
