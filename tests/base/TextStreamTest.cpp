// SPDX-License-Identifier: Apache-2.0
#include "base/files/TextStream.h"

#include "base/user/RunTimeError.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarsil {

namespace {

std::vector<std::string> linesOf(std::string_view text)
{
    TextStream stream(text, "x");
    std::vector<std::string> lines;
    while (!stream.atEndOfStream())
        lines.emplace_back(stream.readLine());
    return lines;
}

using Lines = std::vector<std::string>;

TEST(TextStream, acceptsBothLineEnds)
{
    EXPECT_EQ(linesOf("a\nb\n"), (Lines {"a", "b"}));
    EXPECT_EQ(linesOf("a\r\nb\r\n"), (Lines {"a", "b"}));
    EXPECT_EQ(linesOf("a\r\n\r\nb"), (Lines {"a", "", "b"}));
}

TEST(TextStream, acceptsALastLineWithoutEnd)
{
    EXPECT_EQ(linesOf("a\nb"), (Lines {"a", "b"}));
    EXPECT_EQ(linesOf("a\nb\r"), (Lines {"a", "b"}));
}

TEST(TextStream, passesOverAByteOrderMark)
{
    EXPECT_EQ(linesOf("\xEF\xBB\xBF[A]\n"), (Lines {"[A]"}));
    EXPECT_EQ(linesOf("\xEF\xBB\xBF"), Lines {});
}

TEST(TextStream, hasNoLineInAnEmptyText)
{
    EXPECT_EQ(linesOf(""), Lines {});
    EXPECT_EQ(linesOf("\n"), (Lines {""}));
}

TEST(TextStream, keepsACarriageReturnWithinALine)
{
    EXPECT_EQ(linesOf("a\rb\n"), (Lines {"a\rb"}));
}

TEST(TextStream, saysWhereItEnded)
{
    TextStream stream("a\n", "wing.evm");
    stream.readLine();
    EXPECT_EQ(stream.location(), "wing.evm, line 1");
    EXPECT_EQ(stream.rest(), "");
    EXPECT_EQ(test::errorTextOf([&stream] { stream.readLine(); }),
              "62 Input past end of file: wing.evm ends after line 1");
}

} // namespace

} // namespace tarsil
