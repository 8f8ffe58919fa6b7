#pragma once

#include "model/EVM.h"

#include <memory>
#include <vector>

namespace tarsil::mdlMix {

/// A mixed modal evolution: independent copies of the modes given, in their order. It declares as
/// many modes as it holds and as many speeds as its longest mode has points.
std::unique_ptr<EVM> gather(const std::vector<const AeMode*>& modes);

} // namespace tarsil::mdlMix
