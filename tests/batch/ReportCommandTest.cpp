// SPDX-License-Identifier: Apache-2.0
#include "analysis/XlsxReader.h"
#include "batch/BatchFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

using namespace tarsil;
using test::fileBytes;
using test::runBatch;
using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class ReportCommand : public test::BatchFixture
{
protected:
    /// The arguments of a report, followed by more.
    static std::vector<std::string> arguments(const std::string& output,
                                              const std::vector<std::string>& more)
    {
        std::vector<std::string> all = {
            "report", "--reference-damping", "0", "--speed-limit", "350", "--output"};
        all.push_back(output);
        all.insert(all.end(), more.begin(), more.end());
        return all;
    }
};

} // namespace

TEST_F(ReportCommand, writesASpreadsheet)
{
    const std::string output = file("out.xlsx");
    const auto result = runBatch(arguments(output, {writeEv2()}));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out + result.err, "");
    const Sheet sheet = test::readXlsx(output);
    const auto text = [&sheet](std::size_t row, std::size_t column) {
        return Sheet::textOf(sheet.cell(row, column));
    };
    ASSERT_EQ(sheet.rowCount(), 3U);
    EXPECT_EQ(text(1, 1), "Modal Evolution");
    EXPECT_EQ(text(2, 1), "wing.ev2");
    EXPECT_EQ(text(2, 2), "nominal; Fl\xC3\xBCgel");
    EXPECT_EQ(text(2, 3), "FULL \"A\"");
    EXPECT_EQ(text(2, 4), "0.78");
    EXPECT_EQ(text(2, 5), "3");
    EXPECT_EQ(text(2, 8), "350"); // half-way from 300 to 400
    EXPECT_EQ(text(2, 10), "5");
    EXPECT_EQ(text(3, 8), "250");
    EXPECT_EQ(text(3, 9), "350");
    EXPECT_EQ(text(3, 14), "90");
    const Sheet second = test::readXlsx(output, 2);
    EXPECT_EQ(second.title(), "Stability");
    EXPECT_THAT(Sheet::textOf(second.cell(2, 4)), StartsWith("250.00 +- "));
}

TEST_F(ReportCommand, writesDelimitedText)
{
    const auto result =
        runBatch(arguments(file("out.csv"), {"--mach", "0.5", "--modes=1", writeEvm()}));
    EXPECT_EQ(result.status, 0) << result.err;
    // From -0.5 at 100 KEAS to 0.5 at 200: zero at 150 KEAS and 6 Hz. The altitude is that of
    // 150 KEAS at Mach 0.5: delta = (77.1667 / 0.5)^2 / 115794.8 = 0.205698, and
    // 36089 - ln(0.205698 / 0.223358) / 4.8063e-5 = 37803 ft.
    EXPECT_THAT(fileBytes(file("out.csv")),
                StartsWith("Modal Evolution,Case,Mass,Mach No.,Aero Mode,gmax value,gmax speed,"
                           "Flutter Speed,Flutter Frequency,Flutter Altitude,MPF(1)\r\n"
                           "old.evm,,,0.5,7,0.5,200,150,6,3780"));
}

TEST_F(ReportCommand, acceptsANegativeReferenceDamping)
{
    const auto result = runBatch({"report", "--reference-damping", "-0.25", "--speed-limit", "350",
                                  "--mach=0.5", "--output", file("out.csv"), writeEvm()});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_THAT(fileBytes(file("out.csv")), HasSubstr("200,125,5,")); // a quarter of the way
}

TEST_F(ReportCommand, needsTheMachNumberOfAFileThatHoldsNone)
{
    const std::string path = writeEvm();
    const auto result = runBatch(arguments(file("out.csv"), {path}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "tarsil-batch: " + path + " has no Mach number; use --mach\n");
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(ReportCommand, usesTheModesListedOfEachFile)
{
    const std::string first = writeEv2("a.ev2");
    const std::string second = writeEv2("b.ev2");
    const auto result = runBatch(arguments(file("out.csv"), {"--modes", "2", first, second}));
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string text = fileBytes(file("out.csv"));
    EXPECT_THAT(text, HasSubstr("\r\na.ev2,nominal; Fl\xFCgel,\"FULL \"\"A\"\"\",0.78,5,"));
    EXPECT_THAT(text, HasSubstr("\r\nb.ev2,"));
    EXPECT_THAT(text, ::testing::Not(HasSubstr("0.78,3,")));
}

TEST_F(ReportCommand, namesAPositionThatIsNotThere)
{
    const std::string path = writeEv2();
    const auto result = runBatch(arguments(file("out.csv"), {"--modes", "3", path}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "tarsil-batch: " + path + ": there is no mode at position 3; the file has 2\n");
}

TEST_F(ReportCommand, namesTheFileOfAnErrorAsItWasGiven)
{
    const std::string path = folder().write("twice.evm",
                                            "\n\n\n" + std::string(60, ' ')
                                                + "   2       1\n"
                                                  "  7  0.100  100.000 5.00000E-01    4.000"
                                                  "  7  0.200  100.000-5.00000E-01    8.000\n");
    const auto result = runBatch(arguments(file("out.csv"), {"--mach", "1", path}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err,
              "tarsil-batch: Division by zero: " + path
                  + ", mode 7, between the speeds 100 and 100; the cells that need it stay "
                    "empty\n");
}

TEST_F(ReportCommand, writesTheOtherFilesWhenOneCannotBeSearched)
{
    const std::string twice = folder().write("twice.evm",
                                             "\n\n\n" + std::string(60, ' ')
                                                 + "   2       1\n"
                                                   "  7  0.100  100.000 5.00000E-01    4.000"
                                                   "  7  0.200  100.000-5.00000E-01    8.000\n");
    const auto result =
        runBatch(arguments(file("out.csv"), {"--mach", "0.5", twice, twice, writeEvm()}));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
    EXPECT_THAT(result.err, HasSubstr(twice + ", mode 7"));
    const std::string text = fileBytes(file("out.csv"));
    EXPECT_THAT(text, HasSubstr("\r\ntwice.evm,,,0,7,0.5,100,,,,\r\n"));
    EXPECT_THAT(text, HasSubstr("\r\nold.evm,,,0.5,7,0.5,200,150,6,3780"));
}

TEST_F(ReportCommand, leavesAnOldOutputAsItWasWhenItFails)
{
    const std::string output = folder().write("out.csv", "old");
    EXPECT_EQ(runBatch(arguments(output, {file("missing.ev2")})).status, 1);
    EXPECT_EQ(fileBytes(output), "old");
}

TEST_F(ReportCommand, saysWhenTheOutputCannotBeWritten)
{
    const auto result = runBatch(arguments(file("none/out.xlsx"), {writeEv2()}));
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("Path not found: " + file("none/out.xlsx")));
}

TEST_F(ReportCommand, doesNotWriteOverAnInput)
{
    const std::string path = writeEv2("wing.ev2.csv");
    const std::string before = fileBytes(path);
    const auto result = runBatch({"report", "--reference-damping", "0", "--speed-limit", "500",
                                  "--output", path, writeEv2(), path});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("is one of the files to read"));
    EXPECT_EQ(fileBytes(path), before);
}

TEST_F(ReportCommand, refusesAMachNumberThatASingleDoesNotHold)
{
    for (const std::string mach : {"1e300", "1e-300", "0", "-0.5", "fast"}) {
        const auto result = runBatch({"report", "--reference-damping", "0", "--speed-limit", "500",
                                      "--mach", mach, "--output", file("out.csv"), writeEv2()});
        EXPECT_EQ(result.status, 2) << mach;
        EXPECT_THAT(result.err, HasSubstr("--mach")) << mach;
    }
}

TEST_F(ReportCommand, refusesWrongUsage)
{
    const std::string path = writeEv2();
    const std::vector<std::vector<std::string>> wrong = {
        {"report", path},
        {"report", "--reference-damping", "0", "--speed-limit", "350", path},
        {"report", "--reference-damping", "x", "--speed-limit", "350", "--output", "o.csv", path},
        arguments(file("out.ods"), {path}),
        arguments(file("csv"), {path}),
        arguments(file("out.csv"), {}),
        arguments(file("out.csv"), {"--modes", "1-", path}),
        arguments(file("out.csv"), {"--mach", "0", path}),
        arguments(file("out.csv"), {"--mach", "fast", path}),
    };
    for (const auto& line : wrong)
        EXPECT_EQ(runBatch(line).status, 2) << ::testing::PrintToString(line);
    EXPECT_EQ(fileCount(), 1U);
}
