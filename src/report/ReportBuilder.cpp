// SPDX-License-Identifier: Apache-2.0
#include "report/ReportBuilder.h"

#include "analysis/Requirement.h"
#include "analysis/StabilityTexts.h"
#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"
#include "report/EvolutionChapter.h"
#include "report/FactTable.h"
#include "report/PlotChapter.h"
#include "vgfplot/NamedMode.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tarsil {

namespace {

constexpr std::size_t flutterKeys = 5; ///< file, case, mass, Mach number, mode

/// The lines of a text; each line break is CR LF or LF.
std::vector<std::string> linesOf(const std::string& text)
{
    std::vector<std::string> lines(1);
    for (const char c : text) {
        if (c == '\n')
            lines.emplace_back();
        else if (c != '\r')
            lines.back() += c;
    }
    return lines;
}

void addVerdict(const std::string& file, const std::string& verdict, CellStyle style, Sheet& sheet)
{
    const std::size_t row = sheet.rowCount() + 1;
    sheet.setText(row, 1, file);
    sheet.setText(row, 2, verdict);
    sheet.setRowStyle(row, style);
}

/// The verdict of each evolution at the reference damping, if that is one of the judged levels.
ReportTable summaryOf(const ReportInput& input)
{
    Sheet sheet;
    sheet.setText(1, 1, "Modal Evolution");
    sheet.setText(1, 2,
                  "Lowest start of instability at g = " + shortestText(input.referenceDamping));
    for (const EvolutionStability& stability : input.stability.evolutions) {
        const std::string& file = stability.evolution->FileName;
        if (!stability.obstacle.empty())
            addVerdict(file, "cannot be tracked: " + stability.obstacle, CellStyle::Warning, sheet);
        for (const StabilityVerdict& verdict : stability.verdicts) {
            if (verdict.level == static_cast<float>(input.referenceDamping))
                addVerdict(file, verdictText(verdict, stability.lastSpeed),
                           verdict.unstableFromFirst.empty() ? CellStyle::Plain : CellStyle::Bad,
                           sheet);
        }
    }
    return {std::move(sheet)};
}

ReportSection titlePage(const ReportInput& input)
{
    ReportSection section;
    section.blocks.emplace_back(ReportHeading {0, input.name});
    for (const std::string& line : linesOf(input.record.description))
        section.blocks.emplace_back(ReportParagraph {line});
    FactTable facts;
    facts.add("Workspace", input.path.empty() ? "not saved" : wholePath(input.path));
    if (input.isChanged)
        facts.add("Changes", "the workspace has changes that are not in its file",
                  CellStyle::Warning);
    facts.add("Saved by", input.userName);
    facts.add("Created", input.record.dateCreated);
    facts.add("Modified", input.record.dateModified);
    facts.add("Modal evolutions", std::to_string(input.evolutions.size()));
    facts.add("Plots", std::to_string(input.record.plots.size()));
    facts.add("Aircraft file",
              input.aircraftPath.empty() ? std::string() : wholePath(input.aircraftPath));
    facts.add("Program", input.stability.program);
    section.blocks.emplace_back(facts.take());
    section.blocks.emplace_back(ReportHeading {2, "Flutter speeds"});
    section.blocks.emplace_back(summaryOf(input));
    return section;
}

ReportSection flutterChapter(const ReportInput& input)
{
    ReportSection section;
    section.isLandscape = true;
    section.blocks.emplace_back(ReportHeading {1, "Flutter table"});
    section.blocks.emplace_back(ReportParagraph {
        "Every crossing of the reference damping g = " + shortestText(input.referenceDamping)
        + ", and the largest damping up to " + shortestText(input.speedLimit)
        + " KEAS. Speeds are in KEAS, frequencies in Hz, altitudes in ft."});
    section.blocks.emplace_back(ReportTable {input.flutterTable, true, flutterKeys});
    return section;
}

ReportSection stabilityChapter(const StabilityReport& report, StepCounter& steps)
{
    Sheet sheet(stabilitySheetTitle);
    writeStability(report, sheet,
                   [&steps](std::size_t /*done*/, std::size_t /*total*/) { return steps.next(); });
    ReportSection section;
    section.isLandscape = true;
    section.blocks.emplace_back(ReportHeading {1, "Stability"});
    section.blocks.emplace_back(ReportTable {std::move(sheet)});
    return section;
}

bool hasMargin(const EvolutionStability& stability)
{
    return stability.margin.has_value();
}

ReportSection requirementChapter(const StabilityReport& report)
{
    Sheet sheet;
    sheet.setText(1, 1, "Modal Evolution");
    sheet.setText(1, 2, "Requirement");
    for (const EvolutionStability& stability : report.evolutions) {
        if (!hasMargin(stability))
            continue;
        const std::size_t row = sheet.rowCount() + 1;
        sheet.setText(row, 1, stability.evolution->FileName);
        sheet.setText(row, 2, marginText(*stability.margin));
        sheet.setRowStyle(row, stability.margin->passes ? CellStyle::Good : CellStyle::Bad);
    }
    ReportSection section;
    section.blocks.emplace_back(ReportHeading {1, "Requirement"});
    section.blocks.emplace_back(ReportTable {std::move(sheet)});
    return section;
}

void addSource(std::string_view kind, const std::string& path, Sheet& sheet)
{
    const ShownFacts facts = shownFactsOf(path);
    const std::size_t row = sheet.rowCount() + 1;
    sheet.setText(row, 1, kind);
    sheet.setText(row, 2, wholePath(path));
    sheet.setText(row, 3, facts.size);
    sheet.setText(row, 4, facts.modified);
    sheet.setText(row, 5, facts.sha256);
}

/// The files that the document is made of, each once.
ReportSection sourceChapter(const ReportInput& input, StepCounter& steps)
{
    Sheet sheet;
    std::size_t column = 0;
    for (const char* heading : {"Source", "Path", "Size", "Modified", "SHA-256"})
        sheet.setText(1, ++column, heading);
    if (!input.path.empty())
        addSource("workspace", input.path, sheet);
    if (!input.aircraftPath.empty())
        addSource("aircraft file", input.aircraftPath, sheet);
    std::vector<std::string> outputs;
    for (const EVM* evolution : presentEvolutions(input.evolutions)) {
        addSource("modal evolution", evolution->path(), sheet);
        const std::string& output = evolution->provenance.source;
        if (!output.empty() && std::find(outputs.begin(), outputs.end(), output) == outputs.end())
            outputs.push_back(output);
        if (!steps.next())
            break;
    }
    for (const std::string& output : outputs)
        addSource("solver output", output, sheet);
    ReportSection section;
    section.isLandscape = true;
    section.blocks.emplace_back(ReportHeading {1, "Source files"});
    section.blocks.emplace_back(ReportTable {std::move(sheet)});
    return section;
}

} // namespace

std::vector<ReportRow> reportRows(const std::vector<PlotRecord>& plots,
                                  const std::vector<EVM*>& evolutions)
{
    std::vector<ReportRow> rows;
    for (const PlotRecord& plot : plots) {
        for (const auto& [series, mode] : namedSeries(plot, evolutions).present)
            rows.push_back({mode, series->legendText});
    }
    return rows;
}

std::vector<const EVM*> presentEvolutions(const std::vector<EVM*>& evolutions)
{
    std::vector<const EVM*> open(evolutions.begin(), evolutions.end());
    std::erase(open, nullptr);
    return open;
}

std::optional<ReportContent> reportContent(const ReportInput& input, const Progress& progress)
{
    const std::size_t open = presentEvolutions(input.evolutions).size();
    StepCounter steps(progress, input.evolutions.size() + input.record.plots.size() + 2 * open + 1);
    ReportContent content;
    content.title = "Flutter report";
    content.workspace = input.name;
    content.program = input.stability.program;
    content.date = input.record.dateModified;
    std::vector<ReportSection>& sections = content.sections;
    sections.push_back(titlePage(input));
    sections.push_back(evolutionChapter(input, steps));
    for (std::size_t i = 0; i < input.record.plots.size() && !steps.isStopped(); ++i) {
        sections.push_back(plotSection(input, i));
        steps.next();
    }
    if (steps.isStopped())
        return std::nullopt;
    sections.push_back(flutterChapter(input));
    sections.push_back(stabilityChapter(input.stability, steps));
    const std::vector<EvolutionStability>& judged = input.stability.evolutions;
    if (std::any_of(judged.begin(), judged.end(), hasMargin))
        sections.push_back(requirementChapter(input.stability));
    if (!steps.isStopped())
        sections.push_back(sourceChapter(input, steps));
    return steps.isStopped() ? std::nullopt : std::optional(std::move(content));
}

} // namespace tarsil
