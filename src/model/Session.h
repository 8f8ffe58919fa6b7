#pragma once

#include "model/EVM.h"

#include <memory>
#include <vector>

namespace tarsil {

/// What lives for the whole run: the open modal evolutions, in load order.
class Session
{
public:
    std::vector<std::unique_ptr<EVM>> evolutions;
};

} // namespace tarsil
