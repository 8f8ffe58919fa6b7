// Where the parts of a V-g-f plot stand.

#include "surface/Picture.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace tarsil;

namespace {

class EvmPlotLayout : public ::testing::TestWithParam<QSize>
{
protected:
    EvmPlotLayout() : width(GetParam().width()), height(GetParam().height())
    {
        plot.resize(GetParam());
    }

    /// A label stands with its left edge at `left` and its middle at `middle`, to a pixel.
    static void expectLabel(const trspLabel& label, double left, double middle)
    {
        EXPECT_NEAR(label.Left(), left, 1);
        EXPECT_NEAR(label.Top() + label.Height() / 2.0, middle, 1.5);
    }

    EvmPlot plot;
    const double width;
    const double height;
};

// The upper half is an even number of pixels, so its lower edge is at most one pixel away, and half
// a pixel more for the upper edge.
constexpr double rowTolerance = 1.6;
constexpr double columnTolerance = 0.5;

} // namespace

TEST_P(EvmPlotLayout, putsTheCanvasesAtTheirFractions)
{
    EXPECT_NEAR(plot.vgPlot().Top(), 0.13 * height, 0.5);
    EXPECT_NEAR(plot.vgPlot().Left(), 0.1 * width, columnTolerance);
    EXPECT_NEAR(plot.vgPlot().Width(), 0.75 * width, columnTolerance);
    EXPECT_NEAR(plot.vgPlot().Height(), 0.84 * height, 2 * rowTolerance);
}

TEST_P(EvmPlotLayout, putsTheSpeedAxisBetweenTheHalves)
{
    // The half height 0.42 and the top 0.1 + 0.03 together.
    EXPECT_NEAR(plot.velAxis().Top() + plot.velAxis().Height() / 2, 0.55 * height, rowTolerance);
    EXPECT_EQ(plot.velAxis().Top() + plot.velAxis().Height() / 2,
              plot.vfPlot().Top() + plot.vfPlot().Height());
    EXPECT_EQ(plot.velAxis().Left(), plot.vgPlot().Left());
    EXPECT_EQ(plot.velAxis().Width(), plot.vgPlot().Width());
}

TEST_P(EvmPlotLayout, putsTheVerticalAxesOnTheOrigin)
{
    const int origin = plot.vfPlot().Top() + plot.vfPlot().Height();
    for (const yAxis* axis : {&plot.freqAxis(), &plot.gAxis()}) {
        EXPECT_EQ(axis->Left() + axis->Width() / 2, plot.vgPlot().Left());
        EXPECT_EQ(axis->Height(), plot.vfPlot().Height());
    }
    EXPECT_EQ(plot.freqAxis().Top() + plot.freqAxis().Height(), origin);
    EXPECT_EQ(plot.gAxis().Top(), origin);
}

TEST_P(EvmPlotLayout, putsTheTitlesAtTheEndsOfTheirAxes)
{
    expectLabel(plot.velAxisLabel(), 0.1 * width + 0.75 * width + 0.01 * width,
                plot.vfPlot().Top() + plot.vfPlot().Height());
    expectLabel(plot.freqAxislabel(), 0.1 * width + plot.freqAxis().Width() / 5.0,
                plot.freqAxis().Top());
    expectLabel(plot.gAxisLabel(), 0.1 * width + plot.gAxis().Width() / 5.0,
                plot.gAxis().Top() + plot.gAxis().Height());
}

TEST_P(EvmPlotLayout, runsTheHeaderFromTheFrequencyTitleToTheRightEdge)
{
    const int left = plot.freqAxislabel().Left() + plot.freqAxislabel().Width();
    EXPECT_EQ(plot.Header().Left(), left);
    const double right = (1 - 0.045) * width;
    if (right - left > 200) { // otherwise the header needs more than that for its text
        EXPECT_NEAR(plot.Header().Left() + plot.Header().Width(), right, 0.5);
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, EvmPlotLayout,
                         ::testing::Values(QSize(800, 600), QSize(960, 720), QSize(1919, 1079),
                                           QSize(641, 487), QSize(500, 333), QSize(333, 500)));

TEST(EvmPlotLayoutAt800x600, standsOnThePixelsOfAHandCalculation)
{
    EvmPlot plot;
    plot.resize({800, 600});
    // Left 0.1 * 800 = 80, width 0.75 * 800 = 600, top 0.13 * 600 = 78, half 0.42 * 600 = 252, so
    // the speed axis is row 78 + 252 = 330. The axes are 64 high and 120 wide around their lines.
    EXPECT_EQ(plot.vgPlot().geometry(), QRect(80, 78, 600, 504));
    EXPECT_EQ(plot.vfPlot().geometry(), QRect(80, 78, 600, 252));
    EXPECT_EQ(plot.velAxis().geometry(), QRect(80, 298, 600, 64));
    EXPECT_EQ(plot.freqAxis().geometry(), QRect(20, 78, 120, 252));
    EXPECT_EQ(plot.gAxis().geometry(), QRect(20, 330, 120, 252));
    // Titles: 600 + 80 + 0.01 * 800 = 688, and 120 / 5 + 80 = 104 twice.
    EXPECT_EQ(plot.velAxisLabel().Left(), 688);
    EXPECT_EQ(plot.freqAxislabel().Left(), 104);
    EXPECT_EQ(plot.gAxisLabel().Left(), 104);
    EXPECT_EQ(plot.gAxisLabel().Top(), 330 + 252 - plot.gAxisLabel().Height() / 2);
    // The header ends at 800 - 0.045 * 800 = 764.
    EXPECT_EQ(plot.Header().geometry().right() + 1, 764);
}

TEST(EvmPlotCanvases, areExactlyHalfAndWholeAtEverySize)
{
    EvmPlot plot;
    const auto check = [&plot](int width, int height) {
        plot.resize({width, height});
        const QRect whole = plot.vgPlot().geometry();
        const QRect half = plot.vfPlot().geometry();
        ASSERT_EQ(whole.height(), 2 * half.height()) << width << " x " << height;
        ASSERT_EQ(whole.topLeft(), half.topLeft()) << width << " x " << height;
        ASSERT_EQ(whole.width(), half.width()) << width << " x " << height;
    };
    for (int size = 1; size <= 400; ++size) {
        check(size, size);
        check(size, 401 - size);
        check(400, size);
    }
}

TEST(EvmPlotCanvases, surviveASizeOfNothing)
{
    EvmPlot plot;
    for (const QSize size : {QSize(0, 0), QSize(-5, 3), QSize(1, 1), QSize(3, 2)}) {
        plot.resize(size);
        plot.plot();
        EXPECT_FALSE(plot.Image().isNull());
        EXPECT_GE(plot.size().width(), 1);
        EXPECT_GE(plot.size().height(), 1);
    }
}

TEST(EvmPlotBoxes, stayWhereTheyWerePutInEverySize)
{
    EvmPlot plot;
    plot.moveBox(TextBox::Legend, 3000, 1500);
    plot.moveBox(TextBox::Mechanism, 450, 6000);
    plot.resize({1200, 900});
    plot.setBoxText(TextBox::Legend, QStringLiteral("a legend\nof two lines"));
    EXPECT_EQ(plot.Legend().unitsLeft(), 3000);
    EXPECT_EQ(plot.Legend().unitsTop(), 1500);
    EXPECT_EQ(plot.Mechanism().unitsLeft(), 450);
    EXPECT_EQ(plot.Mechanism().unitsTop(), 6000);
}

TEST(EvmPlotBoxes, putTheHeaderBackIntoItsRow)
{
    EvmPlot plot;
    const QRect before = plot.Header().geometry();
    plot.moveBox(TextBox::Header, 3000, 6000);
    EXPECT_EQ(plot.Header().geometry(), before);
}

TEST(EvmPlotBoxes, areInSightBeforeTheyAreMoved)
{
    EvmPlot plot;
    for (const QSize size : {QSize(800, 600), QSize(500, 400), QSize(1600, 1000)}) {
        plot.resize(size);
        for (const TextBox which : allTextBoxes)
            EXPECT_TRUE(QRect(QPoint(0, 0), size).contains(plot.box(which).geometry()))
                << "box " << static_cast<int>(which) << " at " << size.width();
    }
}

TEST(EvmPlotBoxes, areShownAtTheNearestEdgeOfAPlotThatEndsBeforeTheirPosition)
{
    EvmPlot plot;
    plot.resize({1600, 1000});
    plot.setBoxText(TextBox::Legend, QStringLiteral("legend"));
    plot.setBoxText(TextBox::Mechanism, QStringLiteral("subtitle"));
    plot.moveBox(TextBox::Legend, 15 * 1400, 15 * 300);
    plot.moveBox(TextBox::Mechanism, 15 * 200, 15 * 950.5);
    const QSize legend = plot.Legend().geometry().size();
    const QSize subtitle = plot.Mechanism().geometry().size();
    for (int i = 0; i < 2; ++i) { // as often as one likes
        plot.resize({800, 600});
        EXPECT_EQ(plot.Legend().geometry(), QRect(QPoint(800 - legend.width(), 300), legend));
        EXPECT_EQ(plot.Mechanism().geometry(),
                  QRect(QPoint(200, 600 - subtitle.height()), subtitle));
        EXPECT_EQ(plot.Legend().unitsLeft(), 15 * 1400) << "it is kept";
        EXPECT_EQ(plot.Mechanism().unitsTop(), 15 * 950.5);
        plot.resize({1600, 1000});
        EXPECT_EQ(plot.Legend().geometry().topLeft(), QPoint(1400, 300));
        EXPECT_EQ(plot.Mechanism().geometry().topLeft(), QPoint(200, 950)); // ties to even
    }
}

TEST(EvmPlotBoxes, areShownWhereTheirBeginningCanBeReadWhenTheyDoNotFit)
{
    EvmPlot plot;
    plot.setBoxText(TextBox::Legend, QStringLiteral("many lines") + QString(60, u'\n'));
    ASSERT_GT(plot.Legend().Height(), 600);
    plot.moveBox(TextBox::Legend, -15 * 4000, 15 * 1e9);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), QPoint(0, 0));
}

TEST(EvmPlotBoxes, areShownWholeAtTheNearestPlaceWhereTheyFit)
{
    EvmPlot plot; // 800 x 600
    plot.setBoxText(TextBox::Legend, QStringLiteral("a legend\nof two lines"));
    const int right = 800 - plot.Legend().Width();
    const int bottom = 600 - plot.Legend().Height();
    const auto shownAt = [&plot](int left, int top) {
        plot.moveBox(TextBox::Legend, 15 * left, 15 * top);
        EXPECT_EQ(plot.Legend().unitsLeft(), 15 * left) << "the position stays";
        EXPECT_EQ(plot.Legend().unitsTop(), 15 * top);
        return plot.Legend().geometry().topLeft();
    };
    EXPECT_EQ(shownAt(right, bottom), QPoint(right, bottom));
    EXPECT_EQ(shownAt(right + 1, 100), QPoint(right, 100));
    EXPECT_EQ(shownAt(100, bottom + 1), QPoint(100, bottom));
    EXPECT_EQ(shownAt(-1, 100), QPoint(0, 100));
    EXPECT_EQ(shownAt(5000, -5000), QPoint(right, 0));
}

TEST(EvmPlotBoxes, ofALargerPlotAreWholeInASmallerOne)
{
    EvmPlot large;
    large.resize({1600, 1000});
    large.setBoxText(TextBox::Legend,
                     QStringLiteral("[0] goland_clean_m040.ev2\n[1] goland_clean_m050.ev2"));
    const int width = large.Legend().Width();
    EvmPlot small; // 800 x 600
    small.Clone(large);
    small.moveBox(TextBox::Legend, 15 * (800 - width + 104),
                  15 * 100); // 104 pixels of it would be cut off
    EXPECT_EQ(small.Legend().geometry().right() + 1, 800);
    const auto inkOf = [width](EvmPlot& plot) {
        const QRect box = plot.Legend().geometry();
        return plot.Image().copy(QRect(box.topLeft(), QSize(width, box.height())));
    };
    large.moveBox(TextBox::Legend, 15 * 1400, 15 * 20); // where nothing else is drawn
    small.moveBox(TextBox::Legend, 15 * 5000, 15 * 20);
    EXPECT_EQ(inkOf(small), inkOf(large));
}
