// SPDX-License-Identifier: Apache-2.0
#include "base/user/RunTimeError.h"

#include <gtest/gtest.h>

namespace tarsil {

namespace {

TEST(RunTimeError, describesItselfByStandardTextAndDetails)
{
    const RunTimeError bare(ErrorNumber::DivisionByZero, "ISA");
    EXPECT_STREQ(bare.what(), "Division by zero");
    EXPECT_EQ(bare.source(), "ISA");
    const RunTimeError detailed(ErrorNumber::FileNotFound, "EVM", "wing.evm");
    EXPECT_EQ(detailed.description(), "File not found: wing.evm");
}

TEST(RunTimeError, hasAStandardTextForEveryNumber)
{
    for (const int number : {5, 6, 9, 11, 13, 53, 57, 61, 62, 70, 75, 76, 91, 382, 387, 457})
        EXPECT_NE(standardText(static_cast<ErrorNumber>(number)), "Unknown error") << number;
    EXPECT_EQ(standardText(static_cast<ErrorNumber>(1)), "Unknown error");
}

} // namespace

} // namespace tarsil
