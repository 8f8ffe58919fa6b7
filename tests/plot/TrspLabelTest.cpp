#include "plot/TrspLabel.h"

#include "plot/Picture.h"
#include "support/RecordingContext.h"

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

TEST(TrspLabel, writesItsCaptionAtItsPlace)
{
    trspLabel label;
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
    trspLabel label;
    label.setGeometry({0, 0, 100, 20});
    label.setCaption(QStringLiteral("g"));
    EXPECT_TRUE(hasInk(label.surface()));
    label.setCaption({});
    EXPECT_FALSE(hasInk(label.surface()));
}

TEST(TrspLabel, doesNotFailWithoutACaption)
{
    trspLabel label;
    label.setAutoSize(true);
    label.setCaption({});
    label.Draw(nullptr);
    RecordingContext context;
    label.Draw(&context);
    EXPECT_TRUE(context.ink().isEmpty());
}

TEST(TrspLabel, keepsItsSizeUnlessToldOtherwise)
{
    trspLabel label;
    EXPECT_FALSE(label.AutoSize());
    label.setGeometry({5, 6, 100, 20});
    label.setCaption(QStringLiteral("a caption that is longer than the label"));
    EXPECT_EQ(label.geometry(), QRect(5, 6, 100, 20));
}

TEST(TrspLabel, isAsLargeAsItsTextWithAutoSize)
{
    test::Picture picture;
    trspLabel label;
    label.setGeometry({5, 6, 100, 20});
    label.setCaption(QStringLiteral("f(Hz)"));
    label.setAutoSize(true);
    EXPECT_EQ(label.geometry(),
              QRect(QPoint(5, 6), picture.context().textExtent(label.Caption(), label.font())));
    label.setCaption(QStringLiteral("frequency (Hz)"));
    EXPECT_EQ(label.geometry().size(), picture.context().textExtent(label.Caption(), label.font()));
}
