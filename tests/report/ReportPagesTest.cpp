// SPDX-License-Identifier: Apache-2.0
#include "report/ReportPages.h"

#include "report/ReportFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace tarsil;
using ::testing::HasSubstr;

namespace {

class ReportPagesTest : public test::ReportFixture
{ };

std::string textOf(const ReportPage& page)
{
    std::string all;
    for (const PageText& text : page.texts)
        all += text.text.toStdString() + "|";
    return all;
}

ReportContent tableOf(std::size_t rows, const std::string& text)
{
    ReportTable table;
    table.cells.setText(1, 1, "Heading");
    for (std::size_t row = 2; row <= rows + 1; ++row)
        table.cells.setText(row, 1, text + std::to_string(row));
    ReportContent content;
    content.sections = {{false, {ReportHeading {1, "Title"}, std::move(table)}}};
    return content;
}

} // namespace

TEST_F(ReportPagesTest, keepEverythingBetweenTheMargins)
{
    const std::vector<ReportPage> pages = reportPages(content()).value();
    for (const ReportPage& page : pages) {
        const double right = page.size.width() - paper::sideMargin;
        for (const PageText& text : page.texts) {
            EXPECT_GE(text.start.x(), paper::sideMargin - 0.01) << text.text.toStdString();
            EXPECT_LE(text.start.x() + widthOf(text.text, text.font), right + 0.01)
                << text.text.toStdString();
            EXPECT_LT(text.start.y(), page.size.height());
        }
        for (const PageFill& fill : page.fills)
            EXPECT_LE(fill.area.right(), right + 0.01);
        for (const PagePicture& picture : page.pictures)
            EXPECT_TRUE(
                paper::contentArea(page.size.width() > page.size.height()).contains(picture.area));
    }
}

TEST_F(ReportPagesTest, areNumbered)
{
    const std::vector<ReportPage> pages = reportPages(content()).value();
    ASSERT_GT(pages.size(), 4U);
    const std::string count = std::to_string(pages.size());
    EXPECT_THAT(textOf(pages[0]), HasSubstr("Page 1 of " + count));
    EXPECT_THAT(textOf(pages.back()), HasSubstr("Page " + count + " of " + count));
    EXPECT_THAT(textOf(pages[1]), HasSubstr("Flutter report|"));
    EXPECT_THAT(textOf(pages[1]), HasSubstr("07-Mar-2026 15:20:00|"));
}

TEST_F(ReportPagesTest, beginANewPageForEachPlotAndAreLandscapeForWideTables)
{
    const std::vector<ReportPage> pages = reportPages(content()).value();
    const auto withPicture = std::find_if(pages.begin(), pages.end(),
                                          [](const auto& page) { return !page.pictures.empty(); });
    ASSERT_NE(withPicture, pages.end());
    EXPECT_EQ(withPicture->texts.front().text, QStringLiteral("Plot 1: Clean <wing>"));
    EXPECT_LT(withPicture->size.width(), withPicture->size.height());
    const auto wide = std::find_if(pages.begin(), pages.end(), [](const auto& page) {
        return page.texts.front().text == QStringLiteral("Flutter table");
    });
    ASSERT_NE(wide, pages.end());
    EXPECT_GT(wide->size.width(), wide->size.height());
}

TEST_F(ReportPagesTest, repeatTheHeadingsOfALongTable)
{
    const std::vector<ReportPage> pages = reportPages(tableOf(200, "row ")).value();
    ASSERT_GT(pages.size(), 2U);
    for (const ReportPage& page : pages)
        EXPECT_THAT(textOf(page), HasSubstr("Heading|"));
    std::string all;
    for (const ReportPage& page : pages)
        all += textOf(page);
    for (int row = 2; row <= 201; ++row)
        EXPECT_THAT(all, HasSubstr("|row " + std::to_string(row) + "|"));
}

TEST_F(ReportPagesTest, splitARowThatIsHigherThanAPage)
{
    std::string words;
    for (int i = 0; i < 4000; ++i)
        words += "word" + std::to_string(i) + " ";
    const std::vector<ReportPage> pages = reportPages(tableOf(1, words)).value();
    ASSERT_GT(pages.size(), 1U);
    std::string all;
    for (const ReportPage& page : pages) {
        all += textOf(page) + " ";
        for (const PageText& text : page.texts)
            EXPECT_LT(text.start.y(), page.size.height());
    }
    std::replace(all.begin(), all.end(), '|', ' ');
    for (int i = 0; i < 4000; ++i)
        EXPECT_THAT(all, HasSubstr(" word" + std::to_string(i) + " "));
}

TEST_F(ReportPagesTest, wrapALongWord)
{
    const std::vector<QString> lines = wrapped(QString(300, u'x'), bodyFont, 100);
    QString joined;
    for (const QString& line : lines) {
        EXPECT_LE(widthOf(line, bodyFont), 100.01);
        joined += line;
    }
    EXPECT_EQ(joined, QString(300, u'x'));
}
