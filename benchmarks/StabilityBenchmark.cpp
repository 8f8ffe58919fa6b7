// SPDX-License-Identifier: Apache-2.0

// Stretches of instability and tracking, for 500 evolutions of 40 modes x 60 points.

#include "RatioTable.h"
#include "analysis/ModeTracking.h"
#include "analysis/Stability.h"
#include "model/EVM.h"

#include <cmath>
#include <cstdio>
#include <memory>

namespace {

using namespace tarsil;

constexpr int evolutionCount = 500;
constexpr int modeCount = 40;
constexpr int pointCount = 60;
constexpr int turns = 5;

std::unique_ptr<EVM> makeEvolution(int seed)
{
    auto evolution = std::make_unique<EVM>();
    for (int m = 0; m < modeCount; ++m) {
        AeMode& mode = evolution->appendMode();
        mode.Id = static_cast<std::int16_t>(m + 1);
        for (int i = 0; i < pointCount; ++i) {
            Point& point = mode.Points.emplace_back();
            point.speed = 7.0F * static_cast<float>(i + 1);
            point.f = static_cast<float>(5 + 3 * m + 0.01 * i);
            point.G = static_cast<float>(0.1 * std::sin(-0.001 * seed + 0.1 * m + 0.16 * i));
            point.im = 6.2831853F * point.f;
            point.re = 3.1415927F * point.f * point.G;
        }
    }
    return evolution;
}

} // namespace

int main()
{
    std::vector<std::unique_ptr<EVM>> evolutions;
    for (int i = 0; i < evolutionCount; ++i)
        evolutions.push_back(makeEvolution(i));

    std::vector<StabilityPoint> points;
    for (const auto& evolution : evolutions) {
        for (const auto& mode : evolution->Modes) {
            for (const Point& point : mode->Points)
                points.push_back({point.speed, point.G, point.f, false});
        }
    }
    std::size_t found = 0;
    double stretches = 1e9;
    double tracking = 1e9;
    for (int turn = 0; turn < turns; ++turn) {
        stretches =
            std::min(stretches, benchmarks::seconds([&] {
                         for (std::size_t i = 0; i < points.size(); i += pointCount)
                             found +=
                                 stretchesAbove(std::span(points).subspan(i, pointCount), 0.01F, {})
                                     .stretches.size();
                     }));
        tracking = std::min(tracking, benchmarks::seconds([&] {
                                for (const auto& evolution : evolutions)
                                    found += ModeTracking(*evolution).marks().size();
                            }));
    }
    char text[32];
    std::snprintf(text, sizeof text, "%.2f ns",
                  stretches / static_cast<double>(points.size()) * 1e9);
    benchmarks::printRow("stretches, time of a point and level", "", text, "<= 5 ns");
    std::snprintf(text, sizeof text, "%.3f s", tracking);
    benchmarks::printRow("tracking 500 evolutions of 40 modes x 60 points", "", text, "<= 0.3 s");
    return found > 0 ? 0 : 1;
}
