// SPDX-License-Identifier: Apache-2.0
#include "rtf/RichTextEdit.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

TextFormat bold()
{
    TextFormat format;
    format.bold = true;
    return format;
}

/// "ab" plain, "cd" bold.
RichText plainThenBold()
{
    return {{{u"ab", {}}, {u"cd", bold()}}, bold()};
}

} // namespace

TEST(RichTextEdit, replacesARangeAcrossRuns)
{
    RichText text = plainThenBold();
    replaceText(text, 1, 2, u"xy", bold());
    EXPECT_EQ(text.runs, (std::vector<TextRun> {{u"a", {}}, {u"xyd", bold()}}));
}

TEST(RichTextEdit, insertsAtBothEnds)
{
    RichText text = plainThenBold();
    replaceText(text, 0, 0, u"<", {});
    replaceText(text, 5, 0, u">", {});
    EXPECT_EQ(text.runs, (std::vector<TextRun> {{u"<ab", {}}, {u"cd", bold()}, {u">", {}}}));
}

TEST(RichTextEdit, removesEverythingToTheEndAndBeyond)
{
    RichText text = plainThenBold();
    replaceText(text, 1, 100, u"", {});
    EXPECT_EQ(plainText(text), u"a");
    replaceText(text, 0, 1, u"", {});
    EXPECT_TRUE(text.runs.empty());
}

TEST(RichTextEdit, changesTheLookOfARangeOnly)
{
    RichText text = plainThenBold();
    changeFormat(text, 1, 2, [](TextFormat& format) { format.italic = true; });
    ASSERT_EQ(text.runs.size(), 4U);
    EXPECT_EQ(plainText(text), u"abcd");
    EXPECT_FALSE(formatAt(text, 0).italic);
    EXPECT_TRUE(formatAt(text, 1).italic);
    EXPECT_TRUE(formatAt(text, 2).italic);
    EXPECT_FALSE(formatAt(text, 3).italic);
    EXPECT_TRUE(formatAt(text, 4).bold) << "after the text: the look at its end";
    changeFormat(text, 0, 0, [](TextFormat& format) { format.underline = true; });
    EXPECT_FALSE(formatAt(text, 0).underline);
}

TEST(ShownText, hasTwoCharactersForALineBreak)
{
    EXPECT_EQ(shownText(u"a\nb\n"), u"a\r\nb\r\n");
    EXPECT_EQ(shownPosition(u"a\nb", 1), 1U);
    EXPECT_EQ(shownPosition(u"a\nb", 2), 3U);
    EXPECT_EQ(shownPosition(u"a\nb", 3), 4U);
}

TEST(ShownText, givesRangesOfWholeCharacters)
{
    // Shown positions: a 0, CR 1, LF 2, b 3.
    EXPECT_EQ(plainRange(u"a\nb", 0, 1), (TextRange {0, 1}));
    EXPECT_EQ(plainRange(u"a\nb", 1, 2), (TextRange {1, 1}));
    EXPECT_EQ(plainRange(u"a\nb", 2, 1), (TextRange {1, 1}));
    EXPECT_EQ(plainRange(u"a\nb", 2, 2), (TextRange {1, 2}));
    EXPECT_EQ(plainRange(u"a\nb", 3, 1), (TextRange {2, 1}));
    EXPECT_EQ(plainRange(u"a\nb", 2, 0), (TextRange {1, 0}));
    EXPECT_EQ(plainRange(u"a\nb", 4, 0), (TextRange {3, 0}));
    EXPECT_EQ(plainRange(u"a\nb", 9, 9), (TextRange {3, 0}));
    // A surrogate pair is never split.
    EXPECT_EQ(plainRange(u"\U0001D6FAb", 1, 1), (TextRange {0, 2}));
    EXPECT_EQ(plainRange(u"\U0001D6FAb", 0, 1), (TextRange {0, 2}));
    EXPECT_EQ(plainRange(u"\U0001D6FAb", 1, 0), (TextRange {0, 0}));
    EXPECT_EQ(plainRange(u"\U0001D6FAb", 2, 1), (TextRange {2, 1}));
}
