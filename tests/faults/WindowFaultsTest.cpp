// SPDX-License-Identifier: Apache-2.0

// The writers of the main window.

#include "FaultTrial.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarsil::test {

namespace {

constexpr const char* settings =
    "[Options]\nAcInfoDataFile=\nvgfScale=0|700|0|-0.4|0|60\nvgfThicks=8|8|10\n";
constexpr const char* unreadSettings = "cannot read the settings"; // shown when the program starts

struct WindowWriter
{
    const char* command;
    std::string file;
    std::string old = Writer().old;
    bool makesFile = true;
    std::string remark = {};
    const char* input = "goland_clean_m040.ev2";
};

std::vector<WindowWriter> windowWriters()
{
    return {{"save", "wing.tsw"},
            {"picture", "plot.emf"},
            {"mix", "worst.mix"},
            {"report", "Flutter report*.xlsx", ""},
            // The dates of the document are those of the workspace.
            {"document", "report.pdf", Writer().old, true, {}, "goland.tsw"},
            {"pictures", "Plot1.svg"},
            {"options", "tarsil.ini", settings, true, unreadSettings},
            {"quit", "tarsil.ini", settings, false}};
}

void PrintTo(const WindowWriter& writer, std::ostream* stream)
{
    *stream << writer.command;
}

class WindowFaults : public ::testing::TestWithParam<WindowWriter>
{ };

} // namespace

TEST_P(WindowFaults, leaveTheOldFileOrTheNewOne)
{
    if (const std::string hindrance = FaultInjector::hindrance(); !hindrance.empty())
        GTEST_SKIP() << hindrance;
    const WindowWriter& writer = GetParam();
    const auto command = [&writer](const std::string& target) {
        return std::vector<std::string> {TARSIL_FAULT_WINDOW, writer.command, target,
                                         sample(writer.input)};
    };
    FaultTrial({command, writer.file, writer.old, writer.makesFile, writer.remark, "windows.ini"})
        .run();
}

INSTANTIATE_TEST_SUITE_P(Writers, WindowFaults, ::testing::ValuesIn(windowWriters()),
                         [](const auto& tested) { return tested.param.command; });

} // namespace tarsil::test
