// SPDX-License-Identifier: Apache-2.0
#include "plot/EmfRichTextBox.h"

#include "support/Errors.h"
#include "support/RecordingContext.h"
#include "surface/Picture.h"

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
    // The first baseline is one ascent (8) below the edge, the next one line (10) further down.
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
    box.Move(150, 300); // 15 units for each pixel
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

TEST(EmfRichTextBox, isAtLeastAsLargeAsAskedFor)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a"));
    box.setUnitsWidth(7500); // 15 units for each pixel
    box.setUnitsHeight(900);
    EXPECT_EQ(box.geometry().size(), QSize(500, 60));
    EXPECT_EQ(box.unitsWidth(), 7500);
    EXPECT_EQ(box.unitsHeight(), 900);
    box.setText(QStringLiteral("b\n\n\n\n\n\n"));
    EXPECT_EQ(box.Width(), 500);
    EXPECT_GT(box.Height(), 60) << "the text needs more";
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

TEST(EmfRichTextBox, drawsEachCharacterInItsOwnFontAndColour)
{
    emfRichTextBox box;
    box.setTextRTF("{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}"
                   "{\\colortbl ;\\red255\\green0\\blue0;}"
                   "\\f0\\fs20 ab\\cf1\\b c\\cf0\\b0\\f1\\fs40 d\\par}");
    // Each character of the recording surface is 6 pixels wide.
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Arial 10 #000000 ab",
                            "text BaselineLeft 12,8 Arial 10 bold #ff0000 c",
                            "text BaselineLeft 18,8 Courier New 20 #000000 d"));
}

TEST(EmfRichTextBox, advancesByTheHighestCharacterOfALine)
{
    test::Picture picture;
    emfRichTextBox box;
    box.setTextRTF("{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\fs20 a\\fs60 B\\fs20\\par c\\par}");
    RecordingContext recording;
    const auto heightOf = [&picture](double points) {
        return picture.context().textExtent(QStringLiteral("x"), {QStringLiteral("Arial"), points});
    };
    const auto ascent = picture.context().textAscent({QStringLiteral("Arial"), 30});
    const int descent =
        heightOf(10).height() - picture.context().textAscent({QStringLiteral("Arial"), 10});
    EXPECT_EQ(box.Height(), ascent + heightOf(30).height() + descent);
}

TEST(EmfRichTextBox, drawsATabAsAGap)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a\tb"));
    // A tab goes to the next half inch: 48 pixels.
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Arial 10 #000000 a",
                            "text BaselineLeft 48,8 Arial 10 #000000 b"));
}

TEST(EmfRichTextBox, showsAutomaticColourInItsOwn)
{
    emfRichTextBox box;
    box.setTextRTF("{\\rtf1{\\colortbl ;\\red1\\green2\\blue3;}a\\cf1 b}");
    box.setForeColor(rgb(9, 9, 9));
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Arial 10 #090909 a",
                            "text BaselineLeft 6,8 Arial 10 #010203 b"));
}

TEST(EmfRichTextBox, givesTheWholeTextItsFontButLeavesTheColours)
{
    emfRichTextBox box;
    box.setTextRTF("{\\rtf1{\\colortbl ;\\red1\\green2\\blue3;}\\fs40 a\\cf1\\b b}");
    box.setFont({QStringLiteral("Courier New"), 12});
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Courier New 12 #000000 a",
                            "text BaselineLeft 6,8 Courier New 12 #010203 b"));
}

TEST(EmfRichTextBox, keepsItsTextThroughRichTextFormat)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a\n\xC4\u03A9\n"));
    box.setSelStart(0);
    box.setSelLength(1);
    box.setSelColor(rgb(255, 0, 0));
    emfRichTextBox copy;
    copy.setTextRTF(box.TextRTF());
    EXPECT_EQ(copy.Text(), box.Text());
    EXPECT_EQ(copy.content(), box.content());
}

TEST(EmfRichTextBox, treatsOtherTextAsPlainWhereRichTextIsSet)
{
    emfRichTextBox box;
    box.setTextRTF("header\r\nsecond");
    EXPECT_EQ(box.Text(), QStringLiteral("header\r\nsecond"));
}

TEST(Selection, countsALineBreakAsTwo)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("ab\ncd"));
    box.setSelStart(4);
    box.setSelLength(2);
    EXPECT_EQ(box.SelText(), QStringLiteral("cd"));
    box.setSelStart(2);
    box.setSelLength(2);
    EXPECT_EQ(box.SelText(), QStringLiteral("\r\n"));
    box.setSelLength(1);
    EXPECT_EQ(box.SelText(), QStringLiteral("\r"));
    EXPECT_EQ(box.SelStart(), 2);
    EXPECT_EQ(box.SelLength(), 1);
}

TEST(Selection, countsACharacterOutsideTheBasicPlaneAsTwo)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("\U0001D6FAb\nc"));
    box.setSelStart(2);
    box.setSelLength(1);
    EXPECT_EQ(box.SelText(), QStringLiteral("b"));
    box.setSelColor(rgb(255, 0, 0));
    EXPECT_EQ(drawing(box)[1], "text BaselineLeft 12,8 Arial 10 #ff0000 b");
    // A change of half a line break affects the whole.
    box.setSelStart(1);
    box.setSelLength(1);
    box.setSelText(QStringLiteral("x"));
    EXPECT_EQ(box.Text(), QStringLiteral("xb\r\nc"));
}

TEST(Selection, endsWithTheText)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("abc"));
    box.setSelStart(2);
    box.setSelLength(100);
    EXPECT_EQ(box.SelLength(), 1);
    EXPECT_EQ(box.SelText(), QStringLiteral("c"));
    box.setSelStart(100);
    EXPECT_EQ(box.SelStart(), 3);
    EXPECT_EQ(box.SelText(), QString());
}

TEST(Selection, refusesNegativePositions)
{
    emfRichTextBox box;
    EXPECT_EQ(test::errorNumberOf([&] { box.setSelStart(-1); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(test::errorNumberOf([&] { box.setSelLength(-1); }),
              ErrorNumber::InvalidProcedureCall);
}

TEST(Selection, isReplacedByTextOfItsOwnLook)
{
    emfRichTextBox box;
    box.setTextRTF("{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;}a\\cf1 bc\\cf0 d}");
    box.setSelStart(1);
    box.setSelLength(2);
    EXPECT_EQ(box.SelColor(), rgb(255, 0, 0));
    box.setSelText(QStringLiteral("x\ny"));
    EXPECT_EQ(box.Text(), QStringLiteral("ax\r\nyd"));
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Arial 10 #000000 a",
                            "text BaselineLeft 6,8 Arial 10 #ff0000 x",
                            "text BaselineLeft 0,18 Arial 10 #ff0000 y",
                            "text BaselineLeft 6,18 Arial 10 #000000 d"));
    EXPECT_EQ(box.SelStart(), 5) << "after the new text";
    EXPECT_EQ(box.SelLength(), 0);
}

TEST(Selection, replacesHalfALineBreakAsAWhole)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a\nb"));
    box.setSelStart(2); // the LF
    box.setSelLength(1);
    box.setSelText(QStringLiteral("-"));
    EXPECT_EQ(box.Text(), QStringLiteral("a-b"));
}

TEST(Selection, insertsBeforeTheBreakThatItIsIn)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a\nb"));
    box.setSelStart(2);
    box.setSelText(QStringLiteral("-"));
    EXPECT_EQ(box.Text(), QStringLiteral("a-\r\nb"));
}

TEST(EmfRichTextBox, keepsItsPropertiesInABag)
{
    emfRichTextBox box;
    EXPECT_EQ(box.WriteProperties().keys(),
              QStringList({QStringLiteral("Font"), QStringLiteral("ForeColor"),
                           QStringLiteral("SelLength"), QStringLiteral("SelStart"),
                           QStringLiteral("SelText"), QStringLiteral("Text")}));
    box.setFont({QStringLiteral("Courier New"), 12, true});
    box.setForeColor(rgb(1, 2, 3));
    box.setText(QStringLiteral("ab\nc"));
    box.setSelStart(1);
    box.setSelLength(3);
    emfRichTextBox copy;
    copy.ReadProperties(box.WriteProperties());
    EXPECT_EQ(copy.Font(), box.Font());
    EXPECT_EQ(copy.ForeColor(), box.ForeColor());
    EXPECT_EQ(copy.Text(), box.Text());
    EXPECT_EQ(copy.SelText(), QStringLiteral("b\r\n"));
    copy.ReadProperties({});
    EXPECT_EQ(copy.Font(), (Font {QStringLiteral("Arial"), 10}));
    EXPECT_EQ(copy.Text(), QString());
}

TEST(EmfRichTextBox, marksWhatWasSet)
{
    emfRichTextBox box;
    EXPECT_TRUE(box.changedProperties().isEmpty());
    box.setText(QStringLiteral("a"));
    box.setFont({QStringLiteral("Arial"), 12});
    box.setForeColor(1);
    box.setSelStart(0);
    box.setSelLength(1);
    box.setSelText(QStringLiteral("b"));
    for (const char* key : {"Text", "Font", "ForeColor", "SelStart", "SelLength", "SelText"})
        EXPECT_TRUE(box.changedProperties().contains(QString::fromLatin1(key))) << key;
}

TEST(EmfRichTextBox, distinguishesAPositionThatWasGivenFromOneThatItsContainerChose)
{
    emfRichTextBox box;
    box.place(150, 300);
    EXPECT_FALSE(box.wasMoved());
    EXPECT_EQ(box.geometry().topLeft(), QPoint(10, 20));
    box.setUnitsLeft(300);
    EXPECT_TRUE(box.wasMoved());
    box.setUnitsTop(450);
    EXPECT_EQ(box.geometry().topLeft(), QPoint(20, 30));
    box.setUnitsWidth(15);
    box.setUnitsHeight(15);
    for (const char* key : {"Left", "Top", "Width", "Height"})
        EXPECT_TRUE(box.changedProperties().contains(QString::fromLatin1(key))) << key;
}

TEST(EmfRichTextBox, usesNoMemoryForWhatCannotBeSeen)
{
    emfRichTextBox box;
    box.setContainer({0, 0, 400, 300});
    // 900 wide letters of 1638 points are two million columns.
    box.setTextRTF("{\\rtf\\fs3276 " + std::string(900, 'W') + "}");
    box.Draw(nullptr);
    EXPECT_LE(box.surface().width(), 400);
    EXPECT_LE(box.surface().height(), 300);
    EXPECT_FALSE(box.surface().isNull());
    box.Move(15 * 5000, 0);
    box.Draw(nullptr);
    EXPECT_TRUE(box.surface().isNull()) << "outside of the plot";
}

TEST(EmfRichTextBox, endsAtTheEdgesOfThePlotInFilesToo)
{
    emfRichTextBox box;
    box.setContainer({0, 0, 400, 300});
    box.setText(QStringLiteral("text"));
    RecordingContext context;
    box.drawEMF(context);
    EXPECT_THAT(context.calls(), ::testing::Contains("clip 0,0 400x300"));
}

TEST(EmfRichTextBox, showsSlantedLettersWhole)
{
    emfRichTextBox box;
    box.setTextRTF("{\\rtf\\i\\fs96 jf}");
    box.Move(15 * 100, 15 * 100);
    box.Draw(nullptr);
    test::Picture picture;
    box.Draw(&picture.context());
    const QRect surface(box.surfacePosition(), box.surface().size());
    EXPECT_TRUE(surface.contains(picture.ink()));
}

TEST(EmfRichTextBox, drawsTheSignsOfTheSymbolFaceInItsOwnFace)
{
    emfRichTextBox box;
    box.setTextRTF("{\\rtf{\\fonttbl{\\f0\\fcharset2 Symbol;}}\\f0\\fs20 ab}");
    EXPECT_THAT(drawing(box),
                ElementsAre("text BaselineLeft 0,8 Arial 10 #000000 \xCE\xB1\xCE\xB2"));
    EXPECT_EQ(box.Text(), QStringLiteral("\uF061\uF062")) << "the text itself stays";
}

TEST(EmfRichTextBox, keepsNoControlCharacters)
{
    emfRichTextBox box;
    box.setText(QStringLiteral("a\u0001b\u2028c\u2029d"));
    EXPECT_EQ(box.Text(), QStringLiteral("ab\r\nc\r\nd"));
}

TEST(Selection, keepsAColourForTextThatIsInserted)
{
    emfRichTextBox box;
    box.setSelColor(rgb(255, 0, 0));
    EXPECT_EQ(box.SelColor(), rgb(255, 0, 0));
    box.setSelText(QStringLiteral("abc"));
    EXPECT_THAT(drawing(box), ElementsAre("text BaselineLeft 0,8 Arial 10 #ff0000 abc"));
    box.setSelColor(rgb(0, 0, 255));
    box.setSelStart(3);
    EXPECT_EQ(box.SelColor(), rgb(255, 0, 0)) << "the selection has moved";
}

TEST(Selection, returnsTheColourThatInsertedTextWillHave)
{
    emfRichTextBox box;
    box.setTextRTF("{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;}a\\cf1 b}");
    box.setSelStart(1);
    EXPECT_EQ(box.SelColor(), rgb(0, 0, 0));
    box.setSelText(QStringLiteral("x"));
    EXPECT_EQ(drawing(box)[0], "text BaselineLeft 0,8 Arial 10 #000000 ax");
}
