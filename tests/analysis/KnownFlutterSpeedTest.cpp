// SPDX-License-Identifier: Apache-2.0
#include "analysis/FlutterSearch.h"
#include "analysis/Knots.h"
#include "formats/EvolutionFile.h"
#include "model/EVM.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

using namespace tarsil;

// The uniform cantilever wing of M. Goland and Y. L. Luke, "The Flutter of a Uniform Wing with Tip
// Weights", Journal of Applied Mechanics 15 (1948), pp. 13-20: without tip weight, at sea level, it
// flutters at 137.2 m/s (266.7 KEAS) with 70.7 rad/s (11.25 Hz). The samples are strip theory with
// a few beam modes, tabulated every few knots. Such a model is accurate to 1 % in speed and 2 % in
// frequency.

namespace {

constexpr double publishedSpeed = 137.2 * test::knots;
constexpr double publishedFrequency = 70.7 / (2 * 3.14159265358979);

/// The crossing of zero damping at the lowest speed, over all modes of a sample.
std::optional<Point> firstFlutterPoint(const char* name)
{
    const std::unique_ptr<EVM> evolution = openEvolution(test::sample(name));
    std::optional<Point> first;
    for (const auto& mode : evolution->Modes) {
        FlutterPtsCalc(*mode, 0);
        for (const Point& point : mode->flutterPoints) {
            if (!first || point.speed < first->speed)
                first = point;
        }
    }
    return first;
}

void expectPublishedFlutter(const char* name)
{
    const auto found = firstFlutterPoint(name);
    ASSERT_TRUE(found.has_value()) << name << " does not flutter";
    EXPECT_NEAR(double {found->speed}, publishedSpeed, 0.01 * publishedSpeed) << name;
    EXPECT_NEAR(double {found->f}, publishedFrequency, 0.02 * publishedFrequency) << name;
}

} // namespace

TEST(KnownFlutterSpeed, ofTheGolandWingIsFoundInTheSectionedSample)
{
    expectPublishedFlutter("goland_clean_m040.ev2");
}

TEST(KnownFlutterSpeed, ofTheGolandWingIsFoundInTheFixedColumnSample)
{
    expectPublishedFlutter("goland_clean_m040.evm");
}
