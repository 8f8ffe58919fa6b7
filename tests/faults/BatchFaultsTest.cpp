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
};

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
        words.insert(words.end(), {"--output", target});
        words.insert(words.end(), writer.inputs.begin(), writer.inputs.end());
        return words;
    };
    FaultTrial({command, writer.file}).run();
}

INSTANTIATE_TEST_SUITE_P(Writers, BatchFaults, ::testing::ValuesIn(batchWriters()),
                         [](const auto& tested) { return tested.param.name; });

} // namespace tarsil::test
