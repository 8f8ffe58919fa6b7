// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfStoredValue.h"

#include <gtest/gtest.h>

#include <string>

using namespace tarsil;
using namespace std::string_literals;

TEST(RtfStoredValue, keepsEveryLineEndAsANul)
{
    const std::string rtf = "{\\rtf1 a\\par\r\n\\par\r\n}\r\n";
    const std::string value = "{\\rtf1 a\\par\0\\par\0}\0"s;
    EXPECT_EQ(storedValueFromRtf(rtf), value);
    EXPECT_EQ(rtfFromStoredValue(value), rtf);
    EXPECT_EQ(storedValueFromRtf(""), "");
    EXPECT_EQ(rtfFromStoredValue("\0\0"s), "\r\n\r\n");
}

TEST(RtfStoredValue, leavesLoneLineEndsAloneAndReadsANulOfTheSourceAsABlank)
{
    EXPECT_EQ(storedValueFromRtf("a\rb\nc\r\r\nd\n\r"), "a\rb\nc\r\0d\n\r"s);
    EXPECT_EQ(storedValueFromRtf("a\0b"s), "a b");
}
