// SPDX-License-Identifier: Apache-2.0

// The curves and markers of a canvas.

#include "plot/Canvas.h"
#include "plot/Marker.h"

using namespace tarsil;
using test::errorNumberOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

using CanvasSeries = test::Canvas;

TEST_F(CanvasSeries, areDrawnInOrderOneLineForEachPairOfPoints)
{
    addCurve({{10, 0, 20}, {30, 0, 40}, {50, 0, 60}});
    addCurve({{0, 0, 0}, {100, 0, 100}}).ColorIndex = rgb(255, 0, 0);
    EXPECT_THAT(drawing(),
                ElementsAre("line 10,80 30,60 solid 0 #000000", "line 30,60 50,40 solid 0 #000000",
                            "line 0,100 100,0 solid 0 #ff0000"));
}

TEST_F(CanvasSeries, breakWhereARootTurnsFromStaticToOscillatoryWhenThatIsWanted)
{
    addCurve({{10, 0, 0}, {30, 0, 0.05F}, {50, 0, 60}, {70, 0, 80}});
    EXPECT_THAT(drawing(), SizeIs(3));
    canvas.setBreaksAtJumps(true);
    EXPECT_THAT(
        drawing(),
        ElementsAre("line 10,100 30,100 solid 0 #000000", "line 50,40 70,20 solid 0 #000000"));
}

TEST_F(CanvasSeries, keepStyleWidthAndColour)
{
    Series& curve = addCurve({{10, 0, 20}, {30, 0, 40}});
    curve.LineStyle = penstyle::dashDot;
    curve.LineWidth = 3;
    curve.ColorIndex = rgb(1, 2, 3);
    EXPECT_THAT(drawing(), ElementsAre("line 10,80 30,60 dash-dot 3 #010203"));
}

TEST_F(CanvasSeries, withFewerThanTwoPointsDrawNothingNotEvenAMarker)
{
    addCurve({});
    addCurve({{10, 0, 20}});
    for (Series& curve : series) {
        curve.MarkerSpacing = 1;
        curve.MarkerStyle = markerNumber(MarkerKind::ModeNumber);
    }
    EXPECT_THAT(drawing(), IsEmpty());
}

TEST_F(CanvasSeries, showFrequencyDampingOrRootByThePlotType)
{
    Series& curve = addCurve({{10, 1, 20}, {30, 2, 40}});
    for (Point& point : curve.Mode->Points) {
        point.re = point.speed + 50;
        point.im = point.speed + 60;
    }
    canvas.setPlotType(plottype::frequencyOverSpeed);
    EXPECT_THAT(drawing(), ElementsAre("line 10,80 30,60 solid 0 #000000"));
    canvas.setPlotType(plottype::dampingOverSpeed);
    EXPECT_THAT(drawing(), ElementsAre("line 10,99 30,98 solid 0 #000000"));
    canvas.setPlotType(plottype::rootLocus); // (60, 70) to (80, 90)
    EXPECT_THAT(drawing(), ElementsAre("line 60,30 80,10 solid 0 #000000"));
}

TEST_F(CanvasSeries, withAnUnknownPlotTypeDoNotFail)
{
    addCurve({{10, 1, 20}, {30, 2, 40}});
    for (const std::int32_t type : {-1, 3, 99}) {
        canvas.setPlotType(type);
        EXPECT_EQ(errorNumberOf([this] { drawing(); }), std::nullopt) << type;
    }
}

TEST_F(CanvasSeries, withoutAModeAreAnError)
{
    series.emplace_back();
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), ErrorNumber::ObjectVariableNotSet);
}

TEST_F(CanvasSeries, haveAtMost32767Points)
{
    addLevelCurve(32767);
    EXPECT_THAT(drawing(), SizeIs(32766));
}

TEST_F(CanvasSeries, withMorePointsAreAnError)
{
    addLevelCurve(32768);
    EXPECT_EQ(errorNumberOf([this] { drawing(); }), ErrorNumber::Overflow);
}

TEST_F(CanvasSeries, haveNoMarkersWhenNew)
{
    addLevelCurve(10).MarkerStyle = markerNumber(MarkerKind::ModeNumber);
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(CanvasSeries, haveNoMarkersWithMarkerStyleNone)
{
    addLevelCurve(10).MarkerSpacing = 3;
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(CanvasSeries, haveMarkersAtTheMultiplesOfTheSpacing)
{
    Series& curve = addLevelCurve(10);
    curve.MarkerSpacing = 3;
    curve.MarkerStyle = markerNumber(MarkerKind::ModeNumber);
    curve.MarkerSize = 9;
    // Points 3, 6 and 9 of ten. 9 points are 12 pixels, half of them above row 50.
    EXPECT_THAT(texts(),
                ElementsAre("text TopCenter 3,44 Arial 9 #000000 7",
                            "text TopCenter 6,44 Arial 9 #000000 7",
                            "text TopCenter 9,44 Arial 9 #000000 7"));
}

TEST_F(CanvasSeries, haveNoMarkerAtTheFirstPointEvenWithASpacingOfOne)
{
    Series& curve = addLevelCurve(3);
    curve.MarkerSpacing = 1;
    curve.MarkerStyle = markerNumber(MarkerKind::ModeNumber);
    curve.MarkerSize = 9;
    EXPECT_THAT(texts(),
                ElementsAre("text TopCenter 2,44 Arial 9 #000000 7",
                            "text TopCenter 3,44 Arial 9 #000000 7"));
}

TEST_F(CanvasSeries, drawAMarkerRightAfterTheLineThatLeadsToIt)
{
    Series& curve = addLevelCurve(3);
    curve.MarkerSpacing = 2;
    curve.MarkerStyle = markerNumber(MarkerKind::ModeNumber);
    curve.MarkerSize = 9;
    EXPECT_THAT(drawing(),
                ElementsAre("line 1,50 2,50 solid 0 #000000",
                            "text TopCenter 2,44 Arial 9 #000000 7",
                            "line 2,50 3,50 solid 0 #000000"));
}

TEST_F(CanvasSeries, markWithTheirTagInTheForegroundColour)
{
    Series& curve = addLevelCurve(2);
    curve.MarkerSpacing = 2;
    curve.MarkerStyle = markerNumber(MarkerKind::Tag);
    curve.MarkerTag = QStringLiteral("first bending");
    curve.MarkerSize = 8;
    curve.ColorIndex = rgb(1, 2, 3);
    curve.MarkerForegroundColor = rgb(4, 5, 6);
    curve.MarkerBackgroundColor = rgb(7, 8, 9);
    // 8 points are 10.67 pixels, and 50 - 5.33 = 44.67 rounds to 45.
    EXPECT_THAT(texts(), ElementsAre("text TopCenter 2,45 Arial 8 #040506 first bending"));
}

TEST_F(CanvasSeries, drawNothingForAnEmptyTag)
{
    Series& curve = addLevelCurve(2);
    curve.MarkerSpacing = 2;
    curve.MarkerStyle = markerNumber(MarkerKind::Tag);
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(CanvasSeries, roundTheTopOfAMarkerToTheEvenRow)
{
    Series& curve = addLevelCurve(2);
    curve.MarkerSpacing = 2;
    curve.MarkerStyle = markerNumber(MarkerKind::ModeNumber);
    curve.MarkerSize = 3; // 4 pixels: 50 - 2
    EXPECT_THAT(texts(), ElementsAre("text TopCenter 2,48 Arial 3 #000000 7"));
    curve.MarkerSize = 15; // 20 pixels: 50 - 10
    EXPECT_THAT(texts(), ElementsAre("text TopCenter 2,40 Arial 15 #000000 7"));
}

namespace {

class ParticipationMarkers : public test::Canvas
{
protected:
    /// The text of the marker at the second point, which has the factors 0.5, 0.25 and -1e-05.
    std::string marker(std::int32_t index)
    {
        series.clear();
        Series& curve = addLevelCurve(2);
        for (const float factor : {0.5F, 0.25F, -1e-05F})
            curve.Mode->Points[1].mpf.append(factor);
        curve.MarkerSpacing = 2;
        curve.MarkerStyle = markerNumber(MarkerKind::ParticipationFactor);
        curve.MarkerSize = 9;
        curve.IthMpf = index;
        const std::string text = texts().at(0);
        return text.substr(text.rfind(' ') + 1);
    }
};

} // namespace

TEST_F(ParticipationMarkers, showTheFactorCountedFromOne)
{
    EXPECT_EQ(marker(1), "0.5");
    EXPECT_EQ(marker(2), "0.25");
    EXPECT_EQ(marker(3), "-0.00001");
}

TEST_F(ParticipationMarkers, showAQuestionMarkForAFactorThatIsNotThere)
{
    EXPECT_EQ(marker(4), "?");
    EXPECT_EQ(marker(0), "?");
    EXPECT_EQ(marker(-1), "?");
    EXPECT_EQ(marker(2147483647), "?");
}

TEST_F(ParticipationMarkers, showAQuestionMarkWhenThePointHasNoFactors)
{
    Series& curve = addLevelCurve(2);
    curve.MarkerSpacing = 2;
    curve.MarkerStyle = markerNumber(MarkerKind::ParticipationFactor);
    curve.MarkerSize = 9;
    curve.IthMpf = 1;
    EXPECT_THAT(texts(), ElementsAre("text TopCenter 2,44 Arial 9 #000000 ?"));
}
