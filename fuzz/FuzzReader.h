// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "FuzzTarget.h"

#include "base/files/TextStream.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <cmath>

namespace tarsil::fuzz {

/// Memory must be proportional to the bytes of the file, whatever it declares.
inline void requireProportion(const EVM& evolution, std::size_t bytes)
{
    std::size_t points = 0;
    for (const auto& mode : evolution.Modes)
        points += mode->Points.capacity();
    require(points <= bytes / 16 + 64, "memory in proportion to the file");
}

inline void requireWholeTree(const EVM& evolution)
{
    for (const auto& mode : evolution.Modes) {
        require(mode->Parent == &evolution, "a mode knows its evolution");
        require(!mode->Points.empty(), "a mode has points");
        for (const Point& point : mode->Points) {
            require(point.Parent == mode.get(), "a point knows its mode");
            require(std::isfinite(point.speed) && std::isfinite(point.G), "values are finite");
        }
    }
}

/// Reads the text twice with one of the readers; both results must be equal.
template <typename Reader>
int readTwice(std::string_view text, Reader reader)
{
    EVM evolutions[2];
    for (EVM& evolution : evolutions) {
        TextStream stream(text, "fuzz");
        try {
            reader(stream, evolution);
        } catch (const RunTimeError& error) {
            require(!error.description().empty(), "an error says what is wrong");
            continue;
        }
        requireWholeTree(evolution);
        requireProportion(evolution, text.size());
    }
    require(evolutions[0].Modes.size() == evolutions[1].Modes.size(), "reading is repeatable");
    return 0;
}

} // namespace tarsil::fuzz
