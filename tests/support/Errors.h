// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"

#include <optional>
#include <string>

namespace tarsil::test {

/// The run-time error that `action` raises; empty for none.
template <typename Action>
std::optional<RunTimeError> errorOf(Action action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error;
    }
    return std::nullopt;
}

/// The number of that error.
template <typename Action>
std::optional<ErrorNumber> errorNumberOf(Action action)
{
    const auto error = errorOf(action);
    return error ? std::optional(error->number()) : std::nullopt;
}

/// Number and description of that error, such as "53 File not found: a.evm"; "no error" for none.
template <typename Action>
std::string errorTextOf(Action action)
{
    const auto error = errorOf(action);
    if (!error)
        return "no error";
    std::string text = std::to_string(static_cast<int>(error->number()));
    text += ' ';
    text += error->description();
    return text;
}

} // namespace tarsil::test
