// SPDX-License-Identifier: Apache-2.0
#include "document/EvolutionFilter.h"

#include "model/EVM.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

class EvolutionFilterTest : public ::testing::Test
{
protected:
    EvolutionFilterTest()
    {
        evolution.FileName = "Wing_clean_m040.ev2";
        evolution.Param.Mass = "TIP_STORE";
        evolution.Param.Mach = 0.4F;
    }

    bool accepts(const char* text, bool hasWarnings = false)
    {
        return EvolutionFilter(QString::fromUtf8(text)).accepts(evolution, hasWarnings);
    }

    EVM evolution;
};

} // namespace

TEST_F(EvolutionFilterTest, acceptsEverythingWithoutAWord)
{
    EXPECT_TRUE(EvolutionFilter().isEmpty());
    EXPECT_TRUE(EvolutionFilter(QStringLiteral("  ")).isEmpty());
    EXPECT_TRUE(accepts(""));
}

TEST_F(EvolutionFilterTest, comparesPartsOfNameAndMassInAnyCase)
{
    EXPECT_TRUE(accepts("CLEAN"));
    EXPECT_FALSE(accepts("store")) << "only the mass configuration has it";
    EXPECT_TRUE(accepts("mass:store"));
    EXPECT_FALSE(accepts("mass:clean"));
}

TEST_F(EvolutionFilterTest, comparesTheMachNumberAsWrittenOrInARange)
{
    EXPECT_TRUE(accepts("mach:0.4"));
    EXPECT_TRUE(accepts("mach:0.40"));
    EXPECT_FALSE(accepts("mach:0.41"));
    EXPECT_TRUE(accepts("mach:0.4..0.6"));
    EXPECT_TRUE(accepts("MACH:0.3..0.4"));
    EXPECT_FALSE(accepts("mach:0.41..0.6"));
}

TEST_F(EvolutionFilterTest, needsAllWords)
{
    EXPECT_TRUE(accepts("wing mach:0.4 mass:tip"));
    EXPECT_FALSE(accepts("wing mach:0.5"));
    EXPECT_FALSE(accepts("wing warnings"));
    EXPECT_TRUE(accepts("wing Warnings", true));
}

TEST_F(EvolutionFilterTest, ignoresAWordThatIsNotComplete)
{
    for (const char* text : {"mach:", "mach:x", "mach:0.5..", "mass:"})
        EXPECT_TRUE(accepts(text)) << text;
}
