// SPDX-License-Identifier: Apache-2.0
#include "analysis/SheetWriter.h"

#include "analysis/Sheet.h"
#include "analysis/XlsxParts.h"
#include "analysis/XlsxReader.h"
#include "base/user/RunTimeError.h"
#include "support/Errors.h"
#include "support/RecordedProgress.h"
#include "support/TestFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>

#ifndef _WIN32
#include <sys/resource.h>
#endif

using namespace tarsil;
using test::fileBytes;
using test::TemporaryFolder;
using ::testing::HasSubstr;

namespace {

Sheet example()
{
    Sheet sheet;
    sheet.setText(1, 1, "Modal Evolution");
    sheet.setText(1, 2, "gmax value");
    sheet.setText(2, 1, "wing, \"full\".ev2");
    sheet.setNumber(2, 2, -0.0131);
    sheet.setText(3, 1, "=1+1");
    sheet.setText(4, 1, "Fl\xC3\xBCgel");
    sheet.setNumber(4, 4, 352.1);
    return sheet;
}

std::optional<RunTimeError> writingError(const Sheet& sheet, const std::string& path)
{
    return test::errorOf([&] { writeSheet(sheet, path); });
}

// An empty value is the same as no variable.
#ifdef _WIN32
constexpr const char* temporaryFolder = "TMP";

void setVariable(const char* name, const std::string& value)
{
    _putenv_s(name, value.c_str());
}
#else
constexpr const char* temporaryFolder = "TMPDIR";

void setVariable(const char* name, const std::string& value)
{
    if (value.empty())
        unsetenv(name);
    else
        setenv(name, value.c_str(), 1);
}
#endif

std::size_t fileCount(const TemporaryFolder& folder)
{
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder.path()))
        ++count;
    return count;
}

#ifndef _WIN32 // which has no limit of a file's size
/// Limits the size of the files of this process, as a full disk does.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &m_before); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before {};
};
#endif

} // namespace

TEST(SheetAsCsv, quotesWhereNeededAndEndsLinesWithCrLf)
{
    const TemporaryFolder folder;
    writeSheet(example(), folder.file("a.csv"));
    EXPECT_EQ(fileBytes(folder.file("a.csv")),
              "Modal Evolution,gmax value,,\r\n"
              "\"wing, \"\"full\"\".ev2\",-0.0131,,\r\n"
              "'=1+1,,,\r\n"
              "Fl\xFCgel,,,352.1\r\n");
}

TEST(SheetAsCsv, letsASpreadsheetRunNoText)
{
    const TemporaryFolder folder;
    Sheet sheet;
    std::size_t row = 0;
    for (const char* text : {"=1+1", "+1", "-1", "@A1", "\tx", "\rx", "=A1,\"B\"", "a=1", "'x", ""})
        sheet.setText(++row, 1, text);
    sheet.setNumber(++row, 1, -1);
    sheet.setNumber(++row, 1, 1e9);
    writeSheet(sheet, folder.file("a.csv"));
    EXPECT_EQ(
        fileBytes(folder.file("a.csv")),
        "'=1+1\r\n'+1\r\n'-1\r\n'@A1\r\n'\tx\r\n\"'\rx\"\r\n\"'=A1,\"\"B\"\"\"\r\na=1\r\n'x\r\n"
        "\r\n-1\r\n1000000000\r\n");
}

TEST(SheetAsCsv, isUtf8WhereEightBitTextCannotBeUsed)
{
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setText(1, 1, "\xCE\xB1, line\nend");
    writeSheet(sheet, folder.file("a.csv"));
    EXPECT_EQ(fileBytes(folder.file("a.csv")), "\"\xCE\xB1, line\nend\"\r\n");
}

TEST(SheetAsXlsx, readsBackAsItWas)
{
    const TemporaryFolder folder;
    const Sheet sheet = example();
    writeSheet(sheet, folder.file("a.xlsx"));
    const Sheet back = test::readXlsx(folder.file("a.xlsx"));
    ASSERT_EQ(back.rowCount(), sheet.rowCount());
    ASSERT_EQ(back.columnCount(), sheet.columnCount());
    for (std::size_t row = 1; row <= sheet.rowCount(); ++row) {
        for (std::size_t column = 1; column <= sheet.columnCount(); ++column)
            EXPECT_EQ(back.cell(row, column), sheet.cell(row, column)) << row << ", " << column;
    }
    EXPECT_EQ(fileCount(folder), 1U) << "no temporary file is left";
}

TEST(SheetAsXlsx, keepsTheWholePrecisionOfANumber)
{
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setNumber(1, 1, 5298.3141592653589);
    sheet.setNumber(1, 2, 1e-7);
    sheet.setText(1, 3, "x");
    writeSheet(sheet, folder.file("a.xlsx"));
    const Sheet back = test::readXlsx(folder.file("a.xlsx"));
    EXPECT_EQ(std::get<double>(back.cell(1, 1)), 5298.3141592653589);
    EXPECT_EQ(std::get<double>(back.cell(1, 2)), 1e-7);
}

TEST(SheetAsXlsx, hasABoldFrozenHeadingAndATitle)
{
    const TemporaryFolder folder;
    writeSheet(example(), folder.file("a.xlsx"));
    const std::string page = test::zipPart(folder.file("a.xlsx"), "xl/worksheets/sheet1.xml");
    EXPECT_THAT(page, HasSubstr("state=\"frozen\""));
    EXPECT_THAT(page, HasSubstr("ySplit=\"1\""));
    EXPECT_THAT(page, HasSubstr("<c r=\"A1\" s=\"1\""));
    EXPECT_THAT(page, HasSubstr("customWidth"));
    EXPECT_THAT(test::zipPart(folder.file("a.xlsx"), "xl/styles.xml"), HasSubstr("<b/>"));
    EXPECT_THAT(test::zipPart(folder.file("a.xlsx"), "docProps/core.xml"),
                HasSubstr("<dc:title>Flutter speeds</dc:title>"));
}

TEST(SheetAsXlsx, holdsSeveralSheetsWithTheirTitlesAndColours)
{
    const TemporaryFolder folder;
    Sheet second("Stability");
    second.setText(1, 1, "Modal Evolution"); // a text that the first one has as well
    second.setText(2, 1, "unstable");
    second.setRowStyle(2, CellStyle::Bad);
    const Sheet first = example();
    writeSheets(std::array {&first, static_cast<const Sheet*>(&second)}, folder.file("a.xlsx"));
    writeSheet(first, folder.file("one.xlsx"));
    EXPECT_EQ(test::zipPart(folder.file("a.xlsx"), "xl/worksheets/sheet1.xml"),
              test::zipPart(folder.file("one.xlsx"), "xl/worksheets/sheet1.xml"));
    const Sheet back = test::readXlsx(folder.file("a.xlsx"), 2);
    EXPECT_EQ(test::readXlsx(folder.file("a.xlsx")).title(), "Flutter");
    EXPECT_EQ(back.title(), "Stability");
    EXPECT_EQ(back.cell(1, 1), second.cell(1, 1));
    EXPECT_EQ(back.cell(2, 1), second.cell(2, 1));
    // Style 4 is that of CellStyle::Bad.
    EXPECT_THAT(test::zipPart(folder.file("a.xlsx"), "xl/worksheets/sheet2.xml"),
                HasSubstr("<c r=\"A2\" s=\"4\""));
    writeSheets(std::array {&first, static_cast<const Sheet*>(&second)}, folder.file("a.csv"));
    writeSheet(first, folder.file("one.csv"));
    EXPECT_EQ(fileBytes(folder.file("a.csv")), fileBytes(folder.file("one.csv")));
}

TEST(SheetAsXlsx, printsLandscapeAsWideAsAPageWithHeadingsAndAFoot)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("report.xlsx");
    writeSheet(example(), path);
    const std::string page = test::zipPart(path, "xl/worksheets/sheet1.xml");
    EXPECT_THAT(page, HasSubstr("<pageSetUpPr fitToPage=\"1\"/>"));
    EXPECT_THAT(page, HasSubstr("<pageSetup orientation=\"landscape\" fitToHeight=\"0\"/>"));
    EXPECT_THAT(page, HasSubstr("&amp;L&amp;F, &amp;A&amp;C&amp;D&amp;RPage &amp;P of &amp;N"));
    EXPECT_THAT(test::zipPart(path, "xl/workbook.xml"),
                HasSubstr("<definedName name=\"_xlnm.Print_Titles\" localSheetId=\"0\">'"
                          + example().title() + "'!$1:$1</definedName>"));
}

TEST(SheetAsXlsx, doesNotWidenAColumnForATextThatExtendsOverEmptyCells)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.xlsx");
    Sheet sheet;
    sheet.setText(1, 3, "last");
    sheet.setText(2, 1, std::string(40, 'x'));
    sheet.setText(3, 1, std::string(20, 'y'));
    sheet.setText(3, 2, std::string(15, 'z'));
    sheet.setNumber(3, 3, 1);
    writeSheet(sheet, path);
    // The longest text that has a cell beside it, or the least width of 8, and a margin of 2.
    EXPECT_THAT(test::zipPart(path, "xl/worksheets/sheet1.xml"),
                HasSubstr("<col min=\"1\" max=\"1\" width=\"22\" customWidth=\"1\"/>"
                          "<col min=\"2\" max=\"2\" width=\"17\" customWidth=\"1\"/>"
                          "<col min=\"3\" max=\"3\" width=\"10\" customWidth=\"1\"/>"));
}

TEST(SheetAsXlsx, canBeStoppedAtEachRowAndWhileItIsCompressed)
{
    const TemporaryFolder folder;
    Sheet sheet;
    constexpr std::size_t rows = 2000;
    for (std::size_t row = 1; row <= rows; ++row)
        sheet.setNumber(row, 1, std::sqrt(static_cast<double>(row)));
    const std::array sheets {static_cast<const Sheet*>(&sheet)};
    test::RecordedProgress whole;
    EXPECT_TRUE(writeSheets(sheets, folder.file("whole.xlsx"), whole.receiver()));
    EXPECT_GT(whole.count(), rows + 1) << "each row and column, and the library";
    EXPECT_TRUE(whole.rises());
    const std::string path = folder.write("a.xlsx", "old");
    for (const std::size_t stop : {std::size_t {1}, rows / 2, rows + 2, whole.count()}) {
        test::RecordedProgress progress(stop);
        EXPECT_FALSE(writeSheets(sheets, path, progress.receiver()));
        EXPECT_EQ(progress.count(), stop) << "no further look after a stop";
        EXPECT_EQ(fileBytes(path), "old");
    }
    EXPECT_TRUE(writeSheets(sheets, path));
    EXPECT_EQ(fileBytes(path), fileBytes(folder.file("whole.xlsx")));
}

TEST(SheetAsXlsx, givesEqualBytesForEqualSheets)
{
    const TemporaryFolder folder;
    writeSheet(example(), folder.file("a.xlsx"));
    writeSheet(example(), folder.file("b.xlsx"));
    EXPECT_EQ(fileBytes(folder.file("a.xlsx")), fileBytes(folder.file("b.xlsx")));
    EXPECT_THAT(test::zipPart(folder.file("a.xlsx"), "docProps/core.xml"), HasSubstr("1980-01-01"));
}

TEST(SheetAsXlsx, acceptsTextThatIsNoUtf8)
{
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setText(1, 1, "Fl\xFCgel.ev2"); // a file name in an 8-bit encoding
    writeSheet(sheet, folder.file("a.xlsx"));
    EXPECT_EQ(Sheet::textOf(test::readXlsx(folder.file("a.xlsx")).cell(1, 1)), "Fl\xC3\xBCgel.ev2");
}

TEST(SheetAsXlsx, replacesWhatXmlCannotHold)
{
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setText(1, 1,
                  "a\xEF\xBF\xBE"
                  "b\xEF\xBF\xBF"
                  "c\x01"
                  "d\x1F"); // U+FFFE, U+FFFF, controls
    sheet.setText(2, 1, " <b>R&D</b>\ttab\r\nline \xF0\x9F\x9B\xA9 ");
    writeSheet(sheet, folder.file("a.xlsx"));
    const Sheet back = test::readXlsx(folder.file("a.xlsx"));
    const std::string replacement = "\xEF\xBF\xBD"; // U+FFFD
    EXPECT_EQ(Sheet::textOf(back.cell(1, 1)),
              "a" + replacement + "b" + replacement + "c" + replacement + "d" + replacement);
    EXPECT_EQ(back.cell(2, 1), sheet.cell(2, 1));
}

/// A spreadsheet reads "_x0041_" within one run as "A" (ECMA-376, 22.9.2.19).
TEST(SheetAsXlsx, keepsATextThatLooksLikeAnEscape)
{
    const auto run = [](const std::string& text) {
        return "<r><t xml:space=\"preserve\">" + text + "</t></r>";
    };
    EXPECT_EQ(xlsxText("_x0041_"), run("_") + run("x0041_"));
    EXPECT_EQ(xlsxText("a_x00e4_x0042_&"), run("a_") + run("x00e4_") + run("x0042_&amp;"));
    for (const char* const plain : {"_x004_", "_x0041", "x0041_", "_x00G1_", "_X0041_", "__", ""})
        EXPECT_EQ(xlsxText(plain), "<t xml:space=\"preserve\">" + std::string(plain) + "</t>");
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setText(1, 1, "_x0041_");
    writeSheet(sheet, folder.file("a.xlsx"));
    EXPECT_EQ(test::readXlsx(folder.file("a.xlsx")).cell(1, 1), sheet.cell(1, 1));
}

TEST(SheetAsXlsx, saysThatANumberIsNone)
{
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setNumber(1, 1, std::nan(""));
    sheet.setNumber(1, 2, HUGE_VAL);
    sheet.setNumber(1, 3, -0.5);
    writeSheet(sheet, folder.file("a.xlsx"));
    EXPECT_THAT(test::zipPart(folder.file("a.xlsx"), "xl/worksheets/sheet1.xml"),
                HasSubstr("<c r=\"A1\" s=\"1\" t=\"e\"><v>#NUM!</v></c>"
                          "<c r=\"B1\" s=\"1\" t=\"e\"><v>#NUM!</v></c>"
                          "<c r=\"C1\" s=\"1\"><v>-0.5</v></c>"));
}

TEST(SheetAsXlsx, namesTheCellsBeyondTheAlphabet)
{
    const TemporaryFolder folder;
    Sheet sheet;
    for (const std::size_t column : {1U, 26U, 27U, 702U, 703U, 16384U})
        sheet.setNumber(1, column, static_cast<double>(column));
    writeSheet(sheet, folder.file("a.xlsx"));
    const std::string page = test::zipPart(folder.file("a.xlsx"), "xl/worksheets/sheet1.xml");
    for (const char* const name : {"A1", "Z1", "AA1", "ZZ1", "AAA1", "XFD1"})
        EXPECT_THAT(page, HasSubstr("<c r=\"" + std::string(name) + "\""));
    EXPECT_EQ(test::readXlsx(folder.file("a.xlsx")).cell(1, 703), sheet.cell(1, 703));
}

TEST(SheetAsXlsx, refusesMoreColumnsThanASpreadsheetHas)
{
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setNumber(1, 16385, 1);
    EXPECT_EQ(writingError(sheet, folder.file("a.xlsx"))->number(),
              ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(fileCount(folder), 0U);
}

/// A temporary file elsewhere could fail unnoticed.
TEST(SheetAsXlsx, needsNoFolderForTemporaryFiles)
{
    const TemporaryFolder folder;
    const char* const before = std::getenv(temporaryFolder);
    const std::string kept = before != nullptr ? before : "";
    setVariable(temporaryFolder, folder.file("none"));
    writeSheet(example(), folder.file("a.xlsx"));
    setVariable(temporaryFolder, kept);
    EXPECT_EQ(test::readXlsx(folder.file("a.xlsx")).cell(4, 4), example().cell(4, 4));
}

/// Writes the largest and the smallest report that the tests use.
TEST(SheetAsXlsx, readsBackAtEverySize)
{
    const TemporaryFolder folder;
    for (const std::size_t rows : {0U, 1U, 3000U}) {
        Sheet sheet;
        for (std::size_t row = 1; row <= rows; ++row) {
            sheet.setText(row, 1, "mode " + std::to_string(row % 7));
            sheet.setNumber(row, 3, 1.0 / static_cast<double>(row));
        }
        writeSheet(sheet, folder.file("a.xlsx"));
        const Sheet back = test::readXlsx(folder.file("a.xlsx"));
        ASSERT_EQ(back.rowCount(), rows);
        for (std::size_t row = 1; row <= rows; ++row) {
            for (std::size_t column = 1; column <= 3; ++column)
                ASSERT_EQ(back.cell(row, column), sheet.cell(row, column)) << row;
        }
    }
}

TEST(SheetAsXlsx, refusesATextThatNoCellHolds)
{
    const TemporaryFolder folder;
    Sheet sheet;
    sheet.setText(1, 1, std::string(40000, 'x')); // a cell holds 32767 characters
    const auto error = writingError(sheet, folder.file("a.xlsx"));
    EXPECT_EQ(error.value().number(), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(fileCount(folder), 0U);
}

TEST(SheetFile, isChosenByTheExtensionInAnyCase)
{
    const TemporaryFolder folder;
    writeSheet(example(), folder.file("A.XLSX"));
    writeSheet(example(), folder.file("A.Csv"));
    EXPECT_EQ(fileBytes(folder.file("A.XLSX")).substr(0, 2), "PK");
    EXPECT_EQ(fileBytes(folder.file("A.Csv")).substr(0, 5), "Modal");
}

TEST(SheetFile, refusesAnotherExtensionByName)
{
    const TemporaryFolder folder;
    const auto error = writingError(example(), folder.file("report.ods"));
    EXPECT_EQ(error.value().number(), ErrorNumber::InvalidProcedureCall);
    EXPECT_THAT(error.value().description(), HasSubstr("report.ods"));
    EXPECT_EQ(fileCount(folder), 0U);
}

TEST(SheetFile, saysWhenTheFolderIsMissing)
{
    const TemporaryFolder folder;
    EXPECT_EQ(writingError(example(), folder.file("none/a.xlsx"))->number(),
              ErrorNumber::PathNotFound);
    EXPECT_EQ(writingError(example(), folder.file("none/a.csv"))->number(),
              ErrorNumber::PathNotFound);
}

TEST(SheetFile, saysWhenTheNameIsThatOfAFolder)
{
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.file("a.xlsx"));
    EXPECT_EQ(writingError(example(), folder.file("a.xlsx"))->number(),
              ErrorNumber::PathFileAccess);
}

TEST(SheetFile, leavesAReadOnlyFileAsItIs)
{
    const TemporaryFolder folder;
    for (const char* name : {"a.xlsx", "a.csv"}) {
        const std::string path = folder.write(name, "old");
        std::filesystem::permissions(path, std::filesystem::perms::owner_read);
        EXPECT_EQ(writingError(example(), path)->number(), ErrorNumber::PermissionDenied);
        EXPECT_EQ(fileBytes(path), "old");
    }
    EXPECT_EQ(fileCount(folder), 2U);
}

#ifndef _WIN32
TEST(SheetFile, leavesTheOldFileWhenTheNewOneDoesNotFit)
{
    const TemporaryFolder folder;
    Sheet sheet;
    for (std::size_t row = 1; row <= 2000; ++row)
        sheet.setNumber(row, 1, static_cast<double>(row) * 1.37);
    for (const char* name : {"a.xlsx", "a.csv"}) {
        const std::string path = folder.write(name, "old");
        {
            const FileSizeLimit limit(4096);
            EXPECT_EQ(writingError(sheet, path)->number(), ErrorNumber::PathFileAccess) << name;
        }
        EXPECT_EQ(fileBytes(path), "old");
    }
    EXPECT_EQ(fileCount(folder), 2U);
}
#endif
