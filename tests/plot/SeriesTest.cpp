// SPDX-License-Identifier: Apache-2.0
#include "plot/Series.h"

#include "plot/RefLine.h"
#include "plot/RefThick.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

/// A series with a different value in every field.
Series filledSeries(AeMode& mode)
{
    Series series;
    series.Mode = &mode;
    series.MarkerTag = QStringLiteral("a");
    series.LegendText = QStringLiteral("Case 1");
    series.LineWidth = 2;
    series.LineStyle = 3;
    series.ColorIndex = rgb(4, 5, 6);
    series.MarkerSpacing = 7;
    series.IthMpf = 8;
    series.MarkerBackgroundColor = rgb(9, 10, 11);
    series.MarkerForegroundColor = rgb(12, 13, 14);
    series.MarkerSize = 15;
    series.MarkerStyle = 16;
    return series;
}

} // namespace

TEST(Series, isZeroAndEmptyWhenNew)
{
    const Series series;
    EXPECT_EQ(series.Mode, nullptr);
    EXPECT_TRUE(series.MarkerTag.isEmpty());
    EXPECT_TRUE(series.LegendText.isEmpty());
    EXPECT_EQ(series.LineWidth, 0);
    EXPECT_EQ(series.LineStyle, 0);
    EXPECT_EQ(series.ColorIndex, 0);
    EXPECT_EQ(series.MarkerSpacing, 0);
    EXPECT_EQ(series.IthMpf, 0);
    EXPECT_EQ(series.MarkerBackgroundColor, 0);
    EXPECT_EQ(series.MarkerForegroundColor, 0);
    EXPECT_EQ(series.MarkerSize, 0);
    EXPECT_EQ(series.MarkerStyle, 0);
}

TEST(Series, clonesEveryField)
{
    AeMode mode;
    const Series copy = filledSeries(mode).Clone();
    EXPECT_EQ(copy.MarkerTag, QStringLiteral("a"));
    EXPECT_EQ(copy.LegendText, QStringLiteral("Case 1"));
    EXPECT_EQ(copy.LineWidth, 2);
    EXPECT_EQ(copy.LineStyle, 3);
    EXPECT_EQ(copy.ColorIndex, rgb(4, 5, 6));
    EXPECT_EQ(copy.MarkerSpacing, 7);
    EXPECT_EQ(copy.IthMpf, 8);
    EXPECT_EQ(copy.MarkerBackgroundColor, rgb(9, 10, 11));
    EXPECT_EQ(copy.MarkerForegroundColor, rgb(12, 13, 14));
    EXPECT_EQ(copy.MarkerSize, 15);
    EXPECT_EQ(copy.MarkerStyle, 16);
}

TEST(Series, sharesTheModeWithItsClone)
{
    AeMode mode;
    const Series series = filledSeries(mode);
    const Series copy = series.Clone();
    ASSERT_EQ(copy.Mode, &mode);
    mode.Points.emplace_back();
    EXPECT_EQ(copy.Mode->Points.size(), 1U);
    EXPECT_EQ(series.Mode->Points.size(), 1U);
}

TEST(Series, isIndependentOfItsCloneInEverythingElse)
{
    AeMode mode;
    const Series series = filledSeries(mode);
    Series copy = series.Clone();
    copy.MarkerTag = QStringLiteral("b");
    copy.ColorIndex = 0;
    EXPECT_EQ(series.MarkerTag, QStringLiteral("a"));
    EXPECT_EQ(series.ColorIndex, rgb(4, 5, 6));
}

TEST(Series, clonesWithoutAMode)
{
    EXPECT_EQ(Series().Clone().Mode, nullptr);
}

TEST(RefLine, isZeroAndEmptyWhenNew)
{
    const RefLine line;
    EXPECT_EQ(line.LineWidth, 0);
    EXPECT_EQ(line.LineStyle, 0);
    EXPECT_EQ(line.ColorIndex, 0);
    EXPECT_TRUE(line.Caption.isEmpty());
    EXPECT_EQ(line.X1, 0.0F);
    EXPECT_EQ(line.Y1, 0.0F);
    EXPECT_EQ(line.X2, 0.0F);
    EXPECT_EQ(line.Y2, 0.0F);
}

TEST(RefThick, isZeroAndEmptyWhenNew)
{
    const RefThick mark;
    EXPECT_EQ(mark.Speed, 0.0F);
    EXPECT_TRUE(mark.Caption.isEmpty());
}
