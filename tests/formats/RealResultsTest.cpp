// SPDX-License-Identifier: Apache-2.0
#include "base/files/PathNames.h"
#include "formats/EvolutionChecker.h"
#include "formats/EvolutionFile.h"
#include "model/EVM.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

// Results of published flutter runs, each in both layouts: the two readers must agree within the
// digits of the fixed-column layout.

namespace tarsil {

namespace {

void read(EVM& evolution, const std::string& name)
{
    const FilePath file = resolvePath(test::realResults() + "/" + name);
    evolution.Folder = file.folder;
    evolution.FileName = file.name;
    Contruct(evolution);
}

class RealResults : public ::testing::TestWithParam<const char*>
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::is_directory(test::realResults()))
            GTEST_SKIP() << "the real flutter results are not on this machine";
    }
};

void expectSamePoint(const Point& old, const Point& point)
{
    // Half a unit of the last of three decimals, half a unit of the four decimals of the other
    // layout, and the rounding to singles below 1000: twice 2^-15.
    constexpr float threeDecimals = 0.0005F + 0.00005F + 0.00007F;
    // Half a unit of the sixth digit, and a little for the singles.
    constexpr float sixDigits = 0.51e-5F;
    EXPECT_NEAR(old.speed, point.speed, threeDecimals);
    EXPECT_NEAR(old.f, point.f, threeDecimals);
    EXPECT_NEAR(old.G, point.G, std::fabs(point.G) * sixDigits);
    EXPECT_EQ(old.re, 0.0F);
    EXPECT_EQ(point.kfreq, 0.0F);
}

TEST_P(RealResults, agreeInBothLayouts)
{
    EVM old;
    EVM evolution;
    read(old, std::string(GetParam()) + ".evm");
    read(evolution, std::string(GetParam()) + ".ev2");
    ASSERT_FALSE(evolution.Modes.empty());
    EXPECT_EQ(old.na, evolution.na);
    EXPECT_EQ(old.numberOfSpeeds, evolution.numberOfSpeeds);
    EXPECT_FALSE(evolution.hasParticipationFactors);
    ASSERT_EQ(old.Modes.size(), evolution.Modes.size());
    for (std::size_t i = 0; i < old.Modes.size(); ++i) {
        EXPECT_EQ(old.Modes[i]->Id, evolution.Modes[i]->Id);
        ASSERT_EQ(old.Modes[i]->Points.size(), evolution.Modes[i]->Points.size());
        EXPECT_EQ(old.Modes[i]->Points.size(), static_cast<std::size_t>(old.numberOfSpeeds));
        for (std::size_t k = 0; k < old.Modes[i]->Points.size(); ++k)
            expectSamePoint(old.Modes[i]->Points[k], evolution.Modes[i]->Points[k]);
    }
}

TEST_P(RealResults, haveTheSameFindingsInBothLayouts)
{
    const auto textsOf = [](const std::string& extension) {
        std::vector<std::string> texts;
        const std::string path = test::realResults() + "/" + GetParam() + extension;
        for (const Finding& finding : checkEvolution(path))
            texts.push_back(finding.text.substr(0, finding.text.find(" the speed")));
        return texts;
    };
    EXPECT_EQ(textsOf(".evm"), textsOf(".ev2"));
}

INSTANTIATE_TEST_SUITE_P(Cases, RealResults,
                         ::testing::Values("naca0012_s1", "bah_wing_s1", "bah_wing_s2_2",
                                           "swept15_pk_s1", "swept15_ke_s1"),
                         [](const auto& parameters) { return std::string(parameters.param); });

} // namespace

} // namespace tarsil
