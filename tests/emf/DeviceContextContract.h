// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace tarsil::test {

// The contract of every drawing surface. A surface is tested through a type with two functions:
// `context()` returns an empty surface of 400 x 300 pixels, `ink()` the bounds of everything inked
// so far in pixels of the whole surface, empty for nothing.
template <typename Surface>
class DeviceContextContract : public ::testing::Test
{
protected:
    /// The ink of "HHHH". An H extends from near the top of its line down to the baseline.
    QRect inkOfText(QPoint reference, TextAlignment alignment)
    {
        Surface fresh;
        fresh.context().drawText(reference, text, font, 0, alignment);
        return fresh.ink();
    }

    /// Expects the ink of a text to end on `baseline` and to fill the columns from `left` on,
    /// except for the letters' side bearings (at most 2 pixels at 12 points).
    void expectText(const QRect& ink, int left, int baseline)
    {
        const int width = surface.context().textExtent(text, font).width();
        EXPECT_EQ(ink.bottom(), baseline - 1);
        EXPECT_GE(ink.left(), left);
        EXPECT_LE(ink.left(), left + 2);
        EXPECT_LE(ink.right(), left + width - 1);
        EXPECT_GE(ink.right(), left + width - 1 - 2);
        EXPECT_GE(ink.top(), baseline - surface.context().textAscent(font));
    }

    int textWidth() { return surface.context().textExtent(text, font).width(); }
    int textHeight() { return surface.context().textExtent(text, font).height(); }
    int textAscent() { return surface.context().textAscent(font); }

    static constexpr Pen pen {penstyle::solid, 1, rgb(0, 0, 0)};
    const QString text = QStringLiteral("HHHH");
    const Font font {QStringLiteral("Arial"), 12};
    Surface surface;
};

TYPED_TEST_SUITE_P(DeviceContextContract);

TYPED_TEST_P(DeviceContextContract, drawsALineFromItsFirstToItsLastPixel)
{
    this->surface.context().drawLine({10, 20}, {30, 20}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(10, 20), QPoint(30, 20)));
}

TYPED_TEST_P(DeviceContextContract, drawsLinesBackwardsAndDownwards)
{
    this->surface.context().drawLine({10, 60}, {10, 20}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(10, 20), QPoint(10, 60)));
}

TYPED_TEST_P(DeviceContextContract, drawsNothingWithPenStyleNone)
{
    this->surface.context().drawLine({10, 20}, {30, 40}, {penstyle::none, 3, 0});
    EXPECT_TRUE(this->surface.ink().isEmpty());
}

TYPED_TEST_P(DeviceContextContract, movesEverythingWithTheOrigin)
{
    this->surface.context().setOrigin({100, 50});
    this->surface.context().drawLine({10, 20}, {30, 20}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(110, 70), QPoint(130, 70)));
}

TYPED_TEST_P(DeviceContextContract, replacesTheOriginAndDoesNotAddToIt)
{
    this->surface.context().setOrigin({100, 50});
    this->surface.context().setOrigin({7, 3});
    this->surface.context().drawLine({10, 20}, {30, 20}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(17, 23), QPoint(37, 23)));
}

TYPED_TEST_P(DeviceContextContract, keepsTheOriginOfALineThatWasDrawnBeforeItMoved)
{
    this->surface.context().drawLine({10, 20}, {30, 20}, this->pen);
    this->surface.context().setOrigin({100, 50});
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(10, 20), QPoint(30, 20)));
}

TYPED_TEST_P(DeviceContextContract, fillsARectangleRelativeToTheOrigin)
{
    this->surface.context().setOrigin({100, 50});
    this->surface.context().fillRectangle({1, 2, 30, 40}, rgb(0, 0, 255));
    EXPECT_EQ(this->surface.ink(), QRect(101, 52, 30, 40));
}

TYPED_TEST_P(DeviceContextContract, keepsDrawingToTheClip)
{
    this->surface.context().setClip({20, 10, 5, 50});
    this->surface.context().drawLine({0, 30}, {100, 30}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(20, 30), QPoint(24, 30)));
}

TYPED_TEST_P(DeviceContextContract, takesTheClipInPixelsOfTheWholeSurface)
{
    this->surface.context().setOrigin({100, 50});
    this->surface.context().setClip({120, 50, 5, 50});
    this->surface.context().drawLine({0, 10}, {100, 10}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(120, 60), QPoint(124, 60)));
}

TYPED_TEST_P(DeviceContextContract, leavesTheClipWhereItIsWhenTheOriginMoves)
{
    this->surface.context().setClip({120, 50, 5, 50});
    this->surface.context().setOrigin({100, 50});
    this->surface.context().drawLine({0, 10}, {100, 10}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(120, 60), QPoint(124, 60)));
}

TYPED_TEST_P(DeviceContextContract, replacesTheClipAndDoesNotIntersectIt)
{
    this->surface.context().setClip({0, 0, 5, 5});
    this->surface.context().setClip({20, 10, 5, 50});
    this->surface.context().drawLine({0, 30}, {100, 30}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(20, 30), QPoint(24, 30)));
}

TYPED_TEST_P(DeviceContextContract, drawsEverywhereOnceTheClipIsCleared)
{
    this->surface.context().setClip({20, 10, 5, 50});
    this->surface.context().clearClip();
    this->surface.context().drawLine({0, 30}, {100, 30}, this->pen);
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(0, 30), QPoint(100, 30)));
}

TYPED_TEST_P(DeviceContextContract, clipsALineThatWasDrawnBeforeTheClipWasCleared)
{
    this->surface.context().setClip({20, 10, 5, 50});
    this->surface.context().drawLine({0, 30}, {100, 30}, this->pen);
    this->surface.context().clearClip();
    EXPECT_EQ(this->surface.ink(), QRect(QPoint(20, 30), QPoint(24, 30)));
}

// Each alignment names the position of the reference point (200, 100) in the text's rectangle.
TYPED_TEST_P(DeviceContextContract, putsTheTopLeftOfATextAtTheReference)
{
    this->expectText(this->inkOfText({200, 100}, TextAlignment::TopLeft), 200,
                     100 + this->textAscent());
}

TYPED_TEST_P(DeviceContextContract, putsTheTopRightOfATextAtTheReference)
{
    this->expectText(this->inkOfText({200, 100}, TextAlignment::TopRight), 200 - this->textWidth(),
                     100 + this->textAscent());
}

TYPED_TEST_P(DeviceContextContract, putsTheTopCentreOfATextAtTheReference)
{
    this->expectText(this->inkOfText({200, 100}, TextAlignment::TopCenter),
                     200 - this->textWidth() / 2, 100 + this->textAscent());
}

TYPED_TEST_P(DeviceContextContract, putsTheBottomCentreOfATextAtTheReference)
{
    const int descent = this->textHeight() - this->textAscent();
    this->expectText(this->inkOfText({200, 100}, TextAlignment::BottomCenter),
                     200 - this->textWidth() / 2, 100 - descent);
}

TYPED_TEST_P(DeviceContextContract, putsTheStartOfTheBaselineOfATextAtTheReference)
{
    this->expectText(this->inkOfText({200, 100}, TextAlignment::BaselineLeft), 200, 100);
}

TYPED_TEST_P(DeviceContextContract, movesATextWithTheOrigin)
{
    this->surface.context().setOrigin({40, 30});
    this->surface.context().drawText({160, 70}, this->text, this->font, 0, TextAlignment::TopLeft);
    this->expectText(this->surface.ink(), 200, 100 + this->textAscent());
}

TYPED_TEST_P(DeviceContextContract, drawsNothingForAnEmptyText)
{
    this->surface.context().drawText({200, 100}, {}, this->font, 0, TextAlignment::TopCenter);
    EXPECT_TRUE(this->surface.ink().isEmpty());
    EXPECT_EQ(this->surface.context().textExtent({}, this->font).width(), 0);
}

TYPED_TEST_P(DeviceContextContract, measuresATextAsTheSumOfItsCharacters)
{
    // "AV", "To" and "P," are pairs that kerning moves closer together.
    for (const QString& words :
         {QStringLiteral("AVAVATo P,"), QStringLiteral("V(keas) 0.25 fil")}) {
        int sum = 0;
        for (const QChar letter : words)
            sum += this->surface.context().textExtent(QString(letter), this->font).width();
        EXPECT_EQ(this->surface.context().textExtent(words, this->font).width(), sum)
            << words.toStdString();
    }
}

TYPED_TEST_P(DeviceContextContract, measuresTheSameHeightForEveryText)
{
    EXPECT_EQ(this->surface.context().textExtent(QStringLiteral("."), this->font).height(),
              this->surface.context().textExtent(QStringLiteral("Ag|"), this->font).height());
    EXPECT_GT(this->textAscent(), 0);
    EXPECT_LT(this->textAscent(), this->textHeight());
}

REGISTER_TYPED_TEST_SUITE_P(
    DeviceContextContract, drawsALineFromItsFirstToItsLastPixel, drawsLinesBackwardsAndDownwards,
    drawsNothingWithPenStyleNone, movesEverythingWithTheOrigin, replacesTheOriginAndDoesNotAddToIt,
    keepsTheOriginOfALineThatWasDrawnBeforeItMoved, fillsARectangleRelativeToTheOrigin,
    keepsDrawingToTheClip, takesTheClipInPixelsOfTheWholeSurface,
    leavesTheClipWhereItIsWhenTheOriginMoves, replacesTheClipAndDoesNotIntersectIt,
    drawsEverywhereOnceTheClipIsCleared, clipsALineThatWasDrawnBeforeTheClipWasCleared,
    putsTheTopLeftOfATextAtTheReference, putsTheTopRightOfATextAtTheReference,
    putsTheTopCentreOfATextAtTheReference, putsTheBottomCentreOfATextAtTheReference,
    putsTheStartOfTheBaselineOfATextAtTheReference, movesATextWithTheOrigin,
    drawsNothingForAnEmptyText, measuresATextAsTheSumOfItsCharacters,
    measuresTheSameHeightForEveryText);

} // namespace tarsil::test
