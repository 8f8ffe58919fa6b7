// SPDX-License-Identifier: Apache-2.0
#include "batch/ModeList.h"

#include "batch/BatchRun.h"
#include "batch/CommandLine.h"
#include "model/EVM.h"

#include <gtest/gtest.h>

using namespace tarsil;
using namespace tarsil::batch;

namespace {

/// The positions selected from a file of five modes, as text.
std::string chosen(const char* list)
{
    EVM evolution;
    for (std::int16_t id = 1; id <= 5; ++id)
        evolution.appendMode().Id = id;
    std::string text;
    for (const AeMode* mode : selectModes(evolution, parseModeList(list), "wing.ev2"))
        text += std::to_string(mode->Id);
    return text;
}

} // namespace

TEST(ListOfModes, holdsPositionsAndRangesInTheirOrder)
{
    EXPECT_EQ(chosen("1"), "1");
    EXPECT_EQ(chosen("1,3-5"), "1345");
    EXPECT_EQ(chosen("4-5,1,1"), "4511");
    EXPECT_EQ(chosen("2-2"), "2");
}

TEST(ListOfModes, isAllModesWhenMissing)
{
    EVM evolution;
    evolution.appendMode();
    evolution.appendMode();
    EXPECT_EQ(selectModes(evolution, std::nullopt, "x").size(), 2U);
    EXPECT_TRUE(selectModes(EVM(), std::nullopt, "x").empty());
}

TEST(ListOfModes, isNoOtherText)
{
    for (const char* text : {"", "a", "1,", ",1", "1-", "-1", "0", "0-2", "3-1", "1 2", "1..3",
                             "+1", "1-2-3", "99999999999999999999999"})
        EXPECT_THROW(modeListOf(text), UsageError) << text;
}

TEST(ListOfModes, namesFileAndPositionThatIsNotThere)
{
    for (const char* list : {"6", "1,6", "4-6", "6-1000000000000000000"}) {
        try {
            chosen(list);
            ADD_FAILURE() << list;
        } catch (const Failure& failure) {
            EXPECT_STREQ(failure.what(),
                         "wing.ev2: there is no mode at position 6; the file has 5");
        }
    }
}
