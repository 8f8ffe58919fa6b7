// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfListing.h"
#include "emf/TestPens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using namespace tarsil;
using test::dashed;
using test::drawnRecords;
using test::EmfContents;
using test::EmfItem;
using test::metafileOf;
using test::polylinesOf;
using test::thin;
using ::testing::ElementsAre;
namespace emf = test::emf;

namespace {

/// A connected curve of `segments` segments, alternately one row down and up.
void drawCurve(DeviceContext& context, int segments, const Pen& pen)
{
    for (int i = 0; i < segments; ++i)
        context.drawLine({i, i % 2}, {i + 1, (i + 1) % 2}, pen);
}

} // namespace

TEST(MetafileContext, joinsConnectedSolidLinesOfOnePen)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.drawLine({0, 0}, {10, 5}, thin);
                    context.drawLine({10, 5}, {20, -3}, thin);
                    context.drawLine({20, -3}, {0, 0}, thin);
                }),
                ElementsAre("background transparent", "pen 1 solid 1 #000000", "select 1",
                            "polyline16 0,0 10,5 20,-3 0,0"));
}

TEST(MetafileContext, beginsAPolylineWhereALineBeginsElsewhere)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.drawLine({0, 0}, {10, 5}, thin);
                    context.drawLine({11, 5}, {20, 5}, thin);
                }),
                ElementsAre("background transparent", "pen 1 solid 1 #000000", "select 1",
                            "polyline16 0,0 10,5", "polyline16 11,5 20,5"));
}

TEST(MetafileContext, splitsALongCurveAndRepeatsThePointBetween)
{
    // 5000 segments have 5001 points: 4096 and, with the repeated joint, 5001 - 4096 + 1 = 906.
    const auto polylines =
        polylinesOf(metafileOf([](DeviceContext& context) { drawCurve(context, 5000, thin); }));
    ASSERT_EQ(polylines.size(), 2);
    EXPECT_EQ(polylines[0].points().size(), 4096);
    EXPECT_EQ(polylines[0].points().back(), QPoint(4095, 1));
    EXPECT_EQ(polylines[1].points().size(), 906);
    EXPECT_EQ(polylines[1].points().front(), QPoint(4095, 1));
    EXPECT_EQ(polylines[1].points().back(), QPoint(5000, 0));
}

TEST(MetafileContext, uses32BitsForAPolylineThatExceeds16)
{
    const auto typeOfLineTo = [](QPoint end) {
        return polylinesOf(metafileOf([&](DeviceContext& context) {
                   context.drawLine({0, 0}, end, thin);
               }))
            .at(0)
            .type();
    };
    EXPECT_EQ(typeOfLineTo({32767, -32768}), emf::polyline16);
    EXPECT_EQ(typeOfLineTo({32768, 0}), emf::polyline);
    EXPECT_EQ(typeOfLineTo({-32769, 0}), emf::polyline);
    EXPECT_EQ(typeOfLineTo({0, 32768}), emf::polyline);
    EXPECT_EQ(typeOfLineTo({0, -32769}), emf::polyline);
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.drawLine({1, 2}, {60000, -60000}, thin);
                }).back(),
                "polyline 1,2 60000,-60000");
}

TEST(MetafileContext, movesToTheBeginOfEveryDashedLine)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.drawLine({0, 0}, {10, 5}, dashed);
                    context.drawLine({10, 5}, {20, 5}, dashed);
                }),
                ElementsAre("background transparent", "pen 1 dash 0 #000000", "select 1",
                            "move 0,0", "line 10,5", "move 10,5", "line 20,5"));
}

TEST(MetafileContext, keepsTheOrderOfSolidAndDashedLines)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.drawLine({0, 0}, {1, 0}, thin);
                    context.drawLine({0, 1}, {1, 1}, dashed);
                    context.drawLine({1, 0}, {2, 0}, thin);
                }),
                ElementsAre("background transparent", "pen 1 solid 1 #000000", "select 1",
                            "polyline16 0,0 1,0", "pen 2 dash 0 #000000", "select 2", "move 0,1",
                            "line 1,1", "select 1", "polyline16 1,0 2,0"));
}

TEST(MetafileContext, addsTheOriginToTheCoordinates)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.setOrigin({100, 50});
                    context.drawLine({1, 2}, {3, 4}, thin);
                    context.setOrigin({-10, 0});
                    context.drawLine({1, 2}, {3, 4}, dashed);
                    context.fillRectangle({5, 6, 7, 8}, 0);
                }),
                ElementsAre("background transparent", "pen 1 solid 1 #000000", "select 1",
                            "polyline16 101,52 103,54", "pen 2 dash 0 #000000", "select 2",
                            "move -9,2", "line -7,4", "brush 3 #000000", "select 3",
                            "fill -5,6 7x8", "select stock 0", "delete 3"));
}

TEST(MetafileContext, fillsWithABrushOfItsOwn)
{
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.fillRectangle({1, 2, 30, 40}, rgb(255, 255, 255));
                    context.fillRectangle({5, 6, 1, 1}, rgb(0, 0, 255));
                    context.fillRectangle({5, 6, 0, 1}, 0);
                    context.fillRectangle({5, 6, 1, -1}, 0);
                }),
                ElementsAre("background transparent", "brush 1 #ffffff", "select 1",
                            "fill 1,2 30x40", "select stock 0", "delete 1", "brush 1 #0000ff",
                            "select 1", "fill 5,6 1x1", "select stock 0", "delete 1"));
}

TEST(MetafileContext, fillsByCopyingTheBrushWithoutABitmap)
{
    const EmfContents contents = metafileOf([](DeviceContext& context) {
        context.fillRectangle({1, 2, 30, 40}, rgb(255, 0, 0));
    });
    for (const EmfItem& item : contents.records) {
        if (item.type() != emf::bitBlt)
            continue;
        EXPECT_EQ(item.rectangle(8), QRect(1, 2, 30, 40));
        EXPECT_EQ(item.word(40), 0x00F00021); // the raster operation PATCOPY
        for (std::size_t offset = 80; offset < item.size(); offset += 4)
            EXPECT_EQ(item.word(offset), 0) << offset; // the bitmap's usage, header and bits
    }
}

TEST(MetafileContext, cutsLinesThatGoFarAwayWhereTheyLeave)
{
    // 2^16 is 65536. A line through (0, 10) with slope one half leaves the range after half as many
    // rows.
    constexpr int far = 1 << 26;
    EXPECT_EQ(drawnRecords([](DeviceContext& context) {
                  context.drawLine({-far, 10 - far / 2}, {far, 10 + far / 2}, thin);
              }).back(),
              "polyline -65536,-32758 65536,32778");
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.drawLine({0, 0}, {65536, -65536}, thin);
                    context.drawLine({far, 0}, {0, 0}, dashed);
                }),
                ElementsAre("background transparent", "pen 1 solid 1 #000000", "select 1",
                            "polyline 0,0 65536,-65536", "pen 2 dash 0 #000000", "select 2",
                            "move 65536,0", "line 0,0"));
}

TEST(MetafileContext, leavesOutLinesThatPassFarAway)
{
    constexpr int far = std::numeric_limits<int>::max();
    EXPECT_THAT(drawnRecords([](DeviceContext& context) {
                    context.setOrigin({far, -far});
                    context.drawLine({far, -far}, {far, -far}, thin);
                    context.drawLine({0, -far}, {far, 0}, dashed);
                }),
                ElementsAre());
}

TEST(MetafileContext, staysInRangeFarAway)
{
    constexpr int far = std::numeric_limits<int>::max();
    const Font huge {QStringLiteral("Arial"), 1e300};
    const EmfContents contents = metafileOf([&](DeviceContext& context) {
        context.setClip({QPoint(-far, -far), QPoint(far, far)});
        context.setOrigin({far, far});
        context.drawText({far, far}, QStringLiteral("text"), huge, 0, TextAlignment::TopLeft);
        context.setOrigin({-far, -far});
        context.drawText({-far, -far}, QStringLiteral("text"), huge, 0, TextAlignment::TopRight);
        context.setOrigin({0, 0});
        context.fillRectangle({QPoint(-far, -far), QPoint(far, far)}, 0);
        context.drawLine({0, 0}, {1, 1}, {penstyle::solid, far, 0});
    });
    EXPECT_EQ(contents.bounds, QRect(QPoint(-65536, -65536), QPoint(65536, 65536)));
}

TEST(MetafileContext, drawsNothingOnceItIsClosed)
{
    EmfMemory memory;
    MetafileContext context(memory, QStringLiteral("a test"));
    context.drawLine({0, 0}, {1, 0}, thin);
    context.close();
    const std::string bytes = memory.bytes();
    context.drawLine({1, 0}, {2, 0}, thin);
    for (int i = 0; i < 10000; ++i) { // more than a buffer could hold
        context.drawLine({1, 0}, {2, 0}, dashed);
        context.fillRectangle({1, 2, 3, 4}, 0);
        context.drawText({5, 5}, QStringLiteral("x"), {}, 0, TextAlignment::TopLeft);
    }
    context.close();
    EXPECT_EQ(memory.bytes(), bytes);
    EXPECT_EQ(polylinesOf(test::readMetafile(bytes)).size(), 1);
}
