#pragma once

#include "base/user/UserInterface.h"
#include "model/EVM.h"

#include <memory>
#include <string_view>
#include <vector>

namespace tarsil::mdlMix {

/// What the dialog offers that saves a mixed evolution. All entries are written alike. The first
/// has the pattern of an ordinary evolution on purpose: that is the layout of what is written.
constexpr std::string_view mixedFilter =
    "Mixed Modal Evolution (*.mix)|*.evm|New Mixed Modal Evolution (*.mx2)|*.mx2|"
    "All Files (*.*)|*.*|";

constexpr std::string_view exportingStatus = "Exporting Mixed Modal Evolutions. Please Wait ...";

/// A mixed modal evolution: independent copies of the modes given, in their order. It declares as
/// many modes as it holds and as many speeds as its longest mode has points. Error 91 for a null
/// pointer among the modes.
std::unique_ptr<EVM> gather(const std::vector<const AeMode*>& modes);

/// Asks for a file and writes the modes to it as one evolution in the fixed-column layout, whatever
/// its name; a note tells the user where it is. Writes nothing when the user cancels; a failure is
/// reported.
void exportMixed(const std::vector<const AeMode*>& modes, UserInterface& userInterface);

} // namespace tarsil::mdlMix
