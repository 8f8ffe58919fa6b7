// SPDX-License-Identifier: Apache-2.0

// This file finds the zeros of the damping by linear interpolation.
#include "Crossing.h"

namespace tarsil::goland {

namespace {

bool changesSign(const FlutterPoint& left, const FlutterPoint& right)
{
    return (left.damping < 0.0) != (right.damping < 0.0);
}

Crossing crossingBetween(const FlutterPoint& left, const FlutterPoint& right)
{
    const double part = left.damping / (left.damping - right.damping);
    Crossing crossing;
    crossing.knots = left.knots + part * (right.knots - left.knots);
    crossing.frequency = left.frequency + part * (right.frequency - left.frequency);
    crossing.becomesUnstable = left.damping < 0.0;
    return crossing;
}

void appendCrossings(std::vector<Crossing>& crossings, const FlutterCurve& curve, int mode)
{
    for (std::size_t index = 1; index < curve.size(); ++index) {
        if (!changesSign(curve[index - 1], curve[index]))
            continue;
        crossings.push_back(crossingBetween(curve[index - 1], curve[index]));
        crossings.back().mode = mode;
    }
}

} // namespace

std::vector<Crossing> findCrossings(const FlutterCurves& curves)
{
    std::vector<Crossing> crossings;
    int mode = 0;
    for (const FlutterCurve& curve : curves)
        appendCrossings(crossings, curve, ++mode);
    return crossings;
}

} // namespace tarsil::goland
