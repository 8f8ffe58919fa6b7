// SPDX-License-Identifier: Apache-2.0

// The search for crossings, against one pass over the same points.

#include "RatioTable.h"
#include "analysis/FlutterSearch.h"
#include "model/EVM.h"

#include <cmath>
#include <cstdio>

namespace {

using namespace tarsil;

constexpr int modeCount = 1000;
constexpr int pointCount = 1000;
constexpr int turns = 15;
constexpr double intervals = double {modeCount} * (pointCount - 1);

/// Modes that cross zero three times: a hump and a steep crossing.
void fillEvolution(EVM& evolution)
{
    for (int m = 0; m < modeCount; ++m) {
        AeMode& mode = evolution.appendMode();
        for (int i = 0; i < pointCount; ++i) {
            Point& point = mode.Points.emplace_back();
            point.speed = 0.7F * static_cast<float>(i);
            point.f = 10;
            point.G = static_cast<float>(0.1 * std::sin(-0.001 + 9.5 * i / pointCount));
        }
    }
}

} // namespace

int main()
{
    EVM evolution;
    fillEvolution(evolution);
    float sum = 0;
    const auto search = [&] {
        for (const auto& mode : evolution.Modes)
            FlutterPtsCalc(*mode, -0.0001);
    };
    const auto pass = [&] {
        for (const auto& mode : evolution.Modes) {
            for (const Point& point : mode->Points)
                sum += point.G;
        }
    };
    const benchmarks::Pair times = benchmarks::bestOfTurns(turns, search, pass);
    benchmarks::printRow("crossings of 1000 modes x 1000 points", "one pass over the same points",
                         times, "");
    char perInterval[32];
    std::snprintf(perInterval, sizeof perInterval, "%.2f ns", times.measured / intervals * 1e9);
    benchmarks::printRow("crossings, time of an interval", "", perInterval, "<= 3 ns");
    return std::isnan(sum) ? 1 : 0;
}
