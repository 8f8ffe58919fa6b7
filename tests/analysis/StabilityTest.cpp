// SPDX-License-Identifier: Apache-2.0
#include "analysis/Stability.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/FlightCondition.h"
#include "analysis/ModeBuilder.h"
#include "analysis/Requirement.h"
#include "analysis/Sheet.h"
#include "analysis/StabilitySheet.h"
#include "analysis/StabilityTexts.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"
#include "support/Errors.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

std::string textAt(const Sheet& sheet, std::size_t row, std::size_t column)
{
    return Sheet::textOf(sheet.cell(row, column));
}

StabilitySettings atZero()
{
    StabilitySettings settings;
    settings.levels = {0};
    return settings;
}

std::string verdictAtZero(const EVM& evolution)
{
    return verdictText(verdictOf(stabilityOf(evolution, atZero()), 0), 400);
}

} // namespace

TEST(Stability, namesTheLowestRealStart)
{
    EVM evolution;
    addMode(evolution, 3, {{300, -0.125F, 8}, {400, 0.375F, 10}});
    addMode(evolution, 5, {{300, -1, 8}, {350, 0.0001F, 8}, {360, -1, 10}});
    EXPECT_EQ(verdictAtZero(evolution), "325.00 +- 0.00 KEAS, 8.50 Hz, flutter, mode 3 (B)")
        << "the weak one of mode 5 does not count";
}

TEST(Stability, namesModesThatAreUnstableFromTheFirstSpeed)
{
    EVM evolution;
    addMode(evolution, 2, {{300, 0.1F, 8}, {400, -0.1F, 10}});
    addMode(evolution, 4, {{300, 0.1F, 8}, {400, 0.1F, 10}});
    EXPECT_EQ(verdictAtZero(evolution), "unstable from the first speed: modes 2, 4");
}

TEST(Stability, findsTheStartAmongAThousandModes)
{
    EVM evolution;
    for (std::int16_t number = 1; number <= 1000; ++number) {
        const auto frequency = static_cast<float>(number);
        const bool flutters = number == 500;
        AeMode& mode = addMode(evolution, number,
                               {{300, -0.001F, frequency},
                                {400, flutters ? 0.001F : -0.001F, frequency},
                                {500, flutters ? 0.003F : -0.001F, frequency}});
        for (Point& point : mode.Points) {
            point.im = 6.2832F * frequency;
            point.re = point.G * point.im / 2;
        }
    }
    for (const bool isTracked : {false, true}) {
        StabilitySettings settings = atZero();
        settings.isTracked = isTracked;
        const std::vector<RootStretches> stability = stabilityOf(evolution, settings);
        EXPECT_THAT(verdictText(verdictOf(stability, 0), 500), StartsWith("350.00 +- "));
        EXPECT_THAT(verdictText(verdictOf(stability, 0), 500), HasSubstr("flutter, mode 500 ("));
    }
}

TEST(Stability, saysUpToWhichSpeedThereIsNone)
{
    EVM evolution;
    addMode(evolution, 1, {{300, -0.1F, 8}, {400, -0.1F, 10}});
    EXPECT_EQ(verdictAtZero(evolution), "no instability up to 400 KEAS");
}

TEST(Stability, givesNoSpeedBetweenDifferentRoots)
{
    EVM evolution;
    addMode(evolution, 1, {{300, -0.1F, 0}, {400, 0.1F, 10}});
    EXPECT_EQ(verdictAtZero(evolution), "between 300 and 400 KEAS, different roots, mode 1 (C)");
}

TEST(Stability, refusesToTrackWhatHasNoEigenvalues)
{
    EVM evolution;
    addMode(evolution, 1, {{300, -0.1F, 10}, {400, 0.1F, 10}});
    StabilitySettings settings = atZero();
    settings.isTracked = true;
    EXPECT_EQ(stabilityOf(evolution, settings).size(), 1U) << "one mode is never exchanged";
    addMode(evolution, 2, {{300, -0.1F, 20}, {400, 0.1F, 20}});
    EXPECT_THROW(stabilityOf(evolution, settings), RunTimeError);
}

TEST(Stability, readsLevelsAndRefusesWords)
{
    EXPECT_THAT(levelsOf("0, 0.01,-0.5,0"), ElementsAre(0.0F, 0.01F, -0.5F));
    EXPECT_THAT(test::errorTextOf([] { levelsOf("0,high"); }), HasSubstr("high"));
    EXPECT_EQ(test::errorNumberOf([] { levelsOf(""); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(test::errorNumberOf([] { levelsOf("1e39"); }), ErrorNumber::Overflow);
}

TEST(Stability, hasNothingToSayOfAnEvolutionWithoutPoints)
{
    EVM evolution;
    EXPECT_EQ(judged({&evolution, 0, std::nullopt}, atZero()).lines.size(), 0U);
    EXPECT_EQ(verdictText(verdictOf({}, 0), lastSpeedOf(evolution)),
              "there are no points to judge");
}

/// Neither has an interval in which a straight line could rise.
TEST(Stability, judgesOnePointAndEqualOrFallingSpeeds)
{
    EVM evolution;
    addMode(evolution, 1, {{300, 0.5F, 8}});
    addMode(evolution, 2, {{300, -0.5F, 8}, {300, 0.5F, 8}, {200, -0.5F, 8}});
    const EvolutionStability found = judged({&evolution, 0, std::nullopt}, atZero());
    EXPECT_EQ(verdictText(found.verdicts[0], found.lastSpeed),
              "unstable from the first speed: modes 1");
    ASSERT_EQ(found.lines.size(), 2U);
    EXPECT_EQ(found.lines[1].stretch.start->speed, 300);
    EXPECT_EQ(found.lines[1].stretch.end->speed, 250);
}

TEST(FlightCondition, isThatOfSpeedAndMachNumberOrOfTheDensity)
{
    EVM evolution;
    evolution.Param.Mach = 0.5F;
    AeMode& mode = addMode(evolution, 1, {{280, -0.5F, 8}, {320, 0.5F, 10}});
    const auto startOf = [&evolution](float mach) {
        return judged({&evolution, mach, std::nullopt}, atZero()).lines.front().stretch.start;
    };
    EXPECT_NEAR(*startOf(0.9F)->condition.altitude, 5298, 1) << "300 KEAS at Mach 0.5 of the file";
    EXPECT_FALSE(startOf(0)->condition.isFromDensity);
    evolution.Param.Mach = 0;
    EXPECT_FALSE(startOf(0)->condition.altitude);
    EXPECT_NEAR(*startOf(0.5F)->condition.altitude, 5298, 1) << "the number that is given";
    // Half-way between Mach 0.4 and 0.6, and between densities whose mean is that of 10,000 ft.
    mode.Points[0].mach = 0.4F;
    mode.Points[1].mach = 0.6F;
    mode.Points[0].sigma = 0.8F;
    mode.Points[1].sigma = 0.6771F;
    const FlightCondition condition = startOf(0.9F)->condition;
    EXPECT_TRUE(condition.isFromDensity);
    EXPECT_NEAR(*condition.mach, 0.5, 1e-6);
    EXPECT_NEAR(*condition.altitude, 10000, 10); // sigma 0.73855 in every table
}

TEST(FlightCondition, isMarkedBeyondTheAtmosphere)
{
    EXPECT_FALSE(isOutsideAtmosphere(-2000));
    EXPECT_TRUE(isOutsideAtmosphere(-2001));
    EXPECT_FALSE(isOutsideAtmosphere(65617));
    EXPECT_TRUE(isOutsideAtmosphere(65618));
}

TEST(FlightCondition, namesTheLargestParticipationFactor)
{
    EVM evolution;
    AeMode& mode = addMode(evolution, 1, {{280, -0.5F, 8}, {320, 0.5F, 10}});
    for (const float factor : {0.1F, -0.8F, 0.3F}) {
        mode.Points[0].mpf.append(factor);
        mode.Points[1].mpf.append(factor / 2);
    }
    const auto lines = judged({&evolution, 0, std::nullopt}, atZero()).lines;
    const auto dominant = lines.front().stretch.start->dominant;
    ASSERT_TRUE(dominant);
    EXPECT_EQ(dominant->number, 2U);
    EXPECT_NEAR(dominant->value, -0.6, 1e-6);
}

namespace {

/// Mode 1 is unstable from 325 KEAS on; speeds go from 300 to 400.
class RequirementTest : public ::testing::Test
{
protected:
    RequirementTest()
    {
        evolution.Param.Mach = 0.4F;
        addMode(evolution, 1, {{300, -0.125F, 8}, {400, 0.375F, 10}});
        airplane.FlutterEnvs.push_back({250, 0, 200, "0.40"});
    }

    Margin marginAt(float diveSpeed, Requirement requirement = {1.15, 0})
    {
        airplane.FlutterEnvs[0].Vd = diveSpeed;
        const auto required = requiredSpeed(evolution, airplane, requirement);
        return judged({&evolution, 0, required}, atZero()).margin.value();
    }

    EVM evolution;
    AirplaneInfo airplane;
};

} // namespace

TEST_F(RequirementTest, comparesTheLowestStartWithFactorTimesDiveSpeed)
{
    EXPECT_EQ(marginText(marginAt(200)), "pass: 95 KEAS above 1.15 x 200 = 230 KEAS at g = 0");
    EXPECT_TRUE(marginAt(200).passes);
    EXPECT_NEAR(*marginAt(300).value(), -20, 1e-4);
    EXPECT_EQ(marginText(marginAt(300)), "fail: 20 KEAS below 1.15 x 300 = 345 KEAS at g = 0");
    EXPECT_FALSE(marginAt(300).passes);
    EXPECT_TRUE(marginAt(325, {1, 0}).passes) << "exactly there";
}

TEST_F(RequirementTest, isJudgedAtItsOwnLevel)
{
    // g = 0.125 is half-way, at 350 KEAS, and no level of the settings.
    EXPECT_NEAR(*marginAt(300, {1, 0.125F}).value(), 50, 1e-4);
}

TEST_F(RequirementTest, takesTheLowerEndOfAnIntervalOfDifferentRoots)
{
    evolution.Modes[0]->Points[0].f = 0;
    EXPECT_NEAR(*marginAt(290, {1, 0}).value(), 10, 1e-4);
}

TEST_F(RequirementTest, countsTheLowerEndOfAnIntervalBeforeALowerCrossing)
{
    // Mode 1 crosses at 325 KEAS; on a straight line mode 2 would cross at 380, but it becomes
    // static somewhere between 300 and 400.
    addMode(evolution, 2, {{300, -0.4F, 0}, {400, 0.1F, 10}});
    EXPECT_NEAR(*marginAt(290, {1, 0}).value(), 10, 1e-4);
    EXPECT_FALSE(marginAt(310, {1, 0}).passes);
    EXPECT_EQ(verdictAtZero(evolution), "between 300 and 400 KEAS, different roots, mode 2 (C)");
}

TEST_F(RequirementTest, isNotShownWhereOneModeEndsBelowIt)
{
    evolution.Modes[0]->Points[1].G = -0.125F;
    addMode(evolution, 2, {{300, -0.1F, 8}, {350, -0.1F, 8}});
    EXPECT_TRUE(marginAt(350, {1, 0}).passes);
    EXPECT_EQ(marginText(marginAt(360, {1, 0})),
              "not shown: the speeds end 10 KEAS below 1 x 360 = 360 KEAS at g = 0");
}

TEST_F(RequirementTest, isNotShownByAStartOfAnotherModeAboveIt)
{
    addMode(evolution, 2, {{200, -0.1F, 8}, {290, -0.1F, 8}});
    EXPECT_TRUE(marginAt(280, {1, 0}).passes) << "mode 1 starts at 325 KEAS";
    EXPECT_FALSE(marginAt(300, {1, 0}).passes);
    EXPECT_EQ(marginText(marginAt(300, {1, 0})),
              "not shown: the speeds end 10 KEAS below 1 x 300 = 300 KEAS at g = 0");
}

TEST_F(RequirementTest, isNotShownWhereTheSpeedsEndBelowIt)
{
    evolution.Modes[0]->Points[1].G = -0.125F;
    EXPECT_TRUE(marginAt(300).passes);
    EXPECT_EQ(marginText(marginAt(300)),
              "pass: no instability up to 1.15 x 300 = 345 KEAS at g = 0");
    EXPECT_FALSE(marginAt(360).passes);
    EXPECT_EQ(marginText(marginAt(360)),
              "not shown: the speeds end 14 KEAS below 1.15 x 360 = 414 KEAS at g = 0");
}

TEST_F(RequirementTest, failsForAModeThatIsUnstableFromTheFirstSpeed)
{
    evolution.Modes[0]->Points[0].G = 1;
    EXPECT_FALSE(marginAt(100).passes);
    EXPECT_EQ(marginText(marginAt(100)),
              "fail: unstable from the first speed; required is 1.15 x 100 = 115 KEAS at g = 0");
}

TEST_F(RequirementTest, needsAnEnvelopeForTheMachNumber)
{
    evolution.Param.Mach = 0.5F;
    EXPECT_FALSE(marginAt(100).passes);
    EXPECT_EQ(marginText(marginAt(100)), "not judged: no flutter envelope for Mach number 0.50");
}

namespace {

class StabilitySheetTest : public ::testing::Test
{
protected:
    StabilitySheetTest() { evolution.FileName = "wing.ev2"; }

    Sheet write(const StabilitySettings& settings = atZero())
    {
        Sheet sheet(stabilitySheetTitle);
        writeStability({{judged({&evolution, 0, std::nullopt}, settings)}, settings, "Tarsil 4"},
                       sheet);
        return sheet;
    }

    /// The text of a column in the first row whose first cell is `first`.
    static std::string noteOf(const Sheet& sheet, std::string_view first, std::size_t column)
    {
        for (std::size_t row = 2; row <= sheet.rowCount(); ++row) {
            if (textAt(sheet, row, 1) == first)
                return textAt(sheet, row, column);
        }
        return "none";
    }

    EVM evolution;
};

} // namespace

TEST_F(StabilitySheetTest, listsVerdictsThenRealStretchesAndCountsTheOthers)
{
    addMode(evolution, 1, {{300, -0.5F, 8}, {400, 0.5F, 10}});
    addMode(evolution, 2, {{300, -0.5F, 8}, {320, 0.5F, 10}, {340, -0.5F, 10}});
    addMode(evolution, 3, {{300, -0.5F, 8}, {320, 1e-8F, 10}, {340, -0.5F, 10}});
    const Sheet sheet = write();
    EXPECT_EQ(textAt(sheet, 1, 1), "File");
    EXPECT_THAT(textAt(sheet, 2, 4),
                AllOf(StartsWith("310.00 +- "), EndsWith(" KEAS, 9.00 Hz, flutter, mode 2 (B)")));
    EXPECT_EQ(textAt(sheet, 3, 3), "2");
    EXPECT_EQ(textAt(sheet, 3, 4), "hump");
    EXPECT_EQ(textAt(sheet, 3, 5), "flutter");
    EXPECT_EQ(textAt(sheet, 3, 6), "310");
    EXPECT_EQ(textAt(sheet, 3, 13), "330");
    EXPECT_EQ(textAt(sheet, 3, 15), "0.5");
    EXPECT_EQ(textAt(sheet, 4, 3), "1");
    EXPECT_EQ(textAt(sheet, 4, 4), "becomes unstable");
    EXPECT_EQ(textAt(sheet, 4, 6), "350");
    EXPECT_EQ(textAt(sheet, 4, 20), "up to the last speed");
    EXPECT_EQ(textAt(sheet, 5, 4), "1 noise, 0 weak stretches left out");
}

TEST_F(StabilitySheetTest, coloursWhatIsUnstableFromTheFirstSpeedAndDifferentRoots)
{
    addMode(evolution, 1, {{300, 0.5F, 8}, {400, 0.5F, 10}});
    addMode(evolution, 2, {{300, -0.5F, 0}, {400, 0.5F, 10}});
    const Sheet sheet = write();
    EXPECT_EQ(sheet.rowStyle(2), CellStyle::Bad);
    EXPECT_EQ(textAt(sheet, 3, 4), "unstable throughout");
    EXPECT_EQ(sheet.rowStyle(3), CellStyle::Bad);
    EXPECT_EQ(textAt(sheet, 4, 5), "mixed");
    EXPECT_EQ(textAt(sheet, 4, 6), "") << "no speed between different roots";
    EXPECT_EQ(textAt(sheet, 4, 20),
              "starts between 300 and 400 KEAS, different roots; up to the last speed");
    EXPECT_EQ(sheet.rowStyle(4), CellStyle::Warning);
}

TEST_F(StabilitySheetTest, saysFromWhichSettingsProgramAndFilesItComes)
{
    const test::TemporaryFolder folder;
    folder.write("wing.ev2", "abc");
    evolution.Folder = folder.path().string();
    addMode(evolution, 1, {{300, -0.5F, 8}, {400, -0.5F, 10}});
    const Sheet sheet = write();
    EXPECT_EQ(sheet.rowStyle(2), CellStyle::Good);
    EXPECT_EQ(noteOf(sheet, "Settings", 4),
              "levels of damping 0; weak up to 0.001 above a level, noise up to 0.000001; static "
              "below 0.1 Hz; modes as printed");
    EXPECT_EQ(noteOf(sheet, "Program", 4), "Tarsil 4");
    // Its source is the row after the heading of the sources; the digest is that of FIPS 180-4.
    std::size_t row = 2;
    while (textAt(sheet, row, 1) != "Source files")
        ++row;
    EXPECT_THAT(textAt(sheet, row + 1, 4),
                AllOf(StartsWith("3 bytes, "),
                      HasSubstr("SHA-256 ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61"
                                "f20015ad")));
}

TEST_F(StabilitySheetTest, saysWhyAFileIsNotThereOrCannotBeTracked)
{
    addMode(evolution, 1, {{300, -0.5F, 8}, {400, -0.5F, 10}});
    addMode(evolution, 2, {{300, -0.5F, 9}, {400, -0.5F, 11}});
    StabilitySettings settings = atZero();
    settings.isTracked = true;
    const Sheet sheet = write(settings);
    EXPECT_EQ(textAt(sheet, 2, 4), "cannot be tracked: its points have no eigenvalues");
    EXPECT_EQ(sheet.rowStyle(2), CellStyle::Warning);
}
