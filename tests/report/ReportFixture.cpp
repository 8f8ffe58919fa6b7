// SPDX-License-Identifier: Apache-2.0
#include "report/ReportFixture.h"

#include "analysis/FlutterReport.h"
#include "formats/EvolutionFile.h"
#include "report/ReportText.h"

namespace tarsil::test {

namespace {

SeriesRecord seriesOfMode(std::int16_t mode, const std::string& legend)
{
    SeriesRecord series;
    series.evolution = 1;
    series.mode = mode;
    series.markerTag = "T" + std::to_string(mode);
    series.legendText = legend;
    return series;
}

PlotRecord wing()
{
    PlotRecord plot;
    plot.caption = "Clean <wing>";
    plot.axes.setBounds({0, 450, 0, 20, 0, -0.25F});
    plot.series = {seriesOfMode(1, "bending & more"), seriesOfMode(2, "torsion")};
    plot.referenceSpeeds = {{210, "VD"}};
    plot.dampingLines = {{-0.03F, "limit"}};
    return plot;
}

void addCellTexts(const Sheet& table, std::vector<std::string>& texts)
{
    for (std::size_t row = 1; row <= table.rowCount(); ++row) {
        for (std::size_t column = 1; column <= table.columnCount(); ++column) {
            const QString text = cellText(table.cell(row, column));
            if (!text.isEmpty())
                texts.push_back(text.toStdString());
        }
    }
}

} // namespace

ReportFixture::ReportFixture()
{
    for (const char* name : {"goland_clean_m040.ev2", "goland_tipstore_m040.ev2"}) {
        evolutions.push_back(openEvolution(sample(name)));
        input.evolutions.push_back(evolutions.back().get());
        input.record.files.push_back(evolutions.back()->path());
    }
    evolutions[1]->Param.Mass = "edited";
    input.path = folder.write("wing.tsw", "a workspace");
    input.name = "wing";
    input.userName = "rivera";
    input.record.description = "First line\r\nSecond line";
    input.record.dateCreated = "06-Mar-2026 09:00:00";
    input.record.dateModified = "07-Mar-2026 15:20:00";
    input.record.reference = 1;
    input.record.plots = {wing()};
    input.speedLimit = 400;
    FlutterReport(0, 400, {})
        .write(reportRows(input.record.plots, input.evolutions), input.flutterTable);
    input.stability = {{}, reportSettings(0), "Tarsil 4.0.0"};
    for (const EVM* evolution : input.evolutions)
        input.stability.evolutions.push_back(
            judged({evolution, 0, std::nullopt}, input.stability.settings));
}

std::vector<const Sheet*> tablesOf(const ReportContent& content)
{
    std::vector<const Sheet*> tables;
    for (const ReportSection& section : content.sections) {
        for (const ReportBlock& block : section.blocks) {
            if (const auto* const table = std::get_if<ReportTable>(&block))
                tables.push_back(&table->cells);
        }
    }
    return tables;
}

std::vector<std::string> textsOf(const ReportContent& content)
{
    std::vector<std::string> texts;
    for (const ReportSection& section : content.sections) {
        for (const ReportBlock& block : section.blocks) {
            if (const auto* const heading = std::get_if<ReportHeading>(&block))
                texts.push_back(heading->text);
            if (const auto* const paragraph = std::get_if<ReportParagraph>(&block))
                texts.push_back(paragraph->text);
            if (const auto* const picture = std::get_if<ReportPicture>(&block))
                texts.push_back(picture->caption);
        }
    }
    for (const Sheet* table : tablesOf(content))
        addCellTexts(*table, texts);
    return texts;
}

} // namespace tarsil::test
