// SPDX-License-Identifier: Apache-2.0
#include "surface/InkBounds.h"

#include <gtest/gtest.h>

using namespace tarsil;

TEST(InkBounds, areNullBeforeAnythingIsDrawn)
{
    InkBounds ink;
    ink.drawLine({0, 0}, {50, 50}, {penstyle::none, 9, 0});
    ink.drawText({5, 5}, {}, {}, 0, TextAlignment::TopLeft);
    EXPECT_TRUE(ink.bounds().isNull());
}

TEST(InkBounds, holdLinesWithTheWidthOfTheirPens)
{
    InkBounds ink;
    ink.setOrigin({100, 50});
    ink.drawLine({10, 20}, {0, 30}, {penstyle::solid, 1, 0});
    // Columns 100 to 110 and rows 70 to 80, and one pixel around them.
    EXPECT_EQ(ink.bounds(), QRect(QPoint(99, 69), QPoint(111, 81)));
    ink.drawLine({0, 0}, {0, 0}, {penstyle::solid, 8, 0});
    EXPECT_EQ(ink.bounds().topLeft(), QPoint(95, 45));
}

TEST(InkBounds, holdTextsWhereverTheyAreAligned)
{
    for (const TextAlignment alignment : {TextAlignment::TopLeft, TextAlignment::BottomCenter}) {
        InkBounds ink;
        const Font font;
        ink.drawText({200, 100}, QStringLiteral("words"), font, 0, alignment);
        const QRect box = TextMetrics().box({200, 100}, QStringLiteral("words"), font, alignment);
        EXPECT_EQ(ink.bounds(), TextMetrics::reach(box, font));
        EXPECT_TRUE(ink.bounds().contains(box.adjusted(-1, -1, 1, 1)));
    }
}

TEST(InkBounds, endAtTheClip)
{
    InkBounds ink;
    ink.setClip({0, 0, 10, 10});
    ink.fillRectangle({5, 5, 100, 100}, 0);
    EXPECT_EQ(ink.bounds(), QRect(5, 5, 5, 5));
    ink.clearClip();
    ink.fillRectangle({0, 20, 100, 1}, 0);
    EXPECT_EQ(ink.bounds(), QRect(0, 5, 100, 16));
}
