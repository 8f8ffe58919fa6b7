// SPDX-License-Identifier: Apache-2.0
#include "printing/PrintLayout.h"

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

constexpr QSizeF portrait(500, 750);
constexpr QSizeF landscape(750, 500);

} // namespace

TEST(PrintLayoutTest, keepsHeadFootAndPlotsApartOnThePage)
{
    for (const QSizeF size : {portrait, landscape}) {
        for (const std::size_t count : plotsPerPageChoices) {
            const PrintedPage page = printedPage(size, count);
            ASSERT_EQ(page.cells.size(), count);
            std::vector<QRectF> parts = {page.head, page.foot};
            for (const PrintedCell& cell : page.cells) {
                parts.push_back(cell.caption);
                parts.push_back(cell.area);
                EXPECT_EQ(cell.caption.width(), cell.area.width());
                EXPECT_DOUBLE_EQ(cell.caption.bottom(), cell.area.top());
            }
            for (std::size_t i = 0; i < parts.size(); ++i) {
                EXPECT_TRUE(QRectF({0, 0}, size).adjusted(0, 0, 1e-9, 1e-9).contains(parts[i]));
                for (std::size_t j = 0; j < i; ++j)
                    EXPECT_TRUE((parts[i] & parts[j]).height() < 1e-9) << count << " " << i << j;
            }
        }
    }
}

TEST(PrintLayoutTest, putsTwoPlotsWhereThePageIsLonger)
{
    const PrintedPage high = printedPage(portrait, 2);
    EXPECT_EQ(high.cells[0].area.left(), high.cells[1].area.left());
    EXPECT_EQ(high.cells[0].area.width(), portrait.width());
    const PrintedPage wide = printedPage(landscape, 2);
    EXPECT_EQ(wide.cells[0].area.top(), wide.cells[1].area.top());
    EXPECT_LT(wide.cells[0].area.right(), wide.cells[1].area.left());
}

TEST(PrintLayoutTest, fillsPagesOneAfterTheOther)
{
    EXPECT_EQ(pageCount(0, 1), 0U);
    EXPECT_EQ(pageCount(3, 1), 3U);
    EXPECT_EQ(pageCount(4, 2), 2U);
    EXPECT_EQ(pageCount(5, 4), 2U);
}

TEST(PrintLayoutTest, keepsTheShapeOfAPicture)
{
    // 800 x 600 in 400 x 400 is 400 x 300, in 400 x 150 it is 200 x 150.
    EXPECT_EQ(fittedPicture({800, 600}, {10, 20, 400, 400}), QRectF(10, 20, 400, 300));
    EXPECT_EQ(fittedPicture({800, 600}, {10, 20, 400, 150}), QRectF(110, 20, 200, 150));
}
