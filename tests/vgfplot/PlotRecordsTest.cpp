// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotRecords.h"
#include "plot/Marker.h"

#include "analysis/ModeBuilder.h"
#include "support/ChangeSeries.h"
#include "vgfplot/EvmPlot.h"
#include "workspace/WorkspaceReader.h"
#include "workspace/WorkspaceWriter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;
using ::testing::ElementsAre;

namespace {

class PlotRecords : public ::testing::Test
{
protected:
    PlotRecords()
    {
        for (EVM* evolution : {&one, &two}) {
            addMode(*evolution, 11, {{100, -1, 1}, {200, 1, 2}});
            addMode(*evolution, 12, {{100, -1, 3}, {200, 1, 4}});
        }
        plot.properties().setCaption(QStringLiteral("Clean"));
        plot.texts().setTextRTF(
            TextBox::Header,
            "{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;}first\\par\\cf1\\b second\\par}");
        plot.texts().setText(TextBox::Legend, QStringLiteral("legend"));
        plot.texts().move(TextBox::Legend, 1500, 3000.5);
        plot.texts().move(TextBox::Mechanism, -15, 4500);
        plot.properties().setVLabel(QStringLiteral("V"));
        plot.properties().setFLabel(QStringLiteral("f"));
        plot.properties().setGLabel(QStringLiteral("damping"));
        plot.SetScale(10, 450, 1, 30, 0.1F, -0.5F);
        plot.properties().setVthicks(9);
        plot.properties().setFthicks(6);
        plot.properties().setGthicks(4);
        plot.rows().change(plot.rows().add(*two.Modes[1]), [](Series& series) {
            series.MarkerTag = QStringLiteral("7b");
            series.MarkerSize = 9;
            series.MarkerSpacing = 3;
            series.MarkerStyle = markerNumber(MarkerKind::Tag);
            series.LegendText = QStringLiteral("the second");
            series.ColorIndex = rgb(1, 2, 3);
            series.MarkerForegroundColor = rgb(4, 5, 6);
        });
        plot.rows().add(*one.Modes[0]);
    }

    std::vector<const EVM*> evolutions() const { return {&one, &two}; }

    /// Fills another plot with what a file stores of this one.
    void throughAFile(EvmPlot& other)
    {
        WorkspaceRecord saved;
        saved.files = {"/a\\one.evm", "/a\\two.evm"};
        saved.plots = {recordOf(plot, evolutions())};
        WorkspaceRecord read;
        readWorkspace(writeWorkspace(saved, "user").bytes, "test.tsw", read);
        other.properties().setCaption(QString::fromStdString(read.plots[0].caption));
        applyRecord(read.plots[0], {&one, &two}, other);
    }

    EVM one;
    EVM two;
    EvmPlot plot;
};

} // namespace

TEST_F(PlotRecords, holdWhatAPlotShows)
{
    const PlotRecord record = recordOf(plot, evolutions());
    EXPECT_EQ(record.caption, "Clean");
    EXPECT_EQ(record.legend.position, (BoxPosition {1500, 3000.5}));
    EXPECT_EQ(record.mechanism.position, (BoxPosition {-15, 4500}));
    EXPECT_EQ(record.axes.speed, (AxisValues {"V", 10, 450, 9}));
    EXPECT_EQ(record.axes.frequency, (AxisValues {"f", 1, 30, 6}));
    EXPECT_EQ(record.axes.damping, (AxisValues {"damping", 0.1F, -0.5F, 4}));
    ASSERT_EQ(record.series.size(), 2U);
    EXPECT_EQ(record.series[0],
              (SeriesRecord {2, 2, "7b", 9, 3, 2, "the second", rgb(1, 2, 3), rgb(4, 5, 6)}));
    EXPECT_EQ(record.series[1].evolution, 1);
    EXPECT_EQ(record.series[1].mode, 1);
}

TEST_F(PlotRecords, makeTheSamePlotAgainThroughTheBytesOfAFile)
{
    EvmPlot other;
    throughAFile(other);
    EXPECT_EQ(recordOf(other, evolutions()).series, recordOf(plot, evolutions()).series);
    EXPECT_EQ(other.Header().content(), plot.Header().content());
    EXPECT_EQ(other.Header().Text(), QStringLiteral("first\r\nsecond"));
    EXPECT_EQ(other.Legend().unitsLeft(), 1500);
    EXPECT_EQ(other.axes().bounds(), plot.axes().bounds());
    EXPECT_EQ(other.properties().vthicks(), 9);
    EXPECT_EQ(other.properties().fthicks(), 6);
    EXPECT_EQ(other.properties().gthicks(), 4);
    EXPECT_EQ(other.properties().gLabel(), QStringLiteral("damping"));
    EXPECT_EQ(other.SeriesCollection()[0].IthMpf, 1) << "the first, where nobody chose one";
}

TEST_F(PlotRecords, keepMarksAndLooksThroughTheBytesOfAFile)
{
    plot.references().AddRef(352.1F, QStringLiteral("Vd    "));
    plot.references().AddRef(400, QStringLiteral("       α"));
    plot.references().AddDampLine(0.01F, QStringLiteral("g = 1.00 %"));
    plot.references().AddDampLine(-0.03F, QString());
    test::changeSeries(plot, 0, [](Series& series) {
        series.LineStyle = 2;
        series.LineWidth = 4;
        series.IthMpf = 3;
    });
    EvmPlot other;
    throughAFile(other);
    ASSERT_EQ(other.references().referenceSpeeds().size(), 2U);
    EXPECT_EQ(other.references().referenceSpeeds()[0].Speed, 352.1F);
    EXPECT_EQ(other.references().referenceSpeeds()[0].Caption, QStringLiteral("Vd    "));
    EXPECT_EQ(other.references().referenceSpeeds()[1].Caption, QStringLiteral("       α"));
    const std::vector<RefLine>& lines = other.parts().vgPlot.lines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0].Caption, QStringLiteral("g = 1.00 %"));
    EXPECT_EQ(lines[0].Y1, 0.01F);
    EXPECT_EQ(lines[0].Y2, 0.01F);
    EXPECT_EQ(lines[0].X1, 10) << "across the speed range";
    EXPECT_EQ(lines[0].X2, 450);
    EXPECT_EQ(lines[1].Y1, -0.03F);
    ASSERT_EQ(other.SeriesCollection().size(), 2U);
    EXPECT_EQ(other.SeriesCollection()[0].LineStyle, 2);
    EXPECT_EQ(other.SeriesCollection()[0].LineWidth, 4);
    EXPECT_EQ(other.SeriesCollection()[0].IthMpf, 3);
    EXPECT_EQ(other.SeriesCollection()[1].LineStyle, 0);
    EXPECT_EQ(recordOf(other, evolutions()), recordOf(plot, evolutions()));
}

TEST_F(PlotRecords, keepThatCurvesBreakAtJumpsThroughTheBytesOfAFile)
{
    EvmPlot other;
    other.properties().setBreaksAtJumps(true);
    throughAFile(other);
    EXPECT_FALSE(other.properties().breaksAtJumps());
    plot.properties().setBreaksAtJumps(true);
    throughAFile(other);
    EXPECT_TRUE(other.properties().breaksAtJumps());
}

TEST_F(PlotRecords, keepHiddenCurvesThroughTheBytesOfAFile)
{
    plot.rows().setHidden({0}, true);
    const PlotRecord record = recordOf(plot, evolutions());
    ASSERT_EQ(record.series.size(), 2U);
    EXPECT_TRUE(record.series[0].isHidden);
    EvmPlot other;
    other.rows().add(*one.Modes[1]); // the rows of the file follow it
    throughAFile(other);
    EXPECT_THAT(other.rows().hidden(), ElementsAre(1));
    EXPECT_EQ(recordOf(other, evolutions()).series.at(1), record.series[0]);
    EXPECT_EQ(other.SeriesCollection().size(), 2U);
}

TEST_F(PlotRecords, replaceTheReferencesOfThePlotByThoseOfTheFile)
{
    const PlotRecord record = recordOf(plot, evolutions());
    plot.references().AddRef(1, QStringLiteral("old"));
    plot.references().AddDampLine(1, QStringLiteral("old"));
    plot.rows().clear();
    applyRecord(record, {&one, &two}, plot);
    EXPECT_TRUE(plot.references().referenceSpeeds().empty());
    EXPECT_TRUE(plot.references().dampingLines().empty());
}

TEST_F(PlotRecords, putTheHeaderIntoTheRowOfTheFileAndKeepItsColumn)
{
    PlotRecord record = recordOf(plot, evolutions());
    const QPoint usual = plot.Header().geometry().topLeft();
    record.header.position = {9000, 300.5};
    applyRecord(record, {&one, &two}, plot);
    // 300.5 twentieths of a point are 20 pixels at 96 per inch.
    EXPECT_EQ(plot.Header().geometry().topLeft(), QPoint(usual.x(), 20));
    plot.resize({1200, 900});
    EXPECT_EQ(plot.Header().Top(), 20);
    plot.texts().move(TextBox::Header, 15, 4500);
    EXPECT_EQ(plot.Header().Top(), 20) << "a dragged header goes back to its row";
    EvmPlot copy;
    copy.Clone(plot);
    EXPECT_EQ(copy.Header().Top(), 20);
    EXPECT_EQ(recordOf(plot, evolutions()).header.position->top, 300.5);
}

TEST_F(PlotRecords, keepARowThatLiesBeyondThePlot)
{
    PlotRecord record = recordOf(plot, evolutions());
    for (const double top : {1e9, -1e9, 1e300, -1e300}) {
        record.header.position->top = top;
        applyRecord(record, {&one, &two}, plot);
        EXPECT_TRUE(QRect(QPoint(), plot.size()).intersects(plot.Header().geometry())) << top;
        EXPECT_EQ(recordOf(plot, evolutions()).header.position->top, top);
    }
}

TEST_F(PlotRecords, keepEveryCharacterOfAHeaderThatOnlyItsShortFormHoldsWhole)
{
    // The full form of one line in one font has 93 characters besides the text, the short one 74.
    for (int length = 925; length <= 945; ++length) {
        plot.texts().setText(TextBox::Header, QString(length, u'x'));
        EvmPlot other;
        throughAFile(other);
        EXPECT_EQ(other.Header().Text().size(), length);
    }
}

TEST_F(PlotRecords, keepPointingAtTheRightModesWhenAFileIsMissing)
{
    const PlotRecord record = recordOf(plot, evolutions());
    EvmPlot other;
    applyRecord(record, {nullptr, &two}, other);
    ASSERT_EQ(other.SeriesCollection().size(), 1U);
    EXPECT_EQ(other.SeriesCollection()[0].Mode, two.Modes[1].get());
}

TEST_F(PlotRecords, leaveOutAndNameEachSeriesWithoutAMode)
{
    const PlotRecord record = recordOf(plot, evolutions());
    EvmPlot other;
    EXPECT_THAT(applyRecord(record, {&one}, other),
                ElementsAre("plot \"Clean\", series 1 is left out: there is no modal evolution 2; "
                            "the workspace lists 1"));
    ASSERT_EQ(other.SeriesCollection().size(), 1U) << "the series after it is there";
    EXPECT_EQ(other.SeriesCollection()[0].Mode->Parent, &one);
}

TEST_F(PlotRecords, leaveABoxAloneOfWhichTheyKnowNothing)
{
    PlotRecord record = recordOf(plot, evolutions());
    record.legend = {};
    EvmPlot other;
    other.texts().setText(TextBox::Legend, QStringLiteral("own"));
    applyRecord(record, {&one, &two}, other);
    EXPECT_EQ(other.Legend().Text(), QStringLiteral("own"));
    EXPECT_FALSE(other.Legend().wasMoved());
}

TEST_F(PlotRecords, keepPositionsOutsideASmallerPlot)
{
    plot.resize({1600, 1000});
    plot.texts().move(TextBox::Legend, 15 * 1400.25, 15 * 300);
    plot.texts().move(TextBox::Mechanism, 15 * 200, 15 * 950);
    const PlotRecord record = recordOf(plot, evolutions());
    EvmPlot smaller;
    smaller.resize({640, 480});
    applyRecord(record, {&one, &two}, smaller);
    const QRect area(0, 0, 640, 480);
    EXPECT_TRUE(area.contains(smaller.Legend().geometry()));
    EXPECT_TRUE(area.contains(smaller.Mechanism().geometry()));
    const PlotRecord again = recordOf(smaller, evolutions());
    EXPECT_EQ(again.legend, record.legend);
    EXPECT_EQ(again.mechanism, record.mechanism);
}
