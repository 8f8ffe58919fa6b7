// SPDX-License-Identifier: Apache-2.0
#include "report/PlotChapter.h"

#include "base/numbers/Numbers.h"
#include "model/AeMode.h"
#include "model/EVM.h"
#include "report/FactTable.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/NamedMode.h"
#include "vgfplot/PlotRecords.h"
#include "workspace/WorkspaceRecord.h"

#include <QSize>
#include <QString>

#include <memory>
#include <string>
#include <utility>

namespace tarsil {

namespace {

/// Pixels at 96 per inch; nearly as wide as a page, so that letters keep their size.
constexpr QSize pixelsInReport(800, 640);

std::shared_ptr<const EvmPlot> plotOf(const PlotRecord& record, const std::vector<EVM*>& evolutions)
{
    auto plot = std::make_shared<EvmPlot>();
    plot->properties().setCaption(QString::fromStdString(record.caption));
    applyRecord(record, evolutions, *plot);
    plot->resize(pixelsInReport);
    return plot;
}

std::string axisText(const AxisValues& axis)
{
    return axis.title + " from " + shortestText(axis.min) + " to " + shortestText(axis.max) + ", "
        + std::to_string(axis.ticks) + (axis.ticks == 1 ? " interval" : " intervals");
}

void addReferences(const std::vector<ReferenceRecord>& references, std::string_view label,
                   std::string_view unit, FactTable& facts)
{
    for (const ReferenceRecord& reference : references)
        facts.add(label,
                  shortestText(reference.value) + std::string(unit)
                      + (reference.caption.empty() ? "" : "  " + reference.caption));
}

ReportTable settingsOf(const PlotRecord& record, const EvmPlot& plot)
{
    FactTable facts;
    facts.add("Speed axis (KEAS)", axisText(record.axes.speed));
    facts.add("Frequency axis (Hz)", axisText(record.axes.frequency));
    facts.add("Damping axis (g)", axisText(record.axes.damping));
    addReferences(record.referenceSpeeds, "Reference speed", " KEAS", facts);
    facts.add("Note", plot.references().shiftNote().toStdString(), CellStyle::Warning);
    addReferences(record.dampingLines, "Damping line", "", facts);
    if (record.breaksAtJumps)
        facts.add("Curves", "break where a root turns from static to oscillatory");
    return facts.take();
}

/// A curve that the figure does not show says so.
std::string legendOf(const SeriesRecord& series)
{
    return series.isHidden ? "(hidden) " + series.legendText : series.legendText;
}

/// A row for each curve, hidden ones included.
ReportTable curvesOf(const PlotRecord& record, const std::vector<EVM*>& evolutions)
{
    Sheet sheet;
    std::size_t column = 0;
    for (const char* heading : {"Curve", "Tag", "Modal Evolution", "Position", "Mode", "Legend"})
        sheet.setText(1, ++column, heading);
    std::size_t row = 1;
    for (const auto& [series, mode] : namedSeries(record, evolutions).present) {
        ++row;
        sheet.setNumber(row, 1, static_cast<double>(row - 1));
        sheet.setText(row, 2, series->markerTag);
        sheet.setText(row, 3, mode->Parent->FileName);
        sheet.setNumber(row, 4, series->mode);
        sheet.setNumber(row, 5, mode->Id);
        sheet.setText(row, 6, legendOf(*series));
    }
    return {std::move(sheet)};
}

} // namespace

ReportSection plotSection(const ReportInput& input, std::size_t index)
{
    const PlotRecord& record = input.record.plots.at(index);
    const auto plot = plotOf(record, input.evolutions);
    const std::string number = std::to_string(index + 1);
    ReportSection section;
    section.blocks.emplace_back(ReportHeading {1, "Plot " + number + ": " + record.caption});
    section.blocks.emplace_back(
        ReportPicture {plot,
                       "Figure " + number + ": " + record.caption
                           + ", frequency above and damping below one speed axis"});
    section.blocks.emplace_back(settingsOf(record, *plot));
    section.blocks.emplace_back(curvesOf(record, input.evolutions));
    return section;
}

} // namespace tarsil
