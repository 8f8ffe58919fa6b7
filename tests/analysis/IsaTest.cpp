// SPDX-License-Identifier: Apache-2.0
#include "analysis/Isa.h"

#include "analysis/Knots.h"
#include "base/user/RunTimeError.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace tarsil;
using ISA::IsaAltitude;

namespace {

constexpr double squareOfSoundSpeed = 115794.8064; // (m/s)^2
constexpr double feetPerMetre = 1 / 0.3048; // by definition

/// The equivalent airspeed (m/s) of Mach 1 at a pressure ratio.
double speedAtRatio(double delta)
{
    return std::sqrt(delta * squareOfSoundSpeed);
}

ErrorNumber altitudeError(double eas, double mach, const char* units)
{
    const auto error = test::errorOf([&] { IsaAltitude(eas, mach, units); });
    EXPECT_EQ(error.value().source(), "ISA");
    return error->number();
}

} // namespace

TEST(Isa, givesTheAltitudeOfAKnownSpeedAndMachNumber)
{
    // By hand: v = 154.333 m/s, delta = (154.333 / 0.5)^2 / 115794.8064 = 0.82279,
    // h = (1 - 0.82279^0.190255) * 145442.16 ft = 0.03643 * 145442.16 ft.
    EXPECT_NEAR(IsaAltitude(300, 0.5, "knot"), 5298, 1);
}

TEST(Isa, givesTheAltitudeOfADensity)
{
    // ISO 2533:1975: density over 1.225 kg/m3 at geopotential altitudes in metres.
    EXPECT_NEAR(ISA::densityAltitude(1), 0, 1e-9);
    EXPECT_NEAR(ISA::densityAltitude(1.11164 / 1.225), 1000 * feetPerMetre, 3);
    EXPECT_NEAR(ISA::densityAltitude(0.736116 / 1.225), 5000 * feetPerMetre, 5);
    EXPECT_NEAR(ISA::densityAltitude(0.363918 / 1.225), 11000 * feetPerMetre, 10);
    EXPECT_NEAR(ISA::densityAltitude(0.0880349 / 1.225), 20000 * feetPerMetre, 20);
}

TEST(Isa, expectsMetresPerSecond)
{
    EXPECT_DOUBLE_EQ(IsaAltitude(300 / test::knots, 0.5, "mps"), IsaAltitude(300, 0.5, "knot"));
}

TEST(Isa, agreesWithThePublishedPressuresOfTheStandardAtmosphere)
{
    // ISO 2533:1975, table of geopotential altitude (m) and pressure (hPa); 1013.25 hPa at 0 m. The
    // rounded constants are accurate to a few feet.
    const struct
    {
        double metres;
        double hectopascals;
        double toleranceInFeet;
    } rows[] = {{0, 1013.25, 0.01},  {1000, 898.746, 1},  {5000, 540.199, 2},  {10000, 264.363, 3},
                {11000, 226.320, 3}, {15000, 120.445, 5}, {20000, 54.7487, 10}};
    for (const auto& row : rows)
        EXPECT_NEAR(IsaAltitude(speedAtRatio(row.hectopascals / 1013.25), 1, "mps"),
                    row.metres * feetPerMetre, row.toleranceInFeet)
            << row.metres << " m";
}

TEST(Isa, isNegativeBelowTheSea)
{
    // ISO 2533:1975: 1139.29 hPa at -1000 m.
    EXPECT_NEAR(IsaAltitude(speedAtRatio(1139.29 / 1013.25), 1, "mps"), -1000 * feetPerMetre, 2);
}

TEST(Isa, usesTheStratosphereAtTheBoundary)
{
    // The ratio 0.223358 gives the logarithm of 1. The square of a square root may be off by its
    // last bit, so this finds the largest speed whose ratio does not exceed the boundary.
    double boundary = speedAtRatio(0.223358);
    while (boundary * boundary / squareOfSoundSpeed > 0.223358)
        boundary = std::nextafter(boundary, 0.0);
    EXPECT_NEAR(IsaAltitude(boundary, 1, "mps"), 36089, 1e-6);
    EXPECT_GT(IsaAltitude(speedAtRatio(0.22335), 1, "mps"), 36089);
    // (1 - 0.22336^(1/5.2561)) * 145442.156 ft; the two laws do not meet exactly.
    const double below = IsaAltitude(speedAtRatio(0.22336), 1, "mps");
    EXPECT_LT(below, 36089);
    EXPECT_NEAR(below, 36088, 1);
}

TEST(Isa, followsTheExponentialLawAboveTheTropopause)
{
    // The pressure falls to 1/e within 1 / 4.8063e-5 ft.
    EXPECT_NEAR(IsaAltitude(speedAtRatio(0.223358 / std::exp(1.0)), 1, "mps"),
                36089 + 1 / 4.8063e-5, 1e-6);
}

TEST(Isa, refusesMachZero)
{
    EXPECT_EQ(altitudeError(300, 0, "knot"), ErrorNumber::DivisionByZero);
}

TEST(Isa, refusesSpeedZero)
{
    EXPECT_EQ(altitudeError(0, 0.5, "knot"), ErrorNumber::InvalidProcedureCall);
}

TEST(Isa, comparesUnitsExactly)
{
    EXPECT_EQ(altitudeError(300, 0.5, "Knot"), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(altitudeError(300, 0.5, "m/s"), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(altitudeError(300, 0.5, ""), ErrorNumber::InvalidProcedureCall);
}

TEST(Isa, refusesWhatNoDoubleHolds)
{
    EXPECT_EQ(altitudeError(1e200, 1, "mps"), ErrorNumber::Overflow);
    EXPECT_EQ(altitudeError(300, std::numeric_limits<double>::denorm_min(), "knot"),
              ErrorNumber::Overflow);
}
