// SPDX-License-Identifier: Apache-2.0

// What a V-g-f plot draws on the screen and into other contexts.

#include "analysis/ModeBuilder.h"
#include "support/ChangeSeries.h"
#include "support/Errors.h"
#include "support/RecordingContext.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;
using test::errorNumberOf;
using test::RecordingContext;

namespace {

const QColor blue(0, 0, 255);
const QColor white(Qt::white);
const QColor black(Qt::black);

/// A plot of 800 x 600 pixels with a level curve of 25 Hz and damping -0.125 in blue. The canvases
/// begin at column 80 and row 78, the speed axis is row 330, and each half is 252 rows high: 25 of
/// 50 Hz are row 78 + 126 = 204, and half of the way to -0.25 is row 330 + 126 = 456.
class EvmPlotDrawing : public ::testing::Test
{
protected:
    EvmPlotDrawing()
    {
        plot.resize({800, 600});
        plot.rows().add(addMode(evolution, 1, {{0, -0.125F, 25}, {700, -0.125F, 25}}));
        test::changeSeries(plot, 0, [](Series& one) { one.ColorIndex = rgb(0, 0, 255); });
    }

    QColor pixel(int column, int row) { return plot.Image().pixelColor(column, row); }

    EVM evolution;
    EvmPlot plot;
};

std::string positionText(QPoint point)
{
    return std::to_string(point.x()) + "," + std::to_string(point.y());
}

/// The calls that start a part: its origin, unless it is the reset one.
std::vector<std::string> originsOf(const RecordingContext& context)
{
    std::vector<std::string> origins;
    for (const std::string& call : context.calls()) {
        if (call.starts_with("origin ") && call != "origin 0,0")
            origins.push_back(call.substr(7));
    }
    return origins;
}

} // namespace

TEST_F(EvmPlotDrawing, showsTheCurvesAtTheirPixels)
{
    plot.plot();
    EXPECT_EQ(pixel(400, 204), blue);
    EXPECT_EQ(pixel(400, 456), blue);
    EXPECT_EQ(pixel(400, 206), white);
    EXPECT_EQ(pixel(400, 454), white);
}

TEST_F(EvmPlotDrawing, isWhiteWhereNothingIs)
{
    plot.plot();
    for (const QPoint empty : {QPoint(0, 0), QPoint(799, 599), QPoint(400, 270), QPoint(400, 580)})
        EXPECT_EQ(pixel(empty.x(), empty.y()), white) << positionText(empty);
}

TEST_F(EvmPlotDrawing, showsTheAxes)
{
    EXPECT_EQ(pixel(420, 330), black);
    EXPECT_EQ(pixel(80, 150), black);
    EXPECT_EQ(pixel(80, 500), black);
}

TEST_F(EvmPlotDrawing, showsACurveAsSoonAsItIsThere)
{
    EXPECT_EQ(pixel(400, 204), blue);
}

TEST_F(EvmPlotDrawing, followsItsRows)
{
    plot.Image();
    test::changeSeries(plot, 0, [](Series& one) { one.ColorIndex = 0; });
    EXPECT_EQ(pixel(400, 204), black);
    plot.rows().add(addMode(evolution, 2, {{0, -0.125F, 25}, {700, -0.125F, 25}}));
    test::changeSeries(plot, 1, [](Series& one) { one.ColorIndex = rgb(0, 0, 255); });
    EXPECT_EQ(pixel(400, 204), blue) << "the last row is drawn last";
    plot.SerieMove(2, 1);
    EXPECT_EQ(pixel(400, 204), black);
    plot.rows().setMode(plot.rows().at(1).id, 0);
    EXPECT_EQ(pixel(400, 204), blue);
    plot.rows().clear();
    EXPECT_EQ(pixel(400, 204), white);
}

TEST_F(EvmPlotDrawing, showsNoCurveOnceItIsCleared)
{
    plot.plot();
    plot.Image();
    plot.Cls();
    EXPECT_EQ(pixel(400, 204), white);
    EXPECT_EQ(pixel(400, 456), white);
    EXPECT_EQ(pixel(420, 330), black); // the axes stay
    plot.plot();
    EXPECT_EQ(pixel(400, 204), blue);
}

TEST_F(EvmPlotDrawing, showsOnlyTheCurvesOfNowWhenItIsPlottedAgain)
{
    plot.plot();
    plot.Image();
    evolution.Modes[0]->Points[0].f = 50;
    evolution.Modes[0]->Points[1].f = 50;
    plot.plot();
    EXPECT_EQ(pixel(400, 204), white);
    EXPECT_EQ(pixel(400, 78), blue);
}

TEST_F(EvmPlotDrawing, followsANewScaleWithoutBeingPlottedAgain)
{
    plot.plot();
    plot.SetScale(0, 700, 0, 100, 0, -0.25F);
    // 25 of 100 Hz are three quarters of 252 rows below row 78.
    EXPECT_EQ(pixel(400, 78 + 189), blue);
    EXPECT_EQ(pixel(400, 204), white);
}

TEST_F(EvmPlotDrawing, followsANewSizeWithoutBeingPlottedAgain)
{
    plot.plot();
    plot.resize({400, 300});
    EXPECT_EQ(plot.Image().size(), QSize(400, 300));
    // The top is 39, the half 126 rows: 25 Hz are row 39 + 63.
    EXPECT_EQ(pixel(200, 102), blue);
}

TEST_F(EvmPlotDrawing, showsAnUnstableModeAboveTheSpeedAxis)
{
    for (Point& point : evolution.Modes[0]->Points) {
        point.G = 0.0625F; // a quarter of the 252 rows
        point.f = 0;
    }
    plot.plot();
    EXPECT_EQ(pixel(420, 330 - 63), blue);
}

TEST_F(EvmPlotDrawing, showsDampingLinesAtOnce)
{
    plot.references().AddDampLine(-0.0625F, {});
    EXPECT_EQ(pixel(400, 330 + 63), black);
    plot.references().RemoveDampLine();
    EXPECT_EQ(pixel(400, 330 + 63), white);
}

TEST_F(EvmPlotDrawing, showsReferenceSpeedsAtOnce)
{
    plot.Image();
    plot.references().AddRef(350, {}); // at 80 + 300; the mark extends 12 rows above the axis
    EXPECT_EQ(pixel(380, 330 - 8), black);
    plot.references().RemoveRef();
    EXPECT_EQ(pixel(380, 330 - 8), white);
}

TEST_F(EvmPlotDrawing, showsTextsAtOnce)
{
    plot.texts().move(TextBox::Legend, 400 * 15, 400 * 15);
    plot.Image();
    plot.texts().setText(TextBox::Legend, QStringLiteral("HHHH"));
    const QRect box = plot.Legend().geometry();
    int inked = 0;
    for (int column = box.left(); column <= box.right(); ++column)
        inked += pixel(column, box.center().y()) != white ? 1 : 0;
    EXPECT_GT(inked, 4); // each H has two stems
}

TEST_F(EvmPlotDrawing, hasAllPixelsOfAFinerScreen)
{
    plot.plot();
    plot.resize({400, 300}, 2);
    EXPECT_EQ(plot.Image().size(), QSize(800, 600));
    EXPECT_EQ(plot.Image().devicePixelRatio(), 2.0);
    // Row 102 of the plot is rows 204 and 205 of the screen.
    EXPECT_EQ(pixel(400, 204), blue);
    EXPECT_EQ(pixel(400, 205), blue);
    EXPECT_EQ(pixel(400, 202), white);
}

TEST_F(EvmPlotDrawing, putsCurveAndTickOfOneValueOnTheSamePixelsOfAScreenOfAnyRatio)
{
    // Level curves at the values of ticks, 10 to 40 Hz and -0.05 to -0.2; compares the rows of ink
    // in a column of the tick and one of the curve.
    plot.rows().clear();
    for (std::int16_t k = 1; k < 5; ++k) {
        const float part = static_cast<float>(k);
        const auto mode = static_cast<std::int16_t>(k + 1);
        plot.rows().add(addMode(
            evolution, mode, {{100, -0.05F * part, 10 * part}, {600, -0.05F * part, 10 * part}}));
    }
    test::changeAllSeries(plot, [](Series& one) { one.ColorIndex = 0; });
    const auto inkedRows = [](const QImage& image, int column, int from, int to) {
        std::vector<std::pair<int, QRgb>> rows;
        for (int row = from; row < to; ++row) {
            if (image.pixel(column, row) != qRgb(255, 255, 255))
                rows.emplace_back(row, image.pixel(column, row));
        }
        return rows;
    };
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const QSize size : {QSize(801, 601), QSize(763, 547), QSize(998, 733)}) {
            plot.resize(size, ratio);
            plot.plot();
            const QImage& image = plot.Image();
            const auto pixels = [ratio](int length) { return static_cast<int>(length * ratio); };
            const int tick = pixels(plot.parts().vfPlot.Left() + 6);
            const int curve = pixels(plot.parts().vfPlot.Left() + plot.parts().vfPlot.Width() / 2);
            const int top = pixels(plot.parts().vfPlot.Top() + 10);
            const int bottom =
                pixels(plot.parts().vgPlot.Top() + plot.parts().vgPlot.Height() - 10);
            const int middle = pixels(plot.parts().vfPlot.Top() + plot.parts().vfPlot.Height());
            for (const auto& [from, to] :
                 {std::pair(top, middle - pixels(20)), std::pair(middle + pixels(20), bottom)})
                EXPECT_EQ(inkedRows(image, tick, from, to), inkedRows(image, curve, from, to))
                    << ratio << " " << size.width();
        }
    }
}

TEST_F(EvmPlotDrawing, raisesTheErrorOfAPartOnceAndShowsTheOthers)
{
    plot.plot();
    plot.properties().setVthicks(0);
    EXPECT_EQ(errorNumberOf([this] { plot.Image(); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorNumberOf([this] { plot.Image(); }), std::nullopt);
    EXPECT_EQ(pixel(400, 204), blue);
    EXPECT_EQ(pixel(400, 456), blue);
    EXPECT_EQ(pixel(80, 150), black);
}

TEST_F(EvmPlotDrawing, showsEverythingAgainAfterAnErrorIsMended)
{
    plot.plot();
    plot.properties().setVthicks(0);
    EXPECT_TRUE(errorNumberOf([this] { plot.Image(); }));
    plot.properties().setVthicks(7);
    EXPECT_EQ(errorNumberOf([this] { plot.Image(); }), std::nullopt);
    EXPECT_EQ(pixel(420, 330), black);
    EXPECT_EQ(pixel(400, 204), blue);
}

TEST_F(EvmPlotDrawing, raisesTheErrorOfACurveWhenItIsPlotted)
{
    plot.rows().add(Series());
    EXPECT_EQ(errorNumberOf([this] { plot.plot(); }), ErrorNumber::ObjectVariableNotSet);
}

TEST_F(EvmPlotDrawing, raisesAnErrorOfPlottingOnceAlsoWhenTheScaleWasSetBefore)
{
    plot.SetScale(0, 500, 0, 20, 0, -0.5F);
    plot.rows().add(Series());
    EXPECT_TRUE(errorNumberOf([this] { plot.plot(); }));
    EXPECT_EQ(errorNumberOf([this] { plot.Image(); }), std::nullopt);
}

TEST_F(EvmPlotDrawing, labelsTheDecimalNumbersOfTheBounds)
{
    plot.SetScale(0, 500, 0, 20, 0, -0.35F);
    plot.properties().setGthicks(4);
    RecordingContext context;
    plot.Draw(context);
    // -0.35 / 4 = -0.0875, a tie: rounds away from zero. The single is -0.34999999.
    EXPECT_THAT(context.calls(), ::testing::Contains(::testing::HasSubstr("-0.088")));
}

TEST_F(EvmPlotDrawing, drawsAWhiteGroundAndThenItsPartsInOrder)
{
    plot.texts().setText(TextBox::Header, QStringLiteral("header"));
    RecordingContext context;
    plot.Draw(context);
    EXPECT_EQ(context.calls().front(), "fill 0,0 800x600 #ffffff");
    std::vector<std::string> expected;
    for (const PlotControl* part : std::initializer_list<const PlotControl*> {
             &plot.parts().velAxis, &plot.parts().velAxisLabel, &plot.parts().freqAxis,
             &plot.parts().freqAxislabel, &plot.parts().gAxis, &plot.parts().gAxisLabel,
             &plot.parts().box(TextBox::Header), &plot.parts().box(TextBox::Legend),
             &plot.parts().box(TextBox::Mechanism), &plot.parts().vfPlot, &plot.parts().vgPlot,
             &plot.parts().velLabels})
        expected.push_back(positionText(part->geometry().topLeft()));
    EXPECT_EQ(originsOf(context), expected);
    EXPECT_EQ(context.calls().back(), "origin 0,0");
}

TEST_F(EvmPlotDrawing, clipsTheCurvesToTheirCanvases)
{
    plot.plot();
    RecordingContext context;
    plot.Draw(context);
    const auto has = [&context](const std::string& call) {
        return std::find(context.calls().begin(), context.calls().end(), call)
            != context.calls().end();
    };
    EXPECT_TRUE(has("clip 80,78 600x252"));
    EXPECT_TRUE(has("clip 80,78 600x504"));
    EXPECT_TRUE(has("line 0,126 600,126 solid 0 #0000ff")); // 25 Hz within vfPlot
    EXPECT_TRUE(has("line 0,378 600,378 solid 0 #0000ff")); // 252 + 126 within vgPlot
}

TEST_F(EvmPlotDrawing, doesNotDrawPromptsIntoACallersContext)
{
    RecordingContext context;
    plot.Draw(context);
    for (const std::string& call : context.drawingCalls())
        EXPECT_EQ(call.find("Insert"), std::string::npos) << call;
}
