#include "analysis/Stability.h"

#include "analysis/ModeBuilder.h"
#include "analysis/Sheet.h"
#include "analysis/StabilitySheet.h"
#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;

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
    EXPECT_EQ(verdictAtZero(evolution), "325.00 KEAS, 8.50 Hz, flutter, mode 3 (B)")
        << "the weak one of mode 5 does not count";
}

TEST(Stability, namesModesThatAreUnstableFromTheFirstSpeed)
{
    EVM evolution;
    addMode(evolution, 2, {{300, 0.1F, 8}, {400, -0.1F, 10}});
    addMode(evolution, 4, {{300, 0.1F, 8}, {400, 0.1F, 10}});
    EXPECT_EQ(verdictAtZero(evolution), "unstable from the first speed: modes 2, 4");
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
    addMode(evolution, 1, {{300, -0.1F, 0}, {400, 0.1F, 10}});
    StabilitySettings settings = atZero();
    settings.isTracked = true;
    EXPECT_THROW(stabilityOf(evolution, settings), RunTimeError);
}

TEST(StabilitySheet, listsVerdictsThenRealStretchesAndCountsTheOthers)
{
    EVM evolution;
    evolution.FileName = "wing.ev2";
    addMode(evolution, 1, {{300, -0.5F, 8}, {400, 0.5F, 10}});
    addMode(evolution, 2, {{300, -0.5F, 8}, {320, 0.5F, 10}, {340, -0.5F, 10}});
    addMode(evolution, 3, {{300, -0.5F, 8}, {320, 1e-8F, 10}, {340, -0.5F, 10}});
    Sheet sheet;
    writeStability({&evolution}, atZero(), sheet);
    EXPECT_EQ(textAt(sheet, 1, 1), "File");
    EXPECT_EQ(textAt(sheet, 2, 12), "310.00 KEAS, 9.00 Hz, flutter, mode 2 (B)");
    EXPECT_EQ(textAt(sheet, 3, 2), "2");
    EXPECT_EQ(textAt(sheet, 3, 4), "310");
    EXPECT_EQ(textAt(sheet, 3, 8), "330");
    EXPECT_EQ(textAt(sheet, 3, 12), "hump");
    EXPECT_EQ(textAt(sheet, 4, 2), "1");
    EXPECT_EQ(textAt(sheet, 4, 4), "350");
    EXPECT_EQ(textAt(sheet, 4, 6), "flutter");
    EXPECT_EQ(textAt(sheet, 4, 12), "up to the last speed");
    EXPECT_EQ(textAt(sheet, 5, 12), "1 noise, 0 weak stretches left out");
}
