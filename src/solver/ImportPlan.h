// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/Progress.h"
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

/// An analysis of a plan: the index of its output and its index in that output.
struct AnalysisIndex
{
    std::size_t output = 0;
    std::size_t run = 0;

    bool operator==(const AnalysisIndex&) const = default;
};

/// An evolution file to write.
struct PlannedFile
{
    AnalysisIndex analysis;
    std::string path;
};

/// The result of writing.
struct WrittenFiles
{
    std::vector<std::string> paths; ///< the files written
    std::vector<std::string> failures; ///< one sentence for each file that was not
    bool isStopped = false; ///< whether files were left out by a stop
};

/// A planned import: solver outputs, the selected analyses, their units, texts and folder. Reads
/// and writes files but asks no questions. Never chooses units by itself: without units nothing can
/// be written.
class ImportPlan
{
public:
    /// Reads a solver output and selects all its analyses. Ignores a file that is in the plan
    /// already. A file without an analysis is not added, but listed in `refusals`. Reports progress
    /// within a large file. Returns false after a stop, when nothing of the file is in the plan.
    bool add(const std::string& path, const Progress& progress = {});

    const std::vector<SolverOutput>& outputs() const { return m_outputs; }
    const SolverRun& run(const AnalysisIndex& analysis) const;

    /// One sentence for each refused file.
    const std::vector<std::string>& refusals() const { return m_refusals; }

    /// The findings in the outputs, with file and line.
    std::vector<std::string> findings() const;

    bool isChosen(const AnalysisIndex& analysis) const;
    void choose(const AnalysisIndex& analysis, bool isChosen);

    /// Empty until the user has chosen units.
    const std::optional<UnitChoice>& units() const { return m_units; }
    void setUnits(const std::optional<UnitChoice>& units) { m_units = units; }

    /// The units of a preset for the selected analyses: with its density unit if one of them prints
    /// densities, otherwise with the ratio of table headings.
    UnitChoice unitsOf(const UnitPreset& preset) const;

    const ImportTexts& texts() const { return m_texts; }
    void setTexts(ImportTexts texts) { m_texts = std::move(texts); }

    /// The folder of the evolutions; empty: each beside its solver output.
    void setFolder(std::string folder) { m_folder = std::move(folder); }

    /// The files of the selected analyses; their paths are unique.
    std::vector<PlannedFile> files() const;

    /// Doubts about the chosen units, one sentence each: contradicting evidence in the outputs, or
    /// missing densities. Analyses with the same doubt share a sentence.
    std::vector<std::string> doubts() const;

    /// The evolution of an analysis as it would be read from its file. Errors: those of
    /// `evolutionText`; 5 without units.
    std::unique_ptr<EVM> evolution(const AnalysisIndex& analysis) const;

    /// Writes the files, each whole or not at all, and replaces existing ones. A failure does not
    /// prevent the others from being written. Reports progress after each file; the files written
    /// before a stop stay. Error 5 without units.
    WrittenFiles write(const Progress& progress = {}) const;

private:
    const UnitChoice& chosenUnits() const;
    void write(const PlannedFile& file, WrittenFiles& result) const;
    void addUnitDoubts(const SolverOutput& output, std::vector<std::string>& doubts) const;
    void addDensityDoubts(std::vector<std::string>& doubts) const;

    std::vector<SolverOutput> m_outputs;
    std::vector<std::vector<bool>> m_chosen; ///< by output and run
    std::vector<std::string> m_refusals;
    std::optional<UnitChoice> m_units;
    ImportTexts m_texts;
    std::string m_folder;
};

/// The first speeds of an evolution in KEAS, and the changes made to its rows.
std::string firstSpeedsText(const EVM& evolution);

} // namespace tarsil::solver
