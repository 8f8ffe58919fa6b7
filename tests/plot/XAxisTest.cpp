// SPDX-License-Identifier: Apache-2.0
#include "plot/XAxis.h"

#include "support/Errors.h"
#include "support/RecordingContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::errorNumberOf;
using test::RecordingContext;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Lengths are in t, 8 points: 8 * 96 / 72 = 10.667 pixels. With a height of 64 the line is row 32.
// The end stroke extends 0.9 t = 9.6 to both sides (rows 42 and 22), a tick t / 2 = 5.33 (rows 27
// and 37), a mark from 0.4 t = 4.27 below (row 36) to 1.1 t = 11.73 above the line (row 20).
namespace {

class XAxis : public ::testing::Test
{
protected:
    XAxis() { axis.setGeometry({80, 298, 700, 64}); }

    std::vector<std::string> drawing()
    {
        RecordingContext context;
        axis.Draw(&context);
        return context.drawingCalls();
    }

    std::vector<std::string> labels()
    {
        std::vector<std::string> result;
        for (const std::string& call : drawing()) {
            if (call.starts_with("text "))
                result.push_back(call.substr(call.rfind(' ') + 1));
        }
        return result;
    }

    /// The bounds of the ink on the axis' own surface, in pixels of the axis; empty for none.
    QRect surfaceInk() const
    {
        QRect ink;
        for (int row = 0; row < axis.surface().height(); ++row) {
            for (int column = 0; column < axis.surface().width(); ++column) {
                if (axis.surface().pixelColor(column, row).alpha() > 0)
                    ink |= QRect(column, row, 1, 1);
            }
        }
        return ink.translated(axis.surfacePosition() - axis.geometry().topLeft());
    }

    xAxis axis;
};

} // namespace

TEST_F(XAxis, drawsLineEndMarkTicksAndLabels)
{
    axis.setNThick(3);
    axis.setMax(300);
    axis.setGeometry({0, 0, 300, 64});
    EXPECT_THAT(
        drawing(),
        ElementsAre(
            "line 0,32 299,32 solid 0 #000000", "line 299,42 299,22 solid 0 #000000",
            "line 100,27 100,37 solid 0 #000000", "text TopCenter 100,37 Arial 8 #000000 100",
            "line 200,27 200,37 solid 0 #000000", "text TopCenter 200,37 Arial 8 #000000 200"));
}

TEST_F(XAxis, labelsTheInnerTicksOfItsDefaults)
{
    EXPECT_THAT(labels(), ElementsAre("100", "200", "300", "400", "500", "600"));
}

TEST_F(XAxis, countsItsLabelsFromTheMinimum)
{
    axis.setNThick(4);
    axis.setMin(200);
    axis.setMax(600);
    EXPECT_THAT(labels(), ElementsAre("300", "400", "500"));
}

TEST_F(XAxis, canRunFromHighToLow)
{
    axis.setNThick(4);
    axis.setMin(400);
    axis.setMax(0);
    EXPECT_THAT(labels(), ElementsAre("300", "200", "100"));
}

TEST_F(XAxis, roundsEachLabelToAWholeNumber)
{
    axis.setNThick(4);
    axis.setMax(650); // 162.5, 325 and 487.5; ties round away from zero
    EXPECT_THAT(labels(), ElementsAre("163", "325", "488"));
}

TEST_F(XAxis, roundsTicksBetweenPixelsToTheEvenOne)
{
    axis.setNThick(4);
    axis.setGeometry({0, 0, 10, 64}); // columns 2.5, 5 and 7.5
    const std::vector<std::string> calls = drawing();
    EXPECT_EQ(calls.at(2), "line 2,27 2,37 solid 0 #000000");
    EXPECT_EQ(calls.at(4), "line 5,27 5,37 solid 0 #000000");
    EXPECT_EQ(calls.at(6), "line 8,27 8,37 solid 0 #000000");
}

TEST_F(XAxis, roundsAMiddleBetweenRowsToTheEvenOne)
{
    axis.setNThick(1);
    axis.setGeometry({0, 0, 100, 61}); // 30.5; 30.5 + 9.6 = 40.1 and 30.5 - 9.6 = 20.9
    EXPECT_THAT(drawing(),
                ElementsAre("line 0,30 99,30 solid 0 #000000", "line 99,40 99,21 solid 0 #000000"));
}

TEST_F(XAxis, drawsOnlyLineAndEndMarkForOneInterval)
{
    axis.setNThick(1);
    EXPECT_THAT(
        drawing(),
        ElementsAre("line 0,32 699,32 solid 0 #000000", "line 699,42 699,22 solid 0 #000000"));
}

TEST_F(XAxis, dividesByZeroForNoInterval)
{
    axis.setNThick(0);
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), ErrorNumber::DivisionByZero);
}

TEST_F(XAxis, drawsReferenceMarksInTheirOrderAfterTheTicks)
{
    axis.setNThick(1);
    axis.AddRef(350, QStringLiteral("Vd 350"));
    axis.AddRef(100, QStringLiteral("Vc"));
    EXPECT_THAT(
        drawing(),
        ElementsAre(
            "line 0,32 699,32 solid 0 #000000", "line 699,42 699,22 solid 0 #000000",
            "line 350,36 350,20 solid 0 #000000", "text BottomCenter 350,20 Arial 8 #000000 Vd 350",
            "line 100,36 100,20 solid 0 #000000", "text BottomCenter 100,20 Arial 8 #000000 Vc"));
}

TEST_F(XAxis, doesNotSubtractTheMinimumFromAReferenceSpeed)
{
    axis.setNThick(1);
    axis.setMin(350);
    axis.setMax(700);
    axis.AddRef(100, {}); // 100 * 700 / (700 - 350) = 200, not left of the axis
    EXPECT_EQ(drawing().at(2), "line 200,36 200,20 solid 0 #000000");
}

TEST_F(XAxis, keepsTheTicksInPlaceAfterReferencesWereDrawn)
{
    const std::vector<std::string> before = drawing();
    axis.AddRef(350, QStringLiteral("Vd"));
    drawing();
    axis.RemoveRef();
    EXPECT_EQ(drawing(), before);
}

TEST_F(XAxis, dividesByZeroForAReferenceMarkOnEqualBounds)
{
    axis.setMin(700);
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), std::nullopt);
    EXPECT_EQ(errorNumberOf([this] { axis.AddRef(100, {}); }), ErrorNumber::DivisionByZero);
}

TEST_F(XAxis, drawsAtOnceWhenAReferenceMarkIsAddedOrRemoved)
{
    axis.Draw(nullptr);
    const QImage without = axis.surface().copy();
    axis.AddRef(350, QStringLiteral("Vd"));
    EXPECT_NE(axis.surface(), without);
    ASSERT_EQ(axis.marks().size(), 1U);
    EXPECT_EQ(axis.marks()[0].Speed, 350.0F);
    EXPECT_EQ(axis.marks()[0].Caption, QStringLiteral("Vd"));
    axis.RemoveRef();
    EXPECT_THAT(axis.marks(), IsEmpty());
    EXPECT_EQ(axis.surface(), without);
}

TEST_F(XAxis, onlyDrawsAgainWhenThereIsNoReferenceMarkToRemove)
{
    ASSERT_TRUE(axis.surface().isNull());
    axis.RemoveRef();
    const QImage drawn = axis.surface().copy();
    EXPECT_FALSE(surfaceInk().isEmpty());
    axis.RemoveRef();
    EXPECT_EQ(axis.surface(), drawn);
}

TEST_F(XAxis, showsWhatHangsOverItsEndsOnTheScreen)
{
    axis.setNThick(1);
    axis.AddRef(700, QStringLiteral("a long reference"));
    const QRect ink = surfaceInk();
    EXPECT_EQ(ink.left(), 0);
    EXPECT_GT(ink.right(), 699 + 30); // half of 16 characters of at least 4 pixels
    EXPECT_EQ(ink.bottom(), 42);
}

TEST_F(XAxis, liesOnTheRowOfItsOriginFromItsColumnOn)
{
    axis.MoveToOrigin(80, 300);
    EXPECT_EQ(axis.geometry(), QRect(80, 300 - 64 / 2, 700, 64));
    RecordingContext context;
    axis.Draw(&context);
    EXPECT_EQ(context.strokes().at(0).from, QPoint(80, 300));
    EXPECT_EQ(context.strokes().at(0).to, QPoint(80 + 699, 300));
}

TEST_F(XAxis, isNotClippedInAnotherContext)
{
    axis.setNThick(1);
    RecordingContext context;
    axis.Draw(&context);
    EXPECT_THAT(context.calls(),
                ElementsAre("origin 80,298", "line 0,32 699,32 solid 0 #000000",
                            "line 699,42 699,22 solid 0 #000000", "clip none", "origin 0,0"));
}

TEST_F(XAxis, hasItsDefaultsUnderItsKeys)
{
    const PropertyBag expected = {{QStringLiteral("nThick"), 7},
                                  {QStringLiteral("Min"), 0.0},
                                  {QStringLiteral("Max"), 700.0}};
    EXPECT_EQ(axis.WriteProperties(), expected);
    EXPECT_TRUE(axis.changedProperties().isEmpty());
    axis.setNThick(2);
    axis.setMin(1);
    axis.setMax(2);
    axis.ReadProperties({});
    EXPECT_EQ(axis.WriteProperties(), expected);
}

TEST_F(XAxis, isReadBackFromTheBagThatItWrote)
{
    axis.setNThick(9);
    axis.setMin(100.5);
    axis.setMax(550.25);
    xAxis copy;
    copy.ReadProperties(axis.WriteProperties());
    EXPECT_EQ(copy.nThick(), 9);
    EXPECT_EQ(copy.Min(), 100.5);
    EXPECT_EQ(copy.Max(), 550.25);
}

TEST_F(XAxis, marksWhatWasSetAsChanged)
{
    axis.setMin(0);
    EXPECT_TRUE(axis.changedProperties().contains(QStringLiteral("Min")));
    EXPECT_FALSE(axis.changedProperties().contains(QStringLiteral("Max")));
    axis.setMax(700);
    axis.setNThick(7);
    EXPECT_TRUE(axis.changedProperties().contains(QStringLiteral("Max")));
    EXPECT_TRUE(axis.changedProperties().contains(QStringLiteral("nThick")));
}
