// SPDX-License-Identifier: Apache-2.0
#include "plot/TrspLabel.h"

#include "support/Errors.h"
#include "support/RecordingContext.h"
#include "surface/Picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::RecordingContext;
using ::testing::ElementsAre;

namespace {

bool hasInk(const QImage& image)
{
    for (int row = 0; row < image.height(); ++row) {
        for (int column = 0; column < image.width(); ++column) {
            if (image.pixelColor(column, row).alpha() > 0)
                return true;
        }
    }
    return false;
}

} // namespace

TEST(TrspLabel, writesItsCaptionAtItsPosition)
{
    trspLabel label(QStringLiteral("velAxisLabel"));
    label.setGeometry({5, 6, 100, 20});
    label.setCaption(QStringLiteral("V(keas)"));
    RecordingContext context;
    label.Draw(&context);
    EXPECT_THAT(context.calls(),
                ElementsAre("origin 5,6", "text TopLeft 0,0 Arial 8 #000000 V(keas)", "clip none",
                            "origin 0,0"));
}

TEST(TrspLabel, drawsAgainOnItsOwnSurfaceWhenTheCaptionIsSet)
{
    trspLabel label(QStringLiteral("velAxisLabel"));
    label.setGeometry({0, 0, 100, 20});
    label.setCaption(QStringLiteral("g"));
    EXPECT_TRUE(hasInk(label.surface()));
    label.setCaption({});
    EXPECT_FALSE(hasInk(label.surface()));
}

TEST(TrspLabel, doesNotFailWithoutACaption)
{
    trspLabel label(QStringLiteral("velAxisLabel"));
    label.setAutoSize(true);
    label.setCaption({});
    label.Draw(nullptr);
    RecordingContext context;
    label.Draw(&context);
    EXPECT_TRUE(context.ink().isEmpty());
}

TEST(TrspLabel, keepsItsSizeWithoutAutoSize)
{
    trspLabel label(QStringLiteral("velAxisLabel"));
    EXPECT_FALSE(label.AutoSize());
    label.setGeometry({5, 6, 100, 20});
    label.setCaption(QStringLiteral("a caption that is longer than the label"));
    EXPECT_EQ(label.geometry(), QRect(5, 6, 100, 20));
}

TEST(TrspLabel, isAsLargeAsItsTextWithAutoSize)
{
    test::Picture picture;
    trspLabel label(QStringLiteral("velAxisLabel"));
    label.setGeometry({5, 6, 100, 20});
    label.setCaption(QStringLiteral("f(Hz)"));
    label.setAutoSize(true);
    EXPECT_EQ(label.geometry(),
              QRect(QPoint(5, 6), picture.context().textExtent(label.Caption(), Font())));
    label.setCaption(QStringLiteral("frequency (Hz)"));
    EXPECT_EQ(label.geometry().size(), picture.context().textExtent(label.Caption(), Font()));
}

TEST(TrspLabel, beginsWithItsOwnNameAsCaption)
{
    const trspLabel label(QStringLiteral("velAxisLabel"));
    EXPECT_EQ(label.Caption(), QStringLiteral("velAxisLabel"));
}

TEST(TrspLabel, keepsItsPropertiesInABag)
{
    trspLabel label(QStringLiteral("gAxisLabel"));
    label.setCaption(QStringLiteral("g"));
    label.setAutoSize(true);
    trspLabel copy(QStringLiteral("other"));
    copy.ReadProperties(label.WriteProperties());
    EXPECT_EQ(copy.Caption(), QStringLiteral("g"));
    EXPECT_TRUE(copy.AutoSize());
    EXPECT_EQ(copy.hFont(), 0);
    copy.ReadProperties({});
    EXPECT_EQ(copy.Caption(), QStringLiteral("other"));
    EXPECT_FALSE(copy.AutoSize());
}

TEST(TrspLabel, marksWhatWasSetAndRefusesAFont)
{
    trspLabel label(QStringLiteral("gAxisLabel"));
    label.setCaption(QStringLiteral("g"));
    EXPECT_TRUE(label.changedProperties().contains(QStringLiteral("Caption")));
    EXPECT_FALSE(label.changedProperties().contains(QStringLiteral("AutoSize")));
    label.setAutoSize(false);
    EXPECT_TRUE(label.changedProperties().contains(QStringLiteral("AutoSize")));
    EXPECT_EQ(test::errorNumberOf([&] { label.sethFont(1); }),
              ErrorNumber::SetNotSupportedAtRunTime);
}
