#pragma once

#include "model/EVM.h"

#include <memory>
#include <string_view>
#include <vector>

namespace tarsil {

/// What lives for the whole run: the open modal evolutions, in load order.
class Session
{
public:
    std::vector<std::unique_ptr<EVM>> evolutions;

    /// Reads the file and appends its evolution. After an error nothing has changed.
    EVM& open(std::string_view path);
};

} // namespace tarsil
