// SPDX-License-Identifier: Apache-2.0
#include "surface/TextMetrics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <numeric>

using namespace tarsil;
using ::testing::ElementsAre;

namespace {

const Font arial {QStringLiteral("Arial"), 12};

int sumOf(const std::vector<int>& advances)
{
    return std::accumulate(advances.begin(), advances.end(), 0);
}

/// The width that Qt gives the drawn text.
int drawnWidth(const QString& text)
{
    return QFontMetrics(screenFont(arial)).horizontalAdvance(drawableText(text));
}

} // namespace

TEST(TextMetrics, addsTheAdvancesUpToTheWidthThatIsDrawn)
{
    const TextMetrics metrics;
    for (const QString& text : {QStringLiteral("V(keas) 0.25 fil AVAVATo P,"),
                                QStringLiteral("\u03b1\u03b2 \u00e9\u00fc"),
                                QStringLiteral("e\u0301t\u00e9"), QStringLiteral("a\tbc\td"),
                                QStringLiteral("a\r\nb"), QStringLiteral("\U0001D6FC + \U0001D6FD"),
                                QStringLiteral("\u0645\u0631\u062d\u0628\u0627"),
                                QStringLiteral("\u0301"), QStringLiteral("\t"), QString()}) {
        EXPECT_EQ(metrics.extent(text, arial).width(), drawnWidth(text)) << text.toStdString();
        EXPECT_EQ(sumOf(metrics.advances(text, arial)), drawnWidth(text)) << text.toStdString();
        EXPECT_EQ(metrics.advances(text, arial).size(), text.size()) << text.toStdString();
        EXPECT_THAT(metrics.advances(text, arial), ::testing::Each(::testing::Ge(0)));
    }
}

TEST(DrawableText, hasABlankForWhatShowsNothing)
{
    EXPECT_EQ(drawableText(QStringLiteral("a\tb\r\nc\u0001d\u0085e\u2028f\uFFFFg")),
              QStringLiteral("a b  c d e f g"));
    EXPECT_EQ(drawableText(QStringLiteral("\U0001D6FC \u03b1")),
              QStringLiteral("\U0001D6FC \u03b1"));
    const QString halves = QString(QChar(0xD835)) + QStringLiteral("b") + QChar(0xDEFC);
    EXPECT_EQ(drawableText(halves), QStringLiteral("\uFFFDb\uFFFD"));
}

TEST(TextMetrics, leavesAnAccentWhereItsLetterIs)
{
    EXPECT_THAT(TextMetrics().advances(QStringLiteral("e\u0301"), arial),
                ElementsAre(drawnWidth(QStringLiteral("e")), 0));
}

TEST(TextMetrics, followsTheFontThatItIsAskedFor)
{
    const TextMetrics metrics;
    const Font large {QStringLiteral("Arial"), 24};
    const int small = metrics.ascent(arial);
    EXPECT_GT(metrics.ascent(large), small);
    EXPECT_EQ(metrics.qtFont(large), screenFont(large));
    EXPECT_EQ(metrics.ascent(arial), small);
}

TEST(TextMetrics, acceptAnyNumberOfPoints)
{
    constexpr double infinite = std::numeric_limits<double>::infinity();
    EXPECT_EQ(pixelSize({QStringLiteral("Arial"), 72}), 96);
    EXPECT_EQ(pixelSize({QStringLiteral("Arial"), -5}), 1);
    EXPECT_EQ(pixelSize({QStringLiteral("Arial"), infinite}), 10000);
    EXPECT_EQ(pixelSize({QStringLiteral("Arial"), std::numeric_limits<double>::quiet_NaN()}), 1);
}
