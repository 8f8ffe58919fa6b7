// SPDX-License-Identifier: Apache-2.0
#include "aircraft/AirplaneInfo.h"
#include "base/files/PathNames.h"
#include "base/numbers/NumberFormat.h"
#include "formats/EvolutionFile.h"
#include "model/EVM.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <cmath>

// The aircraft file of the samples matches the modal evolutions beside it.

namespace tarsil {

namespace {

AirplaneInfo sampleAircraft()
{
    AirplaneInfo info;
    info.Filename = test::sample("goland.inp");
    info.Create();
    return info;
}

class SampleAircraft : public ::testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        const FilePath file = resolvePath(test::sample(GetParam()));
        evolution.Folder = file.folder;
        evolution.FileName = file.name;
        Contruct(evolution);
    }

    EVM evolution;
    AirplaneInfo info = sampleAircraft();
};

TEST_P(SampleAircraft, knowsTheMassConfigurationOfAnEvolution)
{
    const MassConf* const configuration = info.massConf(evolution.Param.Mass);
    ASSERT_NE(configuration, nullptr);
    EXPECT_EQ(configuration->ShortName, evolution.Param.Mass);
}

TEST_P(SampleAircraft, hasAnEnvelopeForTheMachNumberOfAnEvolution)
{
    const std::string mach = formatNumber(evolution.Param.Mach, "0.00#");
    const FlutterEnvelope* const envelope = info.flutterEnvelope(mach);
    ASSERT_NE(envelope, nullptr);
    EXPECT_LT(envelope->VL, envelope->Vd);
    // Standard atmosphere, ISO 2533: at 40 000 ft the pressure is 0.18509 of that at sea level; the
    // speed of sound at sea level is 661.48 knots.
    EXPECT_NEAR(envelope->Ceiling, 661.48 * evolution.Param.Mach * std::sqrt(0.18509), 0.06);
}

TEST_P(SampleAircraft, hasAMechanismThatShowsEveryMode)
{
    const FlutterMechanism* const mechanism = info.flutterMechanism("ALL");
    ASSERT_NE(mechanism, nullptr);
    for (const auto& mode : evolution.Modes) {
        for (const Point& point : mode->Points) {
            EXPECT_TRUE(mechanism->fmin <= point.f && point.f <= mechanism->fmax) << point.f;
            EXPECT_TRUE(mechanism->vmin <= point.speed && point.speed <= mechanism->vmax);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Files, SampleAircraft,
                         ::testing::Values("goland_clean_m040.ev2", "goland_clean_m050.ev2",
                                           "goland_clean_m060.ev2", "goland_tipstore_m040.ev2",
                                           "goland_tipstore_m050.ev2", "goland_tipstore_m060.ev2"));

TEST(SampleAircraftFile, hasMechanismsOfRoundTicks)
{
    const AirplaneInfo info = sampleAircraft();
    ASSERT_EQ(info.FlutterMechs.size(), 3U);
    const auto isWhole = [](float steps) { return std::abs(steps - std::round(steps)) < 1e-4F; };
    for (const FlutterMechanism& m : info.FlutterMechs) {
        EXPECT_TRUE(isWhole((m.fmax - m.fmin) / m.fthick)) << m.ShortName;
        EXPECT_TRUE(isWhole((m.vmax - m.vmin) / m.vthick)) << m.ShortName;
        EXPECT_TRUE(isWhole((m.gmax - m.gmin) / m.gthick * 100)) << m.ShortName;
    }
}

TEST(SampleAircraftFile, namesTheEnvelopeSpeeds)
{
    const AirplaneInfo info = sampleAircraft();
    EXPECT_EQ(info.VLTag, "VL");
    EXPECT_EQ(info.VdTag, "Vd");
    EXPECT_EQ(info.CeTag, "Ceiling");
}

} // namespace

} // namespace tarsil
