// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/EVM.h"

#include <initializer_list>

namespace tarsil::test {

/// A point of a mode drawn in a test: speed (KEAS), damping, frequency (Hz).
struct DrawnPoint
{
    float speed;
    float damping;
    float frequency = 0;
};

/// Appends a mode of these points to the evolution.
inline AeMode& addMode(EVM& evolution, std::int16_t number,
                       std::initializer_list<DrawnPoint> points)
{
    AeMode& mode = evolution.appendMode();
    mode.Id = number;
    for (const DrawnPoint& drawn : points) {
        Point& point = mode.Points.emplace_back();
        point.Parent = &mode;
        point.speed = drawn.speed;
        point.G = drawn.damping;
        point.f = drawn.frequency;
    }
    return mode;
}

} // namespace tarsil::test
