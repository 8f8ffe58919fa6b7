// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfReader.h"
#include "rtf/RtfStoredValue.h"
#include "rtf/RtfWriter.h"

#include <gtest/gtest.h>

#include <string>

using namespace tarsil;

namespace {

/// A text of `length` characters in one line.
RichText lineOf(std::size_t length)
{
    RichText text;
    text.runs.push_back({std::u16string(length, u'x'), {}});
    return text;
}

std::size_t storedSizeOfRtf(const std::string& rtf)
{
    return storedValueFromRtf(rtf).size();
}

} // namespace

TEST(RtfToStore, comesBackFromItsValue)
{
    RichText text = lineOf(3);
    text.runs.push_back({u"\n\n\u03A9", {.family = "Symbol", .bold = true}});
    const std::string rtf = writeRtf(text);
    EXPECT_EQ(rtfFromStoredValue(storedValueFromRtf(rtf)), rtf);
}

TEST(RtfToStore, storesTheFullFormAsLongAsItFits)
{
    const std::size_t rest = mostStoredBytes - storedSizeOfRtf(writeRtf(lineOf(1)));
    const RichText longest = lineOf(1 + rest);
    EXPECT_EQ(storedSizeOfRtf(rtfToStore(longest)), mostStoredBytes);
    EXPECT_EQ(rtfToStore(longest), writeRtf(longest, RtfForm::Full));

    const RichText longer = lineOf(2 + rest);
    EXPECT_EQ(rtfToStore(longer), writeRtf(longer, RtfForm::Short));
    // One character more, but 14 bytes less for \viewkind4\uc1 and 5 less for \fnil.
    EXPECT_EQ(storedSizeOfRtf(rtfToStore(longer)), mostStoredBytes + 1 - 19);
}

TEST(RtfToStore, storesTheShortFormWhereEvenThatIsTooLong)
{
    const RichText text = lineOf(2000);
    EXPECT_EQ(rtfToStore(text), writeRtf(text, RtfForm::Short));
}

TEST(RtfToStore, losesOnlyItsEndWhereItIsCut)
{
    const std::string value =
        storedValueFromRtf(rtfToStore(lineOf(2000))).substr(0, mostStoredBytes);
    const RichText text = readRtf(rtfFromStoredValue(value), {.family = "Tahoma", .points = 9});
    ASSERT_EQ(text.runs.size(), 1U);
    EXPECT_EQ(text.runs[0].format, TextFormat());
    EXPECT_GT(text.runs[0].text.size(), 900U);
}
