#pragma once

#include "base/user/RunTimeError.h"

#include <optional>

namespace tarsil::test {

/// The number of the run-time error that `action` raises; none when it raises none.
template <typename Action>
std::optional<ErrorNumber> errorNumberOf(Action action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return std::nullopt;
}

} // namespace tarsil::test
