// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfListing.h"
#include "emf/TestPens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tarsil;
using test::drawnRecords;
using test::metafileOf;
using test::thin;
using ::testing::ElementsAre;

namespace {

/// The bounds of the picture made by `draw`.
template <typename Draw>
QRect boundsOf(Draw draw)
{
    return metafileOf(draw).bounds;
}

} // namespace

TEST(MetafileClip, isWrittenAsRegionAndAsRectangle)
{
    // Right and bottom of a clip are exclusive: 20 + 5 and 10 + 50.
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.setClip({20, 10, 5, 50});
                    context.drawLine({0, 30}, {100, 30}, thin);
                }),
                ElementsAre("restore -1", "save", "clip region 20,10 25,60",
                            "clip intersect 20,10 25,60", "background transparent",
                            "pen 1 solid 1 #000000", "select 1", "polyline16 0,30 100,30"));
}

TEST(MetafileClip, makesAllOtherStateBeWrittenAgain)
{
    const std::vector<std::string> lines = drawnRecords([](DeviceContext& context) {
        const Font font {QStringLiteral("Arial"), 12};
        const auto drawAll = [&] {
            context.drawLine({1, 2}, {3, 4}, thin);
            context.drawText({5, 5}, QStringLiteral(" "), font, rgb(255, 0, 0),
                             TextAlignment::BottomCenter);
        };
        drawAll();
        context.setClip({20, 10, 5, 50});
        drawAll();
    });
    const auto again = std::find(lines.begin(), lines.end(), "restore -1");
    std::vector<std::string> after(again, lines.end());
    ASSERT_FALSE(after.empty());
    after.pop_back(); // the text, whose advances depend on the font
    EXPECT_THAT(after,
                ElementsAre("restore -1", "save", "clip region 20,10 25,60",
                            "clip intersect 20,10 25,60", "background transparent", "select 1",
                            "polyline16 1,2 3,4", "select 2", "color #ff0000", "align 14",
                            "move 5,5"));
}

TEST(MetafileClip, goesBackToTheWholeSurfaceWhenItIsCleared)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.setClip({20, 10, 5, 50});
                    context.drawLine({0, 30}, {100, 30}, thin);
                    context.clearClip();
                    context.drawLine({0, 31}, {100, 31}, thin);
                }),
                ElementsAre("restore -1", "save", "clip region 20,10 25,60",
                            "clip intersect 20,10 25,60", "background transparent",
                            "pen 1 solid 1 #000000", "select 1", "polyline16 0,30 100,30",
                            "restore -1", "save", "background transparent", "select 1",
                            "polyline16 0,31 100,31"));
}

TEST(MetafileClip, dividesACurveThatIsDrawnUnderTwo)
{
    const auto lines = drawnRecords([](DeviceContext& context) {
        context.setClip({0, 0, 10, 10});
        context.drawLine({0, 0}, {5, 5}, thin);
        context.setClip({0, 0, 20, 20});
        context.drawLine({5, 5}, {15, 15}, thin);
    });
    EXPECT_THAT(lines, ::testing::Contains("polyline16 0,0 5,5"));
    EXPECT_THAT(lines, ::testing::Contains("polyline16 5,5 15,15"));
    EXPECT_THAT(lines, ::testing::Contains("clip region 0,0 20,20"));
}

TEST(MetafileClip, isWrittenOnlyWhereSomethingIsDrawnUnderIt)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.setClip({20, 10, 5, 50});
                    context.clearClip();
                    context.drawLine({0, 30}, {100, 30}, thin);
                    context.setClip({1, 1, 5, 5});
                }),
                ElementsAre("background transparent", "pen 1 solid 1 #000000", "select 1",
                            "polyline16 0,30 100,30"));
}

TEST(MetafileClip, joinsACurveAcrossTheSameClip)
{
    EXPECT_EQ(drawnRecords([](DeviceContext& context) {
                  context.setClip({0, 0, 10, 10});
                  context.drawLine({0, 0}, {5, 5}, thin);
                  context.clearClip();
                  context.setClip({0, 0, 10, 10});
                  context.drawLine({5, 5}, {9, 5}, thin);
              }).back(),
              "polyline16 0,0 5,5 9,5");
}

TEST(MetafileClip, keepsEverythingOutWhenItIsEmpty)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.setClip({20, 10, 0, 50});
                    context.drawLine({0, 30}, {100, 30}, thin);
                    context.fillRectangle({0, 0, 100, 100}, 0);
                    context.drawText({20, 20}, QStringLiteral("x"), {}, 0, TextAlignment::TopLeft);
                }),
                ElementsAre());
}

TEST(MetafileBounds, holdAllThatIsDrawnAndNothingElse)
{
    EXPECT_EQ(boundsOf([](DeviceContext& context) {
                  context.drawLine({10, 50}, {30, 20}, {penstyle::solid, 0, 0});
                  context.drawLine({-5, 25}, {12, 26}, {penstyle::dot, 1, 0});
                  context.drawLine({-500, 25}, {900, 26}, {penstyle::none, 1, 0});
              }),
              QRect(QPoint(-5, 20), QPoint(30, 50)));
    EXPECT_EQ(boundsOf([](DeviceContext& context) {
                  context.setOrigin({100, 200});
                  context.fillRectangle({1, 2, 30, 40}, 0);
              }),
              QRect(QPoint(101, 202), QPoint(130, 241)));
}

TEST(MetafileBounds, growByHalfThePensWidth)
{
    const auto boundsWith = [](int width) {
        return boundsOf([width](DeviceContext& context) {
            context.drawLine({100, 100}, {200, 150}, {penstyle::solid, width, 0});
        });
    };
    EXPECT_EQ(boundsWith(1), QRect(QPoint(100, 100), QPoint(200, 150)));
    EXPECT_EQ(boundsWith(2), QRect(QPoint(99, 99), QPoint(201, 151)));
    EXPECT_EQ(boundsWith(3), QRect(QPoint(99, 99), QPoint(201, 151)));
    EXPECT_EQ(boundsWith(5), QRect(QPoint(98, 98), QPoint(202, 152)));
}

TEST(MetafileBounds, endAtTheClip)
{
    EXPECT_EQ(boundsOf([](DeviceContext& context) {
                  context.setClip({20, 10, 30, 40});
                  context.drawLine({0, 30}, {100, 32}, {penstyle::solid, 3, 0});
              }),
              QRect(QPoint(20, 29), QPoint(49, 33)));
    EXPECT_TRUE(boundsOf([](DeviceContext& context) {
                    context.setClip({20, 10, 30, 40});
                    context.drawLine({0, 130}, {100, 132}, thin);
                }).isEmpty());
}
