// SPDX-License-Identifier: Apache-2.0

// How often a report document looks for a stop while it is written, and what a stop leaves.

#include "report/ReportContent.h"
#include "report/ReportWriter.h"
#include "support/RecordedProgress.h"
#include "support/TestFiles.h"
#include "surface/DeviceContext.h"
#include "vgfplot/DrawnPicture.h"

#include <QPoint>
#include <QSize>
#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <memory>
#include <string>

using namespace tarsil;
using test::fileBytes;
using test::RecordedProgress;
using test::TemporaryFolder;

namespace {

constexpr std::array<const char*, 3> formats = {"a.pdf", "a.odt", "a.html"};

/// A picture of lines that do not touch.
class Lines : public DrawnPicture
{
public:
    explicit Lines(int count) : m_count(count) { }

    QString title() const override { return QStringLiteral("lines"); }
    QSize size() const override { return {400, 300}; }
    void Draw(DeviceContext& context) const override
    {
        for (int i = 0; i < m_count; ++i) {
            const int row = 2 * i % size().height();
            context.drawLine({0, row}, {size().width(), row}, {});
        }
    }

private:
    int m_count;
};

ReportContent documentWith(ReportBlock block)
{
    ReportContent content;
    content.sections = {{false, {ReportHeading {1, "Title"}, std::move(block)}}};
    return content;
}

ReportContent longTable(std::size_t rows)
{
    ReportTable table;
    table.cells.setText(1, 1, "Heading");
    for (std::size_t row = 2; row <= rows; ++row)
        table.cells.setText(row, 1, "text " + std::to_string(row));
    return documentWith(std::move(table));
}

ReportContent longPicture(int lines)
{
    return documentWith(ReportPicture {std::make_shared<Lines>(lines), "Figure"});
}

/// The progress of a whole document, written to another file than `name`.
RecordedProgress wholeProgress(const ReportContent& content, const char* name,
                               const TemporaryFolder& folder)
{
    RecordedProgress progress;
    EXPECT_TRUE(
        writeReport(content, folder.file(std::string("whole_") + name), progress.receiver()));
    return progress;
}

} // namespace

TEST(ReportStop, isPossibleAtEachRowOfATable)
{
    const TemporaryFolder folder;
    constexpr std::size_t rows = 300;
    for (const char* const name : formats)
        EXPECT_GE(wholeProgress(longTable(rows), name, folder).count(), rows) << name;
    // A table of a PDF is measured and laid out.
    EXPECT_GE(wholeProgress(longTable(rows), "a.pdf", folder).count(), 2 * rows);
}

TEST(ReportStop, isPossibleWithinAPicture)
{
    const TemporaryFolder folder;
    for (const char* const name : formats)
        EXPECT_GE(wholeProgress(longPicture(5000), name, folder).count(), 50U) << name;
}

TEST(ReportStop, leavesTheFileAsItWas)
{
    const TemporaryFolder folder;
    for (const ReportContent& content : {longTable(300), longPicture(5000)}) {
        for (const char* const name : formats) {
            const std::size_t reports = wholeProgress(content, name, folder).count();
            const std::string path = folder.write(name, "old");
            for (const std::size_t stop : {std::size_t {1}, reports / 3, reports / 2, reports}) {
                RecordedProgress progress(stop);
                EXPECT_FALSE(writeReport(content, path, progress.receiver())) << stop;
                EXPECT_EQ(progress.count(), stop) << name << ": no further look after a stop";
                EXPECT_EQ(fileBytes(path), "old") << name;
            }
            EXPECT_TRUE(writeReport(content, path));
            EXPECT_EQ(fileBytes(path), fileBytes(folder.file(std::string("whole_") + name)));
        }
    }
}

TEST(ReportStop, isOfferedWithRisingProgress)
{
    const TemporaryFolder folder;
    ReportContent content = longTable(300);
    content.sections.push_back(longPicture(5000).sections.front());
    content.sections.push_back(longTable(20).sections.front());
    for (const char* const name : formats)
        EXPECT_TRUE(wholeProgress(content, name, folder).rises()) << name;
}

TEST(ReportStop, isOfferedInSmallStepsOfALongTable)
{
    const TemporaryFolder folder;
    for (const char* const name : formats) // the letters of a narrow table are not made smaller
        EXPECT_LT(wholeProgress(longTable(1000), name, folder).largestStep(), 0.45) << name;
}
