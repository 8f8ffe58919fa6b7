#pragma once

#include "solver/SolverImport.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarsil {

class EVM;

} // namespace tarsil

namespace tarsil::solver {

/// Names one analysis of a plan: the output that holds it and its index in that.
struct AnalysisIndex
{
    std::size_t output = 0;
    std::size_t run = 0;

    bool operator==(const AnalysisIndex&) const = default;
};

/// An evolution file that is to be written.
struct PlannedFile
{
    AnalysisIndex analysis;
    std::string path;
};

/// What has come of writing.
struct WrittenFiles
{
    std::vector<std::string> paths; ///< those that were written
    std::vector<std::string> failures; ///< a sentence for each of the others
};

/// What is to be imported: solver outputs, which of their analyses, in which units, with which
/// texts, into which folder. It reads and writes files, and asks nobody. Units are never chosen
/// here: without a choice nothing can be written.
class ImportPlan
{
public:
    /// Reads a solver output and chooses all its analyses; one that is in the plan already is
    /// passed over. A file without an analysis is refused: it is no output of the plan, and
    /// `refusals` says why.
    void add(const std::string& path);

    const std::vector<SolverOutput>& outputs() const { return m_outputs; }
    const SolverRun& run(const AnalysisIndex& analysis) const;

    /// A sentence for each file that was refused.
    const std::vector<std::string>& refusals() const { return m_refusals; }

    /// What is wrong in the outputs, each with file and line.
    std::vector<std::string> findings() const;

    bool isChosen(const AnalysisIndex& analysis) const;
    void choose(const AnalysisIndex& analysis, bool isChosen);

    /// Nothing until the user has chosen units.
    const std::optional<UnitChoice>& units() const { return m_units; }
    void setUnits(const std::optional<UnitChoice>& units) { m_units = units; }

    /// The units of a preset for the chosen analyses: its density unit where one of them prints
    /// densities, otherwise the ratio that table headings print.
    UnitChoice unitsOf(const UnitPreset& preset) const;

    const ImportTexts& texts() const { return m_texts; }
    void setTexts(ImportTexts texts) { m_texts = std::move(texts); }

    /// Where the evolutions go; empty: each beside its solver output.
    void setFolder(std::string folder) { m_folder = std::move(folder); }

    /// The files of the chosen analyses; no two have the same path.
    std::vector<PlannedFile> files() const;

    /// What speaks against the chosen units, a sentence each: what the outputs prove otherwise, or
    /// densities that are missing. Analyses with the same doubt share a sentence.
    std::vector<std::string> doubts() const;

    /// The evolution of an analysis as it would be read back from its file. Errors: those of
    /// `evolutionText`; 5 without units.
    std::unique_ptr<EVM> evolution(const AnalysisIndex& analysis) const;

    /// Writes the files, each whole or not at all, over those that are there. One that cannot be
    /// written keeps no other from being written. Error 5 without units.
    WrittenFiles write() const;

private:
    const UnitChoice& chosenUnits() const;
    void addUnitDoubts(const SolverOutput& output, std::vector<std::string>& doubts) const;
    void addDensityDoubts(std::vector<std::string>& doubts) const;

    std::vector<SolverOutput> m_outputs;
    std::vector<std::vector<bool>> m_chosen; ///< by output and run
    std::vector<std::string> m_refusals;
    std::optional<UnitChoice> m_units;
    ImportTexts m_texts;
    std::string m_folder;
};

/// What the first speeds of an evolution are, in KEAS, and what was done to its rows.
std::string firstSpeedsText(const EVM& evolution);

} // namespace tarsil::solver
