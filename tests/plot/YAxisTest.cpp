// SPDX-License-Identifier: Apache-2.0
#include "plot/YAxis.h"

#include "support/Errors.h"
#include "support/RecordingContext.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::errorNumberOf;
using test::RecordingContext;
using ::testing::ElementsAre;

// Lengths are in t, 8 points: 8 * 96 / 72 = 10.667 pixels. With a width of 120 the line is column
// 60. The end stroke extends 1.8 t = 19.2 to the right (column 79), a tick t (column 71), and
// labels end t / 2 = 5.33 to the left (column 55). The recording surface has lines 10 pixels high,
// so a label begins 5 rows above its tick.
namespace {

class YAxis : public ::testing::Test
{
protected:
    YAxis() { axis.setGeometry({20, 78, 120, 250}); }

    std::vector<std::string> drawing()
    {
        RecordingContext context;
        axis.Draw(&context);
        return context.drawingCalls();
    }

    /// The labels from top to bottom.
    std::vector<std::string> labels()
    {
        std::vector<std::string> result;
        for (const std::string& call : drawing()) {
            if (call.starts_with("text "))
                result.push_back(call.substr(call.rfind(' ') + 1));
        }
        return result;
    }

    yAxis axis;
};

} // namespace

TEST_F(YAxis, drawsLineEndMarkTicksAndLabelsWithTheMaximumAtTheTop)
{
    axis.setNThick(3);
    axis.setMax(30);
    axis.setGeometry({0, 0, 120, 300});
    EXPECT_THAT(drawing(),
                ElementsAre("line 60,0 60,299 solid 0 #000000", "line 60,0 79,0 solid 0 #000000",
                            "line 60,100 71,100 solid 0 #000000",
                            "text TopRight 55,95 Arial 8 #000000 20.00",
                            "line 60,200 71,200 solid 0 #000000",
                            "text TopRight 55,195 Arial 8 #000000 10.00"));
}

TEST_F(YAxis, drawsTheMinimumAtTheTopAndTheEndMarkBelowInTheOtherDirection)
{
    axis.setNThick(3);
    axis.setMax(30);
    axis.setDirection(true);
    axis.setGeometry({0, 0, 120, 300});
    EXPECT_THAT(
        drawing(),
        ElementsAre(
            "line 60,0 60,299 solid 0 #000000", "line 60,299 79,299 solid 0 #000000",
            "line 60,100 71,100 solid 0 #000000", "text TopRight 55,95 Arial 8 #000000 10.00",
            "line 60,200 71,200 solid 0 #000000", "text TopRight 55,195 Arial 8 #000000 20.00"));
}

TEST_F(YAxis, labelsTheInnerTicksOfItsDefaultsFromTopToBottom)
{
    EXPECT_THAT(labels(), ElementsAre("40.00", "30.00", "20.00", "10.00"));
}

TEST_F(YAxis, labelsDampingsDownFromTheOrigin)
{
    axis.setDirection(true);
    axis.setMax(-0.25);
    axis.setThickFormat(QStringLiteral("0.00#"));
    EXPECT_THAT(labels(), ElementsAre("-0.05", "-0.10", "-0.15", "-0.20"));
}

TEST_F(YAxis, writesItsLabelsWithTheFormat)
{
    axis.setNThick(2);
    axis.setMax(0.25); // the label is 0.125
    axis.setThickFormat(QStringLiteral("0.00#"));
    EXPECT_THAT(labels(), ElementsAre("0.125"));
    axis.setThickFormat(QStringLiteral("0.0#")); // ties round away from zero
    EXPECT_THAT(labels(), ElementsAre("0.13"));
    axis.setThickFormat(QStringLiteral("0"));
    EXPECT_THAT(labels(), ElementsAre("0"));
}

TEST_F(YAxis, roundsLabelsByTheirDecimalValue)
{
    // -0.35 / 4 = -0.0875, twice that is -0.175, three times -0.2625: ties round away from zero. In
    // binary the last is -0.26249999999999996.
    axis.setDirection(true);
    axis.setNThick(4);
    axis.setMax(-0.35);
    axis.setThickFormat(QStringLiteral("0.00#"));
    EXPECT_THAT(labels(), ElementsAre("-0.088", "-0.175", "-0.263"));
    // From 0.3 to -0.3 in 800 steps: tick 398 is at 0.0015, tick 402 at -0.0015.
    axis.setNThick(800);
    axis.setMin(0.3);
    axis.setMax(-0.3);
    axis.setThickFormat(QStringLiteral("0.000"));
    EXPECT_EQ(labels().at(397), "0.002");
    EXPECT_EQ(labels().at(399), "0.000");
    EXPECT_EQ(labels().at(401), "-0.002");
}

TEST_F(YAxis, labelsBoundsOfEverySize)
{
    axis.setNThick(2);
    axis.setMax(1e38);
    axis.setThickFormat(QStringLiteral("0"));
    EXPECT_EQ(labels().front(), "5" + std::string(37, '0'));
    axis.setMax(2e-38);
    axis.setThickFormat(QStringLiteral("0.0E+00"));
    EXPECT_THAT(labels(), ElementsAre("1.0E-38"));
    axis.setMax(0);
    EXPECT_THAT(labels(), ElementsAre("0.0E+00"));
}

TEST_F(YAxis, refusesAFormatThatIsNone)
{
    axis.setThickFormat(QStringLiteral("km"));
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), ErrorNumber::InvalidProcedureCall);
}

TEST_F(YAxis, roundsTicksAndLabelsBetweenPixelsToTheEvenOne)
{
    axis.setNThick(4);
    axis.setGeometry({0, 0, 121, 50}); // column 60.5, rows 12.5, 25 and 37.5
    // Columns 60.5 -> 60, 60.5 + 10.67 = 71.17 -> 71, 60.5 - 5.33 = 55.17 -> 55; label tops 7.5 ->
    // 8, 20 and 32.5 -> 32.
    EXPECT_THAT(
        drawing(),
        ElementsAre("line 60,0 60,49 solid 0 #000000", "line 60,0 80,0 solid 0 #000000",
                    "line 60,12 71,12 solid 0 #000000", "text TopRight 55,8 Arial 8 #000000 37.50",
                    "line 60,25 71,25 solid 0 #000000", "text TopRight 55,20 Arial 8 #000000 25.00",
                    "line 60,38 71,38 solid 0 #000000",
                    "text TopRight 55,32 Arial 8 #000000 12.50"));
}

TEST_F(YAxis, drawsOnlyLineAndEndMarkForOneInterval)
{
    axis.setNThick(1);
    EXPECT_THAT(drawing(),
                ElementsAre("line 60,0 60,249 solid 0 #000000", "line 60,0 79,0 solid 0 #000000"));
}

TEST_F(YAxis, dividesByZeroForNoInterval)
{
    axis.setNThick(0);
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), ErrorNumber::DivisionByZero);
}

TEST_F(YAxis, standsOnItsOrigin)
{
    axis.MoveToOrigin(80, 330);
    EXPECT_EQ(axis.geometry(), QRect(80 - 120 / 2, 330 - 250, 120, 250));
}

TEST_F(YAxis, hangsFromItsOriginInTheOtherDirection)
{
    axis.setDirection(true);
    axis.MoveToOrigin(80, 330);
    EXPECT_EQ(axis.geometry(), QRect(80 - 120 / 2, 330, 120, 250));
}

TEST_F(YAxis, liesOnTheColumnOfItsOrigin)
{
    axis.MoveToOrigin(80, 330);
    RecordingContext context;
    axis.Draw(&context);
    EXPECT_EQ(context.strokes().at(0).from, QPoint(80, 80));
    EXPECT_EQ(context.strokes().at(0).to, QPoint(80, 329));
}

TEST_F(YAxis, isNotClippedInAnotherContext)
{
    axis.setNThick(1);
    RecordingContext context;
    axis.Draw(&context);
    EXPECT_THAT(context.calls(),
                ElementsAre("origin 20,78", "line 60,0 60,249 solid 0 #000000",
                            "line 60,0 79,0 solid 0 #000000", "clip none", "origin 0,0"));
}

TEST_F(YAxis, hasItsDefaultsUnderItsKeys)
{
    const PropertyBag expected = {{QStringLiteral("nThick"), 5},
                                  {QStringLiteral("Min"), 0.0},
                                  {QStringLiteral("Max"), 50.0},
                                  {QStringLiteral("Direction"), false},
                                  {QStringLiteral("ThickFormat"), QStringLiteral("0.00")}};
    EXPECT_EQ(axis.WriteProperties(), expected);
    EXPECT_TRUE(axis.changedProperties().isEmpty());
    axis.setNThick(2);
    axis.setMin(1);
    axis.setMax(2);
    axis.setDirection(true);
    axis.setThickFormat(QStringLiteral("0"));
    axis.ReadProperties({});
    EXPECT_EQ(axis.WriteProperties(), expected);
}

TEST_F(YAxis, isReadBackFromTheBagThatItWrote)
{
    axis.setNThick(9);
    axis.setMin(-0.5);
    axis.setMax(0.25);
    axis.setDirection(true);
    axis.setThickFormat(QStringLiteral("0.0#"));
    yAxis copy;
    copy.ReadProperties(axis.WriteProperties());
    EXPECT_EQ(copy.WriteProperties(), axis.WriteProperties());
    EXPECT_EQ(copy.Min(), -0.5);
    EXPECT_TRUE(copy.Direction());
}

TEST_F(YAxis, marksWhatWasSetAsChanged)
{
    axis.setDirection(false);
    EXPECT_TRUE(axis.changedProperties().contains(QStringLiteral("Direction")));
    for (const QString& key : {QStringLiteral("nThick"), QStringLiteral("Min"),
                               QStringLiteral("Max"), QStringLiteral("ThickFormat")})
        EXPECT_FALSE(axis.changedProperties().contains(key)) << key.toStdString();
    axis.setNThick(5);
    axis.setMin(0);
    axis.setMax(50);
    axis.setThickFormat(QStringLiteral("0.00"));
    for (const QString& key : {QStringLiteral("nThick"), QStringLiteral("Min"),
                               QStringLiteral("Max"), QStringLiteral("ThickFormat")})
        EXPECT_TRUE(axis.changedProperties().contains(key)) << key.toStdString();
}
