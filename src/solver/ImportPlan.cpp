// SPDX-License-Identifier: Apache-2.0
#include "solver/ImportPlan.h"

#include "base/files/AtomicFile.h"
#include "base/files/PathNames.h"
#include "base/files/TextStream.h"
#include "base/numbers/NumberFormat.h"
#include "base/user/RunTimeError.h"
#include "formats/Ev2Format.h"
#include "model/EVM.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace tarsil::solver {

namespace {

constexpr double unitTolerance =
    0.02; ///< relative; smaller than the difference between any two units

std::string sourceName(const SolverOutput& output)
{
    return resolvePath(output.path).name;
}

std::string atLine(const SolverOutput& output, std::size_t line, const std::string& text)
{
    return sourceName(output) + ", line " + std::to_string(line) + ": " + text;
}

bool isSameFile(const std::string& a, const std::string& b)
{
    const auto identity = fileIdentity(a);
    return identity && identity == fileIdentity(b);
}

/// The suffix "; so in 3 other analyses" of a sentence about the first of `count` analyses.
std::string andOthers(std::size_t count)
{
    if (count < 2)
        return {};
    return count == 2 ? "; so in 1 other analysis"
                      : "; so in " + std::to_string(count - 1) + " other analyses";
}

bool isFarFrom(double a, double b)
{
    return std::abs(a - b) > unitTolerance * b;
}

/// The path with "_2", "_3" ... before its extension if another file of the plan has it.
std::string freePath(const std::string& folder, const std::string& name,
                     std::set<std::string>& used)
{
    const std::string stem = name.substr(0, name.rfind('.'));
    std::string path = joinPath(folder, name);
    for (int copy = 2; !used.insert(path).second; ++copy)
        path = joinPath(folder, stem + "_" + std::to_string(copy) + ".ev2");
    return path;
}

} // namespace

bool ImportPlan::add(const std::string& path, const Progress& progress)
{
    const bool isKnown =
        std::any_of(m_outputs.begin(), m_outputs.end(),
                    [&path](const SolverOutput& output) { return isSameFile(output.path, path); });
    if (isKnown)
        return true;
    try {
        SolverOutput output = readSolverOutput(path, progress);
        if (output.file.isStopped)
            return false;
        if (const auto refusal = refusalOf(output)) {
            m_refusals.push_back(*refusal);
            return true;
        }
        m_chosen.emplace_back(output.runs.size(), true);
        m_outputs.push_back(std::move(output));
    } catch (const RunTimeError& error) {
        m_refusals.push_back(error.description());
    }
    return true;
}

const SolverRun& ImportPlan::run(const AnalysisIndex& analysis) const
{
    return m_outputs.at(analysis.output).runs.at(analysis.run);
}

std::vector<std::string> ImportPlan::findings() const
{
    std::vector<std::string> findings;
    for (const SolverOutput& output : m_outputs) {
        for (const LogEntry& entry : output.file.log)
            findings.push_back(atLine(output, entry.line, entry.text));
        for (const SolverRun& run : output.runs) {
            for (const std::string& text : run.log)
                findings.push_back(atLine(output, run.firstLine, text));
        }
    }
    return findings;
}

bool ImportPlan::isChosen(const AnalysisIndex& analysis) const
{
    return m_chosen.at(analysis.output).at(analysis.run);
}

void ImportPlan::choose(const AnalysisIndex& analysis, bool isChosen)
{
    m_chosen.at(analysis.output).at(analysis.run) = isChosen;
}

UnitChoice ImportPlan::unitsOf(const UnitPreset& preset) const
{
    UnitChoice units;
    units.speed = speedUnit(preset.speed).value();
    for (const PlannedFile& file : files()) {
        if (printsDensities(run(file.analysis)))
            units.density = densityUnit(preset.density).value();
    }
    return units;
}

std::vector<PlannedFile> ImportPlan::files() const
{
    std::vector<PlannedFile> files;
    std::set<std::string> used;
    for (std::size_t i = 0; i < m_outputs.size(); ++i) {
        const SolverOutput& output = m_outputs[i];
        const std::string folder = m_folder.empty() ? resolvePath(output.path).folder : m_folder;
        for (std::size_t r = 0; r < output.runs.size(); ++r) {
            if (m_chosen[i][r])
                files.push_back({{i, r}, freePath(folder, output.names[r], used)});
        }
    }
    return files;
}

std::vector<std::string> ImportPlan::doubts() const
{
    std::vector<std::string> doubts;
    if (!m_units)
        return doubts;
    for (std::size_t i = 0; i < m_outputs.size(); ++i) {
        const std::vector<bool>& chosen = m_chosen[i];
        if (std::find(chosen.begin(), chosen.end(), true) != chosen.end())
            addUnitDoubts(m_outputs[i], doubts);
    }
    if (!m_units->isEquivalent)
        addDensityDoubts(doubts);
    return doubts;
}

void ImportPlan::addUnitDoubts(const SolverOutput& output, std::vector<std::string>& doubts) const
{
    const UnitEvidence& evidence = output.evidence;
    if (evidence.speed && isFarFrom(m_units->speed.factor * m_units->vref, evidence.speed->factor))
        doubts.push_back(sourceName(output) + ": its V/Mach is a speed of sound in "
                         + std::string(evidence.speed->name) + ", not in the unit chosen");
    if (evidence.density && !m_units->isEquivalent
        && isFarFrom(m_units->density.factor, evidence.density->factor))
        doubts.push_back(sourceName(output) + ": its densities fit the standard atmosphere in "
                         + std::string(evidence.density->name) + ", not in the unit chosen");
}

void ImportPlan::addDensityDoubts(std::vector<std::string>& doubts) const
{
    std::vector<std::string> without;
    std::vector<std::string> scaled;
    const bool isUnit = isFarFrom(m_units->density.factor, 1);
    for (const PlannedFile& file : files()) {
        const SolverRun& analysis = run(file.analysis);
        const std::string where =
            atLine(m_outputs[file.analysis.output], analysis.firstLine, std::string());
        if (!carriesDensity(analysis))
            without.push_back(where);
        else if (isUnit && !printsDensities(analysis))
            scaled.push_back(where);
    }
    if (!without.empty())
        doubts.push_back(without.front()
                         + "no density is printed: only speeds that are equivalent can be imported"
                         + andOthers(without.size()));
    if (!scaled.empty())
        doubts.push_back(scaled.front() + "the heading prints a density ratio, which the unit "
                         + std::string(m_units->density.name) + " would scale"
                         + andOthers(scaled.size()));
}

const UnitChoice& ImportPlan::chosenUnits() const
{
    if (!m_units)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "solver",
                           "the unit of the printed speeds is not chosen");
    return *m_units;
}

std::unique_ptr<EVM> ImportPlan::evolution(const AnalysisIndex& analysis) const
{
    const SolverOutput& output = m_outputs.at(analysis.output);
    const std::string text = evolutionText(output, analysis.run, chosenUnits(), m_texts);
    auto evolution = std::make_unique<EVM>();
    evolution->FileName = output.names[analysis.run];
    TextStream stream(text, evolution->FileName);
    readEv2(stream, *evolution);
    return evolution;
}

WrittenFiles ImportPlan::write(const Progress& progress) const
{
    WrittenFiles result;
    chosenUnits(); // raises the error before anything is written
    const std::vector<PlannedFile> planned = files();
    for (std::size_t i = 0; i < planned.size() && !result.isStopped; ++i) {
        write(planned[i], result);
        result.isStopped = !goesOn(progress, i + 1, planned.size()) && i + 1 < planned.size();
    }
    return result;
}

void ImportPlan::write(const PlannedFile& file, WrittenFiles& result) const
{
    const SolverOutput& output = m_outputs[file.analysis.output];
    try {
        if (isSameFile(file.path, output.path))
            throw RunTimeError(ErrorNumber::InvalidProcedureCall, "solver",
                               shownPath(file.path) + " is the file to read");
        writeFile(file.path, evolutionText(output, file.analysis.run, chosenUnits(), m_texts));
        result.paths.push_back(file.path);
    } catch (const RunTimeError& error) {
        result.failures.push_back(error.description());
    }
}

std::string firstSpeedsText(const EVM& evolution)
{
    constexpr std::size_t mostSpeeds = 6;
    if (evolution.Modes.empty())
        return {};
    const std::vector<Point>& points = evolution.Modes.front()->Points;
    std::string text = "First speeds (KEAS): ";
    for (std::size_t i = 0; i < std::min(points.size(), mostSpeeds); ++i)
        text += (i == 0 ? "" : ", ") + formatNumber(double {points[i].speed}, "0.00");
    if (points.size() > mostSpeeds)
        text += ", ... " + std::to_string(points.size()) + " speeds up to "
            + formatNumber(double {points.back().speed}, "0.00");
    for (const std::string& entry : evolution.provenance.logEntries())
        text += "\n" + entry;
    return text;
}

} // namespace tarsil::solver
