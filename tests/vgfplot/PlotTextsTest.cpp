// SPDX-License-Identifier: Apache-2.0

// The text boxes of a V-g-f plot: where they are and how they change.

#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(PlotTexts, stayWhereTheyWerePutInEverySize)
{
    EvmPlot plot;
    plot.texts().move(TextBox::Legend, 3000, 1500);
    plot.texts().move(TextBox::Mechanism, 450, 6000);
    plot.resize({1200, 900});
    plot.texts().setText(TextBox::Legend, QStringLiteral("a legend\nof two lines"));
    EXPECT_EQ(plot.Legend().unitsLeft(), 3000);
    EXPECT_EQ(plot.Legend().unitsTop(), 1500);
    EXPECT_EQ(plot.Mechanism().unitsLeft(), 450);
    EXPECT_EQ(plot.Mechanism().unitsTop(), 6000);
}

TEST(PlotTexts, putTheHeaderBackIntoItsRow)
{
    EvmPlot plot;
    const QRect before = plot.Header().geometry();
    plot.texts().move(TextBox::Header, 3000, 6000);
    EXPECT_EQ(plot.Header().geometry(), before);
}

TEST(PlotTexts, areInSightBeforeTheyAreMoved)
{
    EvmPlot plot;
    for (const QSize size : {QSize(800, 600), QSize(500, 400), QSize(1600, 1000)}) {
        plot.resize(size);
        for (const TextBox which : allTextBoxes)
            EXPECT_TRUE(QRect(QPoint(0, 0), size).contains(plot.parts().box(which).geometry()))
                << "box " << static_cast<int>(which) << " at " << size.width();
    }
}

TEST(PlotTexts, areShownAtTheNearestEdgeOfAPlotThatEndsBeforeTheirPosition)
{
    EvmPlot plot;
    plot.resize({1600, 1000});
    plot.texts().setText(TextBox::Legend, QStringLiteral("legend"));
    plot.texts().setText(TextBox::Mechanism, QStringLiteral("subtitle"));
    plot.texts().move(TextBox::Legend, 15 * 1400, 15 * 300);
    plot.texts().move(TextBox::Mechanism, 15 * 200, 15 * 950.5);
    const QSize legend = plot.Legend().geometry().size();
    const QSize subtitle = plot.Mechanism().geometry().size();
    for (int i = 0; i < 2; ++i) { // also repeatedly
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

TEST(PlotTexts, areShownWhereTheirBeginningCanBeReadWhenTheyDoNotFit)
{
    EvmPlot plot;
    plot.texts().setText(TextBox::Legend, QStringLiteral("many lines") + QString(60, u'\n'));
    ASSERT_GT(plot.Legend().Height(), 600);
    plot.texts().move(TextBox::Legend, -15 * 4000, 15 * 1e9);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), QPoint(0, 0));
}

TEST(PlotTexts, areShownWholeAtTheNearestPositionWhereTheyFit)
{
    EvmPlot plot; // 800 x 600
    plot.texts().setText(TextBox::Legend, QStringLiteral("a legend\nof two lines"));
    const int right = 800 - plot.Legend().Width();
    const int bottom = 600 - plot.Legend().Height();
    const auto shownAt = [&plot](int left, int top) {
        plot.texts().move(TextBox::Legend, 15 * left, 15 * top);
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

TEST(PlotTexts, ofALargerPlotAreWholeInASmallerOne)
{
    EvmPlot large;
    large.resize({1600, 1000});
    large.texts().setText(TextBox::Legend,
                          QStringLiteral("[0] goland_clean_m040.ev2\n[1] goland_clean_m050.ev2"));
    const int width = large.Legend().Width();
    EvmPlot small; // 800 x 600
    small.Clone(large);
    small.texts().move(TextBox::Legend, 15 * (800 - width + 104),
                       15 * 100); // 104 pixels of it would be cut off
    EXPECT_EQ(small.Legend().geometry().right() + 1, 800);
    const auto inkOf = [width](EvmPlot& plot) {
        const QRect box = plot.Legend().geometry();
        return plot.Image().copy(QRect(box.topLeft(), QSize(width, box.height())));
    };
    large.texts().move(TextBox::Legend, 15 * 1400, 15 * 20); // where nothing else is drawn
    small.texts().move(TextBox::Legend, 15 * 5000, 15 * 20);
    EXPECT_EQ(inkOf(small), inkOf(large));
}

TEST(PlotTexts, getAWholeHeaderBackIntoItsRowInAPlotOfAnySize)
{
    EvmPlot plot;
    plot.texts().setHeaderTop(15 * 40);
    EXPECT_EQ(plot.Header().Top(), 40);
    plot.texts().setHeaderTop(15 * 5000);
    EXPECT_EQ(plot.Header().Top() + plot.Header().Height(), 600);
    EXPECT_EQ(plot.Header().unitsTop(), 15 * 5000) << "the position stays";
}

TEST(PlotTexts, layThePartsOutAgainAfterAnyChange)
{
    EvmPlot plot;
    plot.Image();
    const int before = plot.Mechanism().Top();
    plot.texts().change(TextBox::Header, [](emfRichTextBox& box) {
        box.setFont({QStringLiteral("Arial"), 40});
    });
    plot.texts().setText(TextBox::Header, QStringLiteral("high"));
    EXPECT_GT(plot.Mechanism().Top(), before) << "the subtitle is below the header";
    plot.texts().setTextRTF(TextBox::Header, "{\\rtf1\\fs20 low\\par}");
    EXPECT_EQ(plot.Header().Text().trimmed(), QStringLiteral("low"));
    EXPECT_EQ(plot.Mechanism().Top(), plot.Header().Top() + plot.Header().Height());
}

TEST(PlotTexts, announceTheEditMode)
{
    EvmPlot plot;
    int count = 0;
    QObject::connect(&plot, &EvmPlot::changed, &plot, [&count] { ++count; });
    EXPECT_FALSE(plot.texts().EditMode());
    plot.texts().setEditMode(true);
    EXPECT_TRUE(plot.texts().EditMode());
    EXPECT_EQ(count, 1);
}
