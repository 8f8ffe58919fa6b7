// SPDX-License-Identifier: Apache-2.0

// Stretches of instability and tracking, for 500 evolutions of 40 modes x 60 points.

#include "RatioTable.h"
#include "analysis/ModeTracking.h"
#include "analysis/Stability.h"
#include "model/EVM.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <memory>
#include <span>
#include <vector>

namespace {

using namespace tarsil;

constexpr int evolutionCount = 500;
constexpr int modeCount = 40;
constexpr int pointCount = 60;
constexpr int turns = 5;

/// The roots of one step: with `rise`, every other root gains that many Hz from point to point, so
/// that it passes its neighbours.
std::vector<Point> rootsAt(int i, int seed, double rise)
{
    std::vector<Point> roots;
    for (int m = 0; m < modeCount; ++m) {
        Point& point = roots.emplace_back();
        point.speed = 7.0F * static_cast<float>(i + 1);
        point.f = static_cast<float>(5 + 3 * m + (m % 2 == 0 ? rise : 0.01) * i);
        point.G = static_cast<float>(0.1 * std::sin(-0.001 * seed + 0.1 * m + 0.16 * i));
        point.im = 6.2831853F * point.f;
        point.re = 3.1415927F * point.f * point.G;
    }
    return roots;
}

/// An evolution whose roots are printed by rising frequency, as solvers do.
std::unique_ptr<EVM> makeEvolution(int seed, double rise)
{
    auto evolution = std::make_unique<EVM>();
    for (int m = 0; m < modeCount; ++m)
        evolution->appendMode().Id = static_cast<std::int16_t>(m + 1);
    for (int i = 0; i < pointCount; ++i) {
        std::vector<Point> roots = rootsAt(i, seed, rise);
        std::sort(roots.begin(), roots.end(),
                  [](const Point& a, const Point& b) { return a.f < b.f; });
        for (std::size_t m = 0; m < roots.size(); ++m)
            evolution->Modes[m]->Points.push_back(roots[m]);
    }
    return evolution;
}

std::vector<std::unique_ptr<EVM>> makeEvolutions(double rise)
{
    std::vector<std::unique_ptr<EVM>> evolutions;
    evolutions.reserve(evolutionCount);
    for (int i = 0; i < evolutionCount; ++i)
        evolutions.push_back(makeEvolution(i, rise));
    return evolutions;
}

using Found = std::size_t; ///< keeps the compiler from leaving the work out

Found findStretches(const std::vector<std::unique_ptr<EVM>>& evolutions)
{
    std::vector<StabilityPoint> points;
    for (const auto& evolution : evolutions) {
        for (const auto& mode : evolution->Modes) {
            for (const Point& point : mode->Points)
                points.push_back({point.speed, point.G, point.f, false});
        }
    }
    Found found = 0;
    double best = std::numeric_limits<double>::infinity();
    for (int turn = 0; turn < turns; ++turn) {
        best = std::min(best, benchmarks::seconds([&] {
                            for (std::size_t i = 0; i < points.size(); i += pointCount)
                                found += stretchesAbove(std::span(points).subspan(i, pointCount),
                                                        0.01F, {})
                                             .stretches.size();
                        }));
    }
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), "%.2f ns",
                  best / static_cast<double>(points.size()) * 1e9);
    benchmarks::printRow("stretches, time of a point and level", "", text.data(), "<= 5 ns");
    return found;
}

Found track(const std::vector<std::unique_ptr<EVM>>& evolutions, const char* subject)
{
    Found found = 0;
    double best = std::numeric_limits<double>::infinity();
    for (int turn = 0; turn < turns; ++turn) {
        best = std::min(best, benchmarks::seconds([&] {
                            for (const auto& evolution : evolutions)
                                found += ModeTracking(*evolution).moves().size() + 1;
                        }));
    }
    std::array<char, 32> text;
    std::snprintf(text.data(), text.size(), "%.3f s", best);
    benchmarks::printRow(subject, "", text.data(), "<= 0.3 s");
    return found;
}

} // namespace

int main()
{
    const auto apart = makeEvolutions(0.01);
    const auto crossing = makeEvolutions(1.0);
    const Found found = findStretches(apart)
        + track(apart, "tracking 500 evolutions of 40 modes x 60 points")
        + track(crossing, "the same where 155 pairs of roots change places in each");
    return found > 0 ? 0 : 1;
}
