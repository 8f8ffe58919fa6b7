// SPDX-License-Identifier: Apache-2.0

// The writers of the program without windows.

#include "FaultTrial.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarsil::test {

namespace {

struct BatchWriter
{
    const char* name;
    std::vector<std::string> words; ///< after the program's name
    std::string file;
    std::vector<std::string> inputs;
    bool namesFolder = false; ///< whether the command is given the folder of the file
};

/// The part of a printed solver output with one analysis.
std::string firstAnalysis()
{
    static const TemporaryFolder folder;
    const std::string text = fileBytes(sample("goland_clean.f06"));
    const std::size_t next = text.find("SUBCASE 2");
    return folder.write("wing.f06", text.substr(0, text.rfind('\n', next) + 1));
}

std::vector<BatchWriter> batchWriters()
{
    const std::string clean = sample("goland_clean_m040.ev2");
    const std::string store = sample("goland_tipstore_m040.ev2");
    const std::vector<std::string> report {"report", "--reference-damping", "0", "--speed-limit",
                                           "400"};
    return {{"workbook", report, "report.xlsx", {clean}},
            {"table", report, "report.csv", {clean}},
            {"svg", {"picture"}, "plot.svg", {clean}},
            {"pdf", {"picture"}, "plot.pdf", {clean}},
            {"png", {"picture"}, "plot.png", {clean}},
            {"metafile", {"picture"}, "plot.emf", {clean}},
            {"pictureOfAWorkspace", {"picture", "--plot", "1"}, "plot.svg", {sample("goland.tsw")}},
            {"documentAsPdf", {"document"}, "report.pdf", {sample("goland.tsw")}},
            {"documentAsText", {"document"}, "report.odt", {sample("goland.tsw")}},
            {"documentAsPage", {"document"}, "report.html", {sample("goland.tsw")}},
            {"trendPicture", {"trend"}, "trend.svg", {clean, store}},
            {"trendWorkbook", {"trend"}, "trend.xlsx", {clean, store}},
            {"trendTable", {"trend"}, "trend.csv", {clean, store}},
            {"trendForScripts", {"trend"}, "trend.json", {clean, store}},
            {"crossingsWorkbook", {"crossings"}, "crossings.xlsx", {clean}},
            {"crossingsTable", {"crossings"}, "crossings.csv", {clean}},
            {"crossingsForScripts", {"crossings"}, "crossings.json", {clean}},
            {"import",
             {"import", "--speed-unit", "in/s"},
             "wing_s1_M0.40.ev2",
             {firstAnalysis()},
             true},
            {"conversion", {"convert"}, "case.evm", {clean}},
            {"mix", {"mix"}, "worst.mix", {clean + ":1,2", store + ":2"}}};
}

void PrintTo(const BatchWriter& writer, std::ostream* stream)
{
    *stream << writer.name;
}

class BatchFaults : public ::testing::TestWithParam<BatchWriter>
{ };

} // namespace

TEST_P(BatchFaults, leaveTheOldFileOrTheNewOne)
{
    if (const std::string hindrance = FaultInjector::hindrance(); !hindrance.empty())
        GTEST_SKIP() << hindrance;
    const BatchWriter& writer = GetParam();
    const auto command = [&writer](const std::string& target) {
        std::vector<std::string> words {TARSIL_BATCH};
        words.insert(words.end(), writer.words.begin(), writer.words.end());
        const std::string folder = target.substr(0, target.rfind('/'));
        words.insert(words.end(), {"--output", writer.namesFolder ? folder : target});
        words.insert(words.end(), writer.inputs.begin(), writer.inputs.end());
        return words;
    };
    FaultTrial({command, writer.file}).run();
}

INSTANTIATE_TEST_SUITE_P(Writers, BatchFaults, ::testing::ValuesIn(batchWriters()),
                         [](const auto& tested) { return tested.param.name; });

} // namespace tarsil::test
