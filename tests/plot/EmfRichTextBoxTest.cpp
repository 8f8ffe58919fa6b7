#include "plot/EmfRichTextBox.h"

#include "plot/Picture.h"
#include "support/RecordingContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::RecordingContext;
using ::testing::ElementsAre;

namespace {

std::vector<std::string> drawing(emfRichTextBox& box)
{
    RecordingContext context;
    box.drawEMF(context);
    return context.drawingCalls();
}

} // namespace

TEST(EmfRichTextBox, separatesItsLinesWithCarriageReturnAndLineFeed)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a\nb\rc\r\nd\n\ne"));
    EXPECT_EQ(box.Text(), QStringLiteral("a\r\nb\r\nc\r\nd\r\n\r\ne"));
}

TEST(EmfRichTextBox, drawsEachLineOnItsBaseline)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("header\nsecond"));
    // The first baseline is one ascent (8) below the edge, the next a line (10) farther.
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Arial 10 #000000 header",
                            "text BaselineLeft 0,18 Arial 10 #000000 second"));
}

TEST(EmfRichTextBox, advancesOverAnEmptyLine)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a\n\nb"));
    EXPECT_EQ(drawing(box).back(), "text BaselineLeft 0,28 Arial 10 #000000 b");
}

TEST(EmfRichTextBox, drawsWithItsFontAndColour)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("x"));
    box.setFont({QStringLiteral("Courier New"), 14, true, true});
    box.setForeColor(rgb(1, 2, 3));
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Courier New 14 bold italic #010203 x"));
}

TEST(EmfRichTextBox, standsWhereItWasMovedInTwentiethsOfAPoint)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("x"));
    box.Move(150, 300); // 15 to a pixel
    EXPECT_EQ(box.geometry().topLeft(), QPoint(10, 20));
    RecordingContext context;
    box.drawEMF(context);
    EXPECT_EQ(context.calls().front(), "origin 10,20");
    EXPECT_EQ(context.calls().back(), "origin 0,0");
}

TEST(EmfRichTextBox, keepsItsPositionAsGiven)
{
    emfRichTextBox box;
    box.Move(1007.5, -8);
    EXPECT_EQ(box.unitsLeft(), 1007.5);
    EXPECT_EQ(box.unitsTop(), -8);
    box.setText(QStringLiteral("x"));
    EXPECT_EQ(box.unitsLeft(), 1007.5);
    EXPECT_EQ(box.geometry().topLeft(), QPoint(67, -1)); // 67.17 and -0.53
}

TEST(EmfRichTextBox, isAsLargeAsItsText)
{
    test::Picture picture;
    emfRichTextBox box;
    const QString wide = QStringLiteral("the widest line");
    box.setText(QStringLiteral("a\n") + wide);
    const QSize line = picture.context().textExtent(wide, box.Font());
    EXPECT_EQ(box.geometry().size(), QSize(line.width(), 2 * line.height()));
}

TEST(EmfRichTextBox, isAtLeastAsWideAsItWasTold)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a"));
    box.setMinimumWidth(500);
    EXPECT_EQ(box.Width(), 500);
    box.setText(QStringLiteral("b"));
    EXPECT_EQ(box.Width(), 500);
}

TEST(EmfRichTextBox, hasTheSizeOfItsPromptWhileItIsEmptyButDoesNotDrawIt)
{
    test::Picture picture;
    emfRichTextBox box;
    box.setPrompt(QStringLiteral("Insert Legend"));
    box.setText({});
    EXPECT_EQ(box.geometry().size(), picture.context().textExtent(box.prompt(), box.Font()));
    EXPECT_TRUE(box.Text().isEmpty());
    RecordingContext context;
    box.drawEMF(context);
    EXPECT_TRUE(context.ink().isEmpty());
}

TEST(EmfRichTextBox, clonesTextFontColourAndPosition)
{
    emfRichTextBox source;
    source.setText(QStringLiteral("a\nb"));
    source.setFont({QStringLiteral("Arial"), 18, false, true});
    source.setForeColor(rgb(9, 8, 7));
    source.Move(450, 75);
    emfRichTextBox copy;
    copy.Clone(source);
    EXPECT_EQ(copy.Text(), source.Text());
    EXPECT_EQ(copy.Font(), source.Font());
    EXPECT_EQ(copy.ForeColor(), source.ForeColor());
    EXPECT_EQ(copy.geometry(), source.geometry());
    copy.setText(QStringLiteral("c"));
    EXPECT_EQ(source.Text(), QStringLiteral("a\r\nb"));
}
