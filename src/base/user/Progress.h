// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>

namespace tarsil {

/// Receives the progress of a long computation: `done` of `total` steps, of which the last may be
/// left out. Returns whether to go on. An empty function never stops.
using Progress = std::function<bool(std::size_t done, std::size_t total)>;

/// Reports progress. Returns whether to go on.
inline bool goesOn(const Progress& progress, std::size_t done, std::size_t total)
{
    return !progress || progress(done, total);
}

} // namespace tarsil
