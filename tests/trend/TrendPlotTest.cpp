// SPDX-License-Identifier: Apache-2.0
#include "trend/TrendPlot.h"

#include "support/RecordingContext.h"
#include "trend/TrendLegend.h"
#include "trend/TrendSymbols.h"
#include "vgfplot/PictureWriter.h"

#include <QImage>

#include <algorithm>
#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::RecordingContext;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

namespace {

TrendPoint pointAt(double abscissa, TrendOnset onset, double speed, float level = 0)
{
    TrendPoint point;
    point.onset = onset;
    point.level = level;
    point.abscissa = abscissa;
    point.speed = point.toSpeed = speed;
    point.modes = {2};
    if (onset == TrendOnset::Start || onset == TrendOnset::Interval) {
        point.start = Crossing();
        point.start->frequency = 10;
    }
    return point;
}

/// A comparison of two starts, an evolution unstable from its first speed and one without
/// instability.
FlutterTrend trendOfAll()
{
    FlutterTrend trend;
    trend.settings.levels = {0};
    trend.groups = {"FULL"};
    trend.points = {pointAt(0.4, TrendOnset::Start, 300), pointAt(0.5, TrendOnset::Start, 280),
                    pointAt(0.6, TrendOnset::FirstSpeed, 100), pointAt(0.7, TrendOnset::None, 400)};
    trend.points[3].modes.clear();
    return trend;
}

std::vector<std::string> callsFor(const FlutterTrend& trend)
{
    RecordingContext context;
    TrendPlot(trend).Draw(context);
    return context.drawingCalls();
}

/// The lines that are neither grid nor axis, with that pen.
std::ptrdiff_t countOf(const std::vector<std::string>& calls, const std::string& part)
{
    return std::count_if(calls.begin(), calls.end(), [&part](const std::string& call) {
        return call.find(part) != std::string::npos;
    });
}

/// A line of the colour of the first level that is longer than any symbol.
bool hasJoiningLine(const FlutterTrend& trend)
{
    RecordingContext context;
    TrendPlot plot(trend);
    plot.Draw(context);
    const auto& strokes = context.strokes();
    return std::any_of(strokes.begin(), strokes.end(), [](const RecordingContext::Stroke& one) {
        const QPoint length = one.to - one.from;
        return std::abs(length.x()) > 3 * symbolReach && length.y() != 0;
    });
}

} // namespace

TEST(TrendPlot, joinsStartsAndNothingElse)
{
    FlutterTrend trend = trendOfAll();
    EXPECT_TRUE(hasJoiningLine(trend));
    trend.points[1].onset = TrendOnset::None;
    EXPECT_FALSE(hasJoiningLine(trend)) << "a limit is no speed";
}

TEST(TrendPlot, drawsNoLineBetweenFiles)
{
    FlutterTrend trend = trendOfAll();
    trend.abscissa = TrendAbscissa::File;
    trend.categories = {"a.ev2", "b.ev2", "c.ev2", "d.ev2"};
    for (std::size_t i = 0; i < trend.points.size(); ++i)
        trend.points[i].abscissa = static_cast<double>(i + 1);
    EXPECT_FALSE(hasJoiningLine(trend));
    EXPECT_THAT(callsFor(trend), Contains(HasSubstr("c.ev2")));
}

TEST(TrendPlot, namesModeAndConfidenceOfAStart)
{
    EXPECT_EQ(countOf(callsFor(trendOfAll()), " 2B"), 2);
}

TEST(TrendPlot, explainsTheSymbolsThatOccur)
{
    const std::vector<std::string> calls = callsFor(trendOfAll());
    EXPECT_THAT(calls, Contains(HasSubstr("flutter")));
    EXPECT_THAT(calls, Contains(HasSubstr("unstable from the first speed")));
    EXPECT_THAT(calls, Contains(HasSubstr("none up to the last speed")));
    EXPECT_THAT(calls, Not(Contains(HasSubstr("divergence"))));
    EXPECT_THAT(calls, Not(Contains(HasSubstr("required"))));
}

TEST(TrendPlot, saysHowManyPointsAreNotDrawn)
{
    FlutterTrend trend = trendOfAll();
    trend.points[0].whyNotDrawn = "for a reason";
    EXPECT_THAT(callsFor(trend), Contains(HasSubstr("1 of 4 points are not drawn")));
}

TEST(TrendPlot, drawsTheRequiredSpeedAsALineOrAtEachPoint)
{
    FlutterTrend trend = trendOfAll();
    trend.required = {{0.4, 250}, {0.5, 250}, {0.6, 250}};
    trend.requirementName = "1.15 x Vd";
    const auto thick = [&trend] { return countOf(callsFor(trend), " solid 2 "); };
    EXPECT_EQ(thick(), 4) << "three strokes and the entry of the legend";
    trend.isRequirementLine = true;
    EXPECT_EQ(thick(), 3) << "two lines and the entry of the legend";
    EXPECT_THAT(callsFor(trend), Contains(HasSubstr("required: 1.15 x Vd")));
}

TEST(TrendPlot, putsLimitsOfSeveralLevelsSideBySide)
{
    FlutterTrend trend;
    trend.groups = {"FULL"};
    trend.settings.levels = {0, 0.03F};
    trend.points = {pointAt(0.5, TrendOnset::None, 400),
                    pointAt(0.5, TrendOnset::None, 400, 0.03F)};
    RecordingContext context;
    TrendPlot(trend).Draw(context);
    std::vector<int> columns;
    for (const auto& stroke : context.strokes()) {
        if (stroke.to - stroke.from == QPoint(12, 0)) // the base of a triangle
            columns.push_back(stroke.from.x());
    }
    ASSERT_EQ(columns.size(), 3U) << "and one in the legend";
    EXPECT_NE(columns[0], columns[1]);
}

TEST(TrendPlot, writesAllFormatsInEverySize)
{
    TrendPlot plot(trendOfAll());
    for (const QSize size : {QSize(1000, 750), QSize(300, 200), QSize(1, 1)}) {
        plot.resize(size);
        EXPECT_EQ(QImage::fromData(pictureBytes(plot, PictureFormat::Png)).size(), size);
        EXPECT_TRUE(pictureBytes(plot, PictureFormat::Svg).contains("Flutter trend"));
        EXPECT_TRUE(pictureBytes(plot, PictureFormat::Pdf).startsWith("%PDF-"));
        EXPECT_TRUE(pictureBytes(plot, PictureFormat::Emf).startsWith(QByteArray("\1\0\0\0", 4)));
    }
    TrendPlot empty {FlutterTrend()};
    EXPECT_FALSE(pictureBytes(empty, PictureFormat::Svg).isEmpty());
}

TEST(TrendPlot, namesSomeOfVeryManyFiles)
{
    FlutterTrend trend;
    trend.abscissa = TrendAbscissa::File;
    trend.settings.levels = {0};
    trend.groups = {""};
    for (int i = 1; i <= 2000; ++i) {
        trend.categories.push_back("run" + std::to_string(i) + ".ev2");
        trend.points.push_back(pointAt(i, TrendOnset::Start, 300 + i % 7));
    }
    const auto names = countOf(callsFor(trend), "text TopCenter");
    EXPECT_GT(names, 4);
    EXPECT_LT(names, 20);
}

TEST(TrendLegend, shortensATextInItsMiddle)
{
    const RecordingContext context; // 6 pixels a character
    EXPECT_EQ(fittingText(QStringLiteral("abcdefghij"), 60, context), QStringLiteral("abcdefghij"));
    EXPECT_EQ(fittingText(QStringLiteral("abcdefghij"), 59, context), QStringLiteral("abc...hij"));
    EXPECT_EQ(fittingText(QStringLiteral("abcdefghij"), 5, context), QStringLiteral("..."));
}
