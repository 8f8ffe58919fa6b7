// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/RunTimeError.h"
#include "support/Errors.h"
#include "workspace/WorkspaceReader.h"
#include "workspace/WorkspaceRecord.h"

#include <optional>
#include <string>
#include <string_view>

// The notation for workspaces in tests: a line end means CR LF, and a bar means NUL.

namespace tarsil::test {

/// The bytes of a workspace in this notation.
inline std::string drawn(std::string_view drawing)
{
    std::string bytes;
    for (const char c : drawing) {
        if (c == '\n')
            bytes += '\r';
        bytes += c == '|' ? '\0' : c;
    }
    return bytes;
}

/// The text with one part replaced; throws if the part is missing.
inline std::string with(std::string text, std::string_view part, std::string_view replacement)
{
    return text.replace(text.find(part), part.size(), replacement);
}

inline WorkspaceRecord readBytes(std::string_view bytes)
{
    WorkspaceRecord record;
    readWorkspace(bytes, "test.tsw", record);
    return record;
}

/// Reads a workspace in this notation.
inline WorkspaceRecord readDrawn(std::string_view drawing)
{
    return readBytes(drawn(drawing));
}

/// The error of a reading, and the record read before it.
struct FailedReading
{
    std::optional<RunTimeError> error;
    WorkspaceRecord record;
};

inline FailedReading failedReading(std::string_view bytes)
{
    FailedReading reading;
    reading.error = errorOf([&] { readWorkspace(bytes, "test.tsw", reading.record); });
    return reading;
}

/// A workspace of two files and a plot with two curves, as the program writes it.
inline constexpr std::string_view wholeWorkspace = R"([GENERAL INFORMATION]
Username=rivera
tsw_Version=1.1.0
Analysis_Description=Goland wing, clean
Date_Created=07-Mar-2024 14:05:31
Date_Modified=08-Mar-2024 09:00:00
[MODAL EVOLUTION FILES]
NoOfFiles=2
File(1)=C:\flutter\clean.evm
File(2)=C:\flutter\store.ev2
[PLOTS]
NoOfPlots=1
[PLOT1]
Caption=Plot1
Header={\rtf1 Wing\par|}|
HeadPos=1500|120
Mechanism={\rtf1 }
MechPos=1500.5|-30
Legend={\rtf1 1\par|2\par|}|
LegPos=9000|600
velAxis=V(keas)|0|700|7
freqAxis=f(Hz)|0|50|5
gAxis=g|0|-0.25|5
NoOfSeries=2
Serie(1)=1|3||8|5|1|clean|255|0
Serie(2)=2|1|s|10|0|2|store, half full|16711680|32768
[END OF FILE]
)";

/// The record of that workspace.
inline WorkspaceRecord wholeRecord()
{
    WorkspaceRecord record {"Goland wing, clean",
                            "07-Mar-2024 14:05:31",
                            "08-Mar-2024 09:00:00",
                            {"C:\\flutter\\clean.evm", "C:\\flutter\\store.ev2"},
                            {}};
    PlotRecord& plot = record.plots.emplace_back();
    plot.caption = "Plot1";
    plot.header = {"{\\rtf1 Wing\\par\r\n}\r\n", BoxPosition {1500, 120}};
    plot.mechanism = {"{\\rtf1 }", BoxPosition {1500.5, -30}};
    plot.legend = {"{\\rtf1 1\\par\r\n2\\par\r\n}\r\n", BoxPosition {9000, 600}};
    plot.axes.speed = {"V(keas)", 0, 700, 7};
    plot.axes.frequency = {"f(Hz)", 0, 50, 5};
    plot.axes.damping = {"g", 0, -0.25F, 5};
    plot.series = {{1, 3, "", 8, 5, 1, "clean", 255, 0},
                   {2, 1, "s", 10, 0, 2, "store, half full", 16711680, 32768}};
    return record;
}

} // namespace tarsil::test
