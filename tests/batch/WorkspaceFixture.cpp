// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceFixture.h"

#include "workspace/WorkspaceWriter.h"

namespace tarsil::test {

namespace {

constexpr std::int32_t blue = 255 << 16;

PlotRecord plot(const std::string& caption, const std::vector<SeriesRecord>& series)
{
    PlotRecord record;
    record.caption = caption;
    record.header.rtf = rtfOf("header of " + caption);
    record.axes.speed = {"V(keas)", 0, 450, 9};
    record.axes.frequency = {"f(Hz)", 0, 20, 4};
    record.axes.damping = {"g", 0, -2, 4};
    record.series = series;
    return record;
}

} // namespace

std::string rtfOf(const std::string& text)
{
    return "{\\rtf1 " + text + "\\par\r\n}\r\n";
}

WorkspaceFixture::WorkspaceFixture() : wing(writeEv2()), old(writeEvm()) { }

WorkspaceRecord WorkspaceFixture::record()
{
    WorkspaceRecord record;
    record.description = "a case";
    record.dateCreated = "07-Mar-2024 14:05:31";
    record.dateModified = "08-Mar-2024 09:00:00";
    record.files = {"C:\\flutter\\wing.ev2", "C:\\flutter\\old.evm"};
    record.plots = {
        plot("Wing",
             {{1, 2, "t", 8, 1, 2, "torsion", blue, blue}, {2, 1, "o", 8, 1, 2, "old", 255, 255}}),
        plot("Store", {{1, 1, "b", 8, 1, 2, "bending", 0, 0}})};
    return record;
}

std::string WorkspaceFixture::write(const WorkspaceRecord& record, std::string_view name) const
{
    return folder().write(name, writeWorkspace(record, "rivera").bytes);
}

} // namespace tarsil::test
