// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotRecords.h"

#include "model/EVM.h"
#include "plot/Series.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/NamedMode.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace tarsil {

namespace {

TextRecord recordOf(const emfRichTextBox& box)
{
    return {box.TextRTF(), BoxPosition {box.unitsLeft(), box.unitsTop()}};
}

/// The position of an element in a list, counted from 1; 0 when it is not there.
template <typename List, typename Thing>
std::int16_t numberIn(const List& list, const Thing* thing)
{
    const auto found =
        std::find_if(list.begin(), list.end(), [thing](const auto& one) { return &*one == thing; });
    return found == list.end() ? std::int16_t {0}
                               : static_cast<std::int16_t>(found - list.begin() + 1);
}

SeriesRecord recordOf(const PlotRow& row, const std::vector<const EVM*>& evolutions)
{
    SeriesRecord record;
    const Series& series = row.series;
    if (series.Mode == nullptr || series.Mode->Parent == nullptr)
        return record;
    const EVM& evolution = *series.Mode->Parent;
    record.evolution = numberIn(evolutions, &evolution);
    record.mode = numberIn(evolution.Modes, series.Mode);
    record.markerTag = series.MarkerTag.toStdString();
    record.markerSize = series.MarkerSize;
    record.markerSpacing = series.MarkerSpacing;
    record.markerStyle = series.MarkerStyle;
    record.legendText = series.LegendText.toStdString();
    record.colorIndex = series.ColorIndex;
    record.markerForegroundColor = series.MarkerForegroundColor;
    record.lineStyle = series.LineStyle;
    record.lineWidth = series.LineWidth;
    record.factor = std::max(series.IthMpf, 1); // 0: never set
    record.isHidden = row.isHidden;
    return record;
}

std::vector<ReferenceRecord> referenceSpeedsOf(const EvmPlot& plot)
{
    std::vector<ReferenceRecord> references;
    for (const RefThick& mark : plot.references().referenceSpeeds())
        references.push_back({mark.Speed, mark.Caption.toStdString()});
    return references;
}

std::vector<ReferenceRecord> dampingLinesOf(const EvmPlot& plot)
{
    std::vector<ReferenceRecord> references;
    for (const RefLine& line : plot.references().dampingLines())
        references.push_back({line.Y1, line.Caption.toStdString()});
    return references;
}

void applyText(const TextRecord& record, TextBox which, EvmPlot& plot)
{
    if (record.rtf) {
        emfRichTextBox box;
        box.setFont(plot.parts().box(which).Font());
        box.setTextRTF(*record.rtf);
        plot.texts().setContent(which, box.content());
    }
    if (!record.position)
        return;
    if (which == TextBox::Header)
        plot.texts().setHeaderTop(record.position->top);
    else
        plot.texts().move(which, record.position->left, record.position->top);
}

Series seriesOf(const SeriesRecord& record, AeMode& mode)
{
    Series series;
    series.Mode = &mode;
    series.MarkerTag = QString::fromStdString(record.markerTag);
    series.MarkerSize = record.markerSize;
    series.MarkerSpacing = record.markerSpacing;
    series.MarkerStyle = record.markerStyle;
    series.LegendText = QString::fromStdString(record.legendText);
    series.ColorIndex = record.colorIndex;
    series.MarkerForegroundColor = record.markerForegroundColor;
    series.LineStyle = record.lineStyle;
    series.LineWidth = record.lineWidth;
    series.IthMpf = record.factor;
    return series;
}

/// Adds the series whose modes exist, all at once. Returns the faults of the others.
std::vector<std::string> applySeries(const PlotRecord& record, const std::vector<EVM*>& evolutions,
                                     EvmPlot& plot)
{
    const NamedSeries named = namedSeries(record, evolutions);
    const std::size_t first = plot.rows().count();
    std::vector<Series> series;
    PlotRows::Indices hidden;
    for (const auto& [one, mode] : named.present) {
        if (one->isHidden)
            hidden.push_back(first + series.size());
        series.push_back(seriesOf(*one, *mode));
    }
    plot.rows().add(std::move(series));
    plot.rows().setHidden(hidden, true);
    return named.faultTexts(record);
}

/// Call after the scale is set, which determines the ends of the damping lines.
void applyReferences(const PlotRecord& record, EvmPlot& plot)
{
    std::vector<RefThick> speeds;
    for (const ReferenceRecord& mark : record.referenceSpeeds)
        speeds.push_back({mark.value, QString::fromStdString(mark.caption)});
    plot.references().setReferenceSpeeds(std::move(speeds));
    std::vector<PlotReferences::DampLine> lines;
    for (const ReferenceRecord& mark : record.dampingLines)
        lines.push_back({mark.value, QString::fromStdString(mark.caption)});
    plot.references().setDampingLines(lines);
}

} // namespace

PlotRecord recordOf(const EvmPlot& plot, const std::vector<const EVM*>& evolutions)
{
    PlotRecord record;
    record.caption = plot.properties().Caption().toStdString();
    record.header = recordOf(plot.parts().box(TextBox::Header));
    record.legend = recordOf(plot.parts().box(TextBox::Legend));
    record.mechanism = recordOf(plot.parts().box(TextBox::Mechanism));
    record.axes = plot.axes();
    for (const PlotRow& row : plot.rows().all()) {
        const SeriesRecord one = recordOf(row, evolutions);
        if (one.evolution > 0 && one.mode > 0)
            record.series.push_back(one);
    }
    record.referenceSpeeds = referenceSpeedsOf(plot);
    record.dampingLines = dampingLinesOf(plot);
    record.breaksAtJumps = plot.properties().breaksAtJumps();
    return record;
}

std::vector<std::string> applyRecord(const PlotRecord& record, const std::vector<EVM*>& evolutions,
                                     EvmPlot& plot)
{
    Q_EMIT plot.contentsReplaced();
    applyText(record.header, TextBox::Header, plot);
    applyText(record.mechanism, TextBox::Mechanism, plot);
    applyText(record.legend, TextBox::Legend, plot);
    plot.setAxes(record.axes);
    plot.properties().setBreaksAtJumps(record.breaksAtJumps);
    applyReferences(record, plot);
    return applySeries(record, evolutions, plot);
}

} // namespace tarsil
