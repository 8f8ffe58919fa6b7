// SPDX-License-Identifier: Apache-2.0

// Reference lines, own surface and properties of a canvas.

#include "plot/Canvas.h"

using namespace tarsil;
using test::errorNumberOf;
using test::RecordingContext;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using CanvasLines = test::Canvas;
using CanvasSurface = test::Canvas;
using CanvasExport = test::Canvas;
using CanvasProperties = test::Canvas;

namespace {

constexpr ColorValue red = rgb(255, 0, 0);

} // namespace

TEST_F(CanvasLines, keepWhatTheyWereGiven)
{
    RefLine& line =
        canvas.AddLine(1, 2, 3, 4, QStringLiteral("g = 0.02"), rgb(5, 6, 7), penstyle::dot);
    EXPECT_EQ(line.X1, 1.0F);
    EXPECT_EQ(line.Y1, 2.0F);
    EXPECT_EQ(line.X2, 3.0F);
    EXPECT_EQ(line.Y2, 4.0F);
    EXPECT_EQ(line.Caption, QStringLiteral("g = 0.02"));
    EXPECT_EQ(line.ColorIndex, rgb(5, 6, 7));
    EXPECT_EQ(line.LineStyle, penstyle::dot);
    EXPECT_EQ(line.LineWidth, 0);
    EXPECT_EQ(&canvas.lines().back(), &line);
}

TEST_F(CanvasLines, areDrawnAfterTheCurvesInTheirOrder)
{
    canvas.AddLine(0, 10, 100, 10, {}, red, penstyle::dash);
    canvas.AddLine(0, 20, 100, 20, {}, 0, penstyle::solid);
    addCurve({{10, 0, 20}, {30, 0, 40}});
    EXPECT_THAT(drawing(),
                ElementsAre("line 10,80 30,60 solid 0 #000000", "line 0,90 100,90 dash 0 #ff0000",
                            "line 0,80 100,80 solid 0 #000000"));
}

TEST_F(CanvasLines, haveTheirCaptionThirtyPixelsLeftOfTheSecondEndAndOneLineAboveIt)
{
    canvas.AddLine(0, 50, 100, 40, QStringLiteral("flutter"), red, penstyle::solid);
    // The second point is (100, 60); 12 points are 16 pixels; the caption is black.
    EXPECT_THAT(drawing(),
                ElementsAre("line 0,50 100,60 solid 0 #ff0000",
                            "text TopCenter 70,44 Arial 8 #000000 flutter"));
}

TEST_F(CanvasLines, useAWidthThatIsSetAfterwards)
{
    canvas.AddLine(0, 50, 100, 50, {}, 0, penstyle::solid).LineWidth = 2;
    EXPECT_THAT(drawing(), ElementsAre("line 0,50 100,50 solid 2 #000000"));
}

TEST_F(CanvasLines, drawNothingWhenTheyAreAdded)
{
    canvas.AddLine(0, 50, 100, 50, {}, 0, penstyle::solid);
    EXPECT_TRUE(canvas.surface().isNull());
}

TEST_F(CanvasLines, areAllRemovedAndTheSurfaceIsCleared)
{
    canvas.AddLine(0, 50, 100, 50, {}, red, penstyle::solid);
    canvas.AddLine(0, 60, 100, 60, {}, red, penstyle::solid);
    canvas.Draw(nullptr);
    canvas.RemoveLines();
    EXPECT_THAT(canvas.lines(), IsEmpty());
    EXPECT_EQ(canvas.surface().pixelColor(50, 50).alpha(), 0);
}

TEST_F(CanvasLines, clearTheSurfaceOnRemovalEvenWhenThereAreNone)
{
    addCurve({{0, 0, 50}, {100, 0, 50}}).ColorIndex = red;
    canvas.Draw(nullptr);
    ASSERT_EQ(canvas.surface().pixelColor(50, 50), QColor(255, 0, 0));
    canvas.RemoveLines();
    EXPECT_EQ(canvas.surface().pixelColor(50, 50).alpha(), 0);
}

TEST_F(CanvasSurface, keepsADrawingUntilItIsCleared)
{
    addCurve({{0, 0, 50}, {100, 0, 50}}).ColorIndex = red;
    canvas.Draw(nullptr);
    series.clear();
    canvas.Draw(nullptr);
    EXPECT_EQ(canvas.surface().pixelColor(50, 50), QColor(255, 0, 0));
    canvas.Cls();
    EXPECT_EQ(canvas.surface().pixelColor(50, 50).alpha(), 0);
}

TEST_F(CanvasSurface, showsTheCurvesOfNowAfterARefresh)
{
    addCurve({{0, 0, 50}, {100, 0, 50}}).ColorIndex = red;
    canvas.Draw(nullptr);
    series.clear();
    addCurve({{0, 0, 20}, {100, 0, 20}}).ColorIndex = red;
    canvas.Refresh();
    EXPECT_EQ(canvas.surface().pixelColor(50, 50).alpha(), 0);
    EXPECT_EQ(canvas.surface().pixelColor(50, 80), QColor(255, 0, 0));
}

TEST_F(CanvasSurface, isNotTouchedByDrawingIntoAnotherContext)
{
    addCurve({{0, 0, 50}, {100, 0, 50}});
    drawing();
    EXPECT_TRUE(canvas.surface().isNull());
}

TEST_F(CanvasSurface, isAsLargeAsTheCanvas)
{
    canvas.Draw(nullptr);
    EXPECT_EQ(canvas.surface().size(), QSize(100, 100));
    EXPECT_EQ(canvas.surfacePosition(), QPoint(10, 20));
}

TEST_F(CanvasSurface, keepsWhatWasDrawnBeforeAnError)
{
    addCurve({{0, 0, 50}, {100, 0, 50}}).ColorIndex = red;
    series.emplace_back();
    EXPECT_EQ(errorNumberOf([this] { canvas.Draw(nullptr); }), ErrorNumber::ObjectVariableNotSet);
    EXPECT_EQ(canvas.surface().pixelColor(50, 50), QColor(255, 0, 0));
}

TEST_F(CanvasExport, isAtThePositionOfTheCanvasAndIsClippedToIt)
{
    addCurve({{0, 0, 50}, {100, 0, 50}});
    RecordingContext context;
    canvas.Draw(&context);
    EXPECT_THAT(context.calls(),
                ElementsAre("origin 10,20", "clip 10,20 100x100",
                            "line 0,50 100,50 solid 0 #000000", "clip none", "origin 0,0"));
}

TEST_F(CanvasExport, setsOriginAndClipBackAfterAnError)
{
    series.emplace_back();
    RecordingContext context;
    EXPECT_TRUE(errorNumberOf([&] { canvas.Draw(&context); }));
    EXPECT_THAT(context.calls(),
                ElementsAre("origin 10,20", "clip 10,20 100x100", "clip none", "origin 0,0"));
}

TEST_F(CanvasProperties, haveTheirDefaults)
{
    EXPECT_EQ(canvas.ModeColor(), QVariant(0));
    EXPECT_EQ(canvas.PlotType(), 0);
    EXPECT_EQ(canvas.hFont(), 0);
    EXPECT_FALSE(canvas.AutoScale());
    EXPECT_TRUE(canvas.changedProperties().isEmpty());
    const PropertyBag expected = {{QStringLiteral("ModeColor"), 0},
                                  {QStringLiteral("PlotType"), 0},
                                  {QStringLiteral("hFont"), 0},
                                  {QStringLiteral("AutoScale"), false}};
    EXPECT_EQ(canvas.WriteProperties(), expected);
}

TEST_F(CanvasProperties, comeBackToTheirDefaultsFromAnEmptyBag)
{
    canvas.setModeColor(3);
    canvas.setPlotType(plottype::rootLocus);
    canvas.setAutoScale(true);
    canvas.ReadProperties({});
    EXPECT_EQ(canvas.ModeColor(), QVariant(0));
    EXPECT_EQ(canvas.PlotType(), 0);
    EXPECT_FALSE(canvas.AutoScale());
}

TEST_F(CanvasProperties, areReadBackFromTheBagThatWasWritten)
{
    canvas.setModeColor(QStringLiteral("any value"));
    canvas.setPlotType(plottype::dampingOverSpeed);
    canvas.setAutoScale(true);
    ucPlot copy(*this);
    copy.ReadProperties(canvas.WriteProperties());
    EXPECT_EQ(copy.ModeColor(), QVariant(QStringLiteral("any value")));
    EXPECT_EQ(copy.PlotType(), plottype::dampingOverSpeed);
    EXPECT_TRUE(copy.AutoScale());
}

TEST_F(CanvasProperties, areMarkedAsChangedUnderTheirKeys)
{
    canvas.setModeColor(1);
    EXPECT_TRUE(canvas.changedProperties().contains(QStringLiteral("ModeColor")));
    EXPECT_FALSE(canvas.changedProperties().contains(QStringLiteral("PlotType")));
    canvas.setPlotType(1);
    EXPECT_TRUE(canvas.changedProperties().contains(QStringLiteral("PlotType")));
    canvas.setAutoScale(false);
    EXPECT_TRUE(canvas.changedProperties().contains(QStringLiteral("AutoScale")));
}

TEST_F(CanvasProperties, doNotLetTheFontHandleBeSet)
{
    for (const std::int32_t handle : {0, 1, -1})
        EXPECT_EQ(errorNumberOf([&] { canvas.sethFont(handle); }),
                  ErrorNumber::SetNotSupportedAtRunTime);
}

TEST_F(CanvasProperties, includeAModeColorThatDrawingDoesNotRead)
{
    addCurve({{10, 0, 20}, {30, 0, 40}});
    const std::vector<std::string> before = drawing();
    canvas.setModeColor(5);
    canvas.setAutoScale(true);
    EXPECT_EQ(drawing(), before);
}
