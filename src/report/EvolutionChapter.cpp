// SPDX-License-Identifier: Apache-2.0
#include "report/EvolutionChapter.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "base/text/ShortList.h"
#include "base/user/RunTimeError.h"
#include "formats/EvolutionChecker.h"
#include "model/EVM.h"
#include "report/FactTable.h"

#include <algorithm>

namespace tarsil {

namespace {

/// A number of things: "1 point", "2 points".
std::string counted(std::size_t count, const std::string& thing)
{
    return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

void addFile(const EVM& evolution, FactTable& facts)
{
    const ShownFacts file = shownFactsOf(evolution.path());
    facts.add("File", wholePath(evolution.path()));
    facts.add("Size", file.size);
    facts.add("Modified", file.modified);
    facts.add("SHA-256", file.sha256);
}

void addHeader(const EVM& evolution, FactTable& facts)
{
    const Param& param = evolution.Param;
    facts.add("Airplane", param.Airplane);
    facts.add("Mass configuration", param.Mass);
    facts.add("Mach number", param.Mach > 0 ? shortestText(param.Mach) : std::string());
    facts.add("Analysis", param.AnalysisType);
    facts.add("Method", evolution.flutterMethod);
    facts.add("Script", param.Script);
    facts.add("Date of the run", evolution.runningDate);
    facts.add("Solver", evolution.solverVersion);
    facts.add("Written by", evolution.programVersion);
    facts.add("Version of the format", evolution.ev2Version);
    for (const KeyedTexts::Entry& legend : param.legends)
        facts.add("Legend", legend.text);
    if (param.editable() != evolution.paramOfFile())
        facts.add("Edited",
                  "airplane, mass configuration and Mach number are those of the workspace, not of "
                  "the file",
                  CellStyle::Warning);
}

void addModes(const EVM& evolution, FactTable& facts)
{
    std::size_t points = 0;
    for (const auto& mode : evolution.Modes)
        points = std::max(points, mode->Points.size());
    facts.add("Contents",
              counted(evolution.Modes.size(), "mode") + " of up to " + counted(points, "point"));
}

void addOrigin(const EVM& evolution, FactTable& facts)
{
    const Provenance& provenance = evolution.provenance;
    if (provenance.isImported()) {
        const ShownFacts source = shownFactsOf(provenance.source);
        facts.add("Imported from", provenance.source + ", lines " + provenance.sourceLines);
        facts.add("SHA-256 of that file", source.sha256);
        facts.add("Printed units",
                  "speeds in " + provenance.speedUnit + " x " + provenance.vref + ", density in "
                      + provenance.density);
        for (const std::string& entry : provenance.logEntries())
            facts.add("Import log", entry);
    }
    for (const KeyedTexts::Entry& modification : evolution.Param.modifications)
        facts.add("Modification", modification.text);
}

void addWarnings(const EVM& evolution, FactTable& facts)
{
    try {
        std::vector<std::string> lines;
        for (const Finding& finding : checkEvolution(evolution.path()))
            lines.push_back("line " + std::to_string(finding.line) + ": " + finding.text);
        for (std::size_t i = 0; i < std::min(lines.size(), mostFileLines); ++i)
            facts.add("Warning", lines[i], CellStyle::Warning);
        if (lines.size() > mostFileLines)
            facts.add("Warning", "and " + std::to_string(lines.size() - mostFileLines) + " more",
                      CellStyle::Warning);
        if (lines.empty())
            facts.add("Warnings", "none");
    } catch (const RunTimeError& error) {
        facts.add("Warning", error.description(), CellStyle::Warning);
    }
}

ReportTable factsAbout(const EVM& evolution, bool isReference)
{
    FactTable facts;
    addFile(evolution, facts);
    addHeader(evolution, facts);
    addModes(evolution, facts);
    if (isReference)
        facts.add("Reference", "the reference evolution of the workspace");
    addOrigin(evolution, facts);
    addWarnings(evolution, facts);
    return facts.take();
}

void addEvolution(const ReportInput& input, std::size_t index, ReportSection& section)
{
    const std::string number = std::to_string(index + 1);
    const EVM* const evolution = input.evolutions[index];
    if (evolution == nullptr) {
        const std::string& path = input.record.files.at(index);
        section.blocks.emplace_back(ReportHeading {2, number + "  " + resolvePath(path).name});
        section.blocks.emplace_back(ReportParagraph {
            shownPath(path) + " could not be opened; its curves are left out.", CellStyle::Bad});
        return;
    }
    const bool isReference = input.record.reference == static_cast<int>(index + 1);
    section.blocks.emplace_back(ReportHeading {2, number + "  " + evolution->FileName});
    section.blocks.emplace_back(factsAbout(*evolution, isReference));
}

} // namespace

ReportSection evolutionChapter(const ReportInput& input, StepCounter& steps)
{
    ReportSection section;
    section.blocks.emplace_back(ReportHeading {1, "Modal evolutions"});
    for (std::size_t i = 0; i < input.evolutions.size() && !steps.isStopped(); ++i) {
        addEvolution(input, i, section);
        steps.next();
    }
    return section;
}

} // namespace tarsil
