// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceChecker.h"

#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "batch/WorkspaceInput.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfStoredValue.h"
#include "vgfplot/NamedMode.h"
#include "workspace/FoundFiles.h"
#include "workspace/IniText.h"
#include "workspace/WorkspaceKeys.h"
#include "workspace/WorkspaceReader.h"

#include <algorithm>
#include <initializer_list>

namespace tarsil::batch {

namespace {

namespace keys = workspacekeys;

/// Checks the bytes of a workspace against the record that the reader made of them.
class WorkspaceChecker
{
public:
    WorkspaceChecker(std::string_view bytes, const std::string& path)
        : m_ini(bytes), m_path(path), m_reading(tryToReadWorkspace(bytes, resolvePath(path).name)),
          m_record(m_reading.record)
    { }

    std::vector<Finding> check(BatchRun& run);

private:
    void add(std::string_view section, std::string_view key, const std::string& text);
    void checkReading();
    void checkLengths();
    void checkLengthsOfPlot(const std::string& section, std::size_t series);
    void checkLength(std::string_view section, std::string_view key);
    void checkFurtherValues();
    void checkRichTexts();
    void checkCounts();
    void checkCount(std::string_view section, std::string_view countKey, std::string_view key,
                    std::size_t count);
    void checkFiles();
    void addMissing(const std::string& key);
    void checkSeries(BatchRun& run);

    IniText m_ini;
    const std::string& m_path;
    WorkspaceReading m_reading;
    const WorkspaceRecord& m_record; ///< what could be read
    std::vector<std::string> m_files; ///< the paths at which they were found
    FindingList m_findings;
};

std::vector<Finding> WorkspaceChecker::check(BatchRun& run)
{
    m_files = foundFiles(m_record.files, m_path);
    checkReading();
    checkLengths();
    checkFurtherValues();
    checkRichTexts();
    checkCounts();
    checkFiles();
    checkSeries(run);
    return m_findings.take();
}

void WorkspaceChecker::add(std::string_view section, std::string_view key, const std::string& text)
{
    const auto entry = m_ini.entry(section, key);
    m_findings.add(entry ? entry->line : 1,
                   "[" + std::string(section) + "], " + std::string(key) + ": " + text);
}

/// Reports the error that ends reading, and a missing end of the file. A missing value is
/// attributed to its section, or else to the end of the file.
void WorkspaceChecker::checkReading()
{
    const std::size_t end = std::max<std::size_t>(m_ini.lines(), 1);
    if (m_reading.error) {
        const auto entry = m_ini.entry(m_reading.section, m_reading.key);
        const std::size_t line =
            entry ? entry->line : m_ini.lineOfSection(m_reading.section).value_or(end);
        m_findings.addSummary(line, "reading ends here: " + m_reading.error->description());
    }
    if (!m_ini.lineOfSection(keys::endOfFile))
        m_findings.addSummary(end,
                              "the file was cut: its last line, [" + std::string(keys::endOfFile)
                                  + "], is missing");
}

void WorkspaceChecker::checkLength(std::string_view section, std::string_view key)
{
    const auto entry = m_ini.entry(section, key);
    if (entry && entry->value.size() > mostStoredBytes)
        add(section, key,
            "the value has " + std::to_string(entry->value.size()) + " bytes; the limit is "
                + std::to_string(mostStoredBytes));
}

void WorkspaceChecker::checkLengths()
{
    for (const std::string_view key : {keys::description, keys::dateCreated, keys::dateModified})
        checkLength(keys::general, key);
    for (std::size_t i = 1; i <= m_record.files.size(); ++i)
        checkLength(keys::evolutionFiles, keys::numbered(keys::file, i));
    for (std::size_t j = 1; j <= m_record.plots.size(); ++j)
        checkLengthsOfPlot(keys::plotSection(j), m_record.plots[j - 1].series.size());
}

void WorkspaceChecker::checkLengthsOfPlot(const std::string& section, std::size_t series)
{
    for (const std::string_view key : {keys::caption, keys::header, keys::mechanism, keys::legend})
        checkLength(section, key);
    for (const std::string_view key :
         {keys::headerPosition, keys::mechanismPosition, keys::legendPosition, keys::velAxis,
          keys::freqAxis, keys::gAxis})
        checkLength(section, key);
    for (std::size_t i = 1; i <= series; ++i)
        checkLength(section, keys::numbered(keys::series, i));
}

/// Reports further keys that are ignored or have a field that is cut.
void WorkspaceChecker::checkFurtherValues()
{
    for (const UnusedValue& value : m_reading.unusedValues)
        add(value.section, value.key, "is ignored: " + value.why);
    for (const LongValue& value : m_reading.cutValues) {
        const std::string_view key = value.key;
        const std::string_view name = key.substr(0, key.find('('));
        if (name == keys::referenceSpeed || name == keys::dampingLine || name == keys::edited)
            add(value.section, value.key,
                "a text of it has " + std::to_string(value.bytes) + " bytes; the limit is "
                    + std::to_string(mostStoredBytes));
    }
}

/// Checks rich texts in full length: cutting a long value is a finding of its own.
void WorkspaceChecker::checkRichTexts()
{
    for (std::size_t j = 1; j <= m_record.plots.size(); ++j) {
        const std::string section = keys::plotSection(j);
        for (const std::string_view key : {keys::header, keys::mechanism, keys::legend}) {
            const auto entry = m_ini.entry(section, key);
            if (entry && isCutRtf(rtfFromStoredValue(entry->value)))
                add(section, key, "the text ends before its last brace: it is truncated");
        }
    }
}

/// Reports lists that are longer than their count. (A shorter list of plots or series is an error
/// of the reader, and missing files are reported elsewhere.) The list being read when an error
/// occurs is not checked.
void WorkspaceChecker::checkCounts()
{
    const bool isWhole = !m_reading.error;
    const std::size_t plots = m_record.plots.size();
    if (isWhole || m_reading.section != keys::evolutionFiles)
        checkCount(keys::evolutionFiles, keys::fileCount, keys::file, m_record.files.size());
    const auto line = m_ini.lineOfSection(keys::plotSection(plots + 1));
    if (isWhole && line)
        m_findings.add(*line,
                       "[" + keys::plotSection(plots + 1) + "] is ignored: "
                           + std::string(keys::plotCount) + " is " + std::to_string(plots));
    const std::size_t wholePlots = isWhole || plots == 0 ? plots : plots - 1;
    for (std::size_t j = 1; j <= wholePlots; ++j)
        checkCount(keys::plotSection(j), keys::seriesCount, keys::series,
                   m_record.plots[j - 1].series.size());
}

void WorkspaceChecker::checkCount(std::string_view section, std::string_view countKey,
                                  std::string_view key, std::size_t count)
{
    const std::string next = keys::numbered(key, count + 1);
    if (m_ini.entry(section, next))
        add(section, next, "is ignored: " + std::string(countKey) + " is " + std::to_string(count));
}

/// Reports an entry of the file list that is counted but missing or empty.
void WorkspaceChecker::addMissing(const std::string& key)
{
    if (m_ini.entry(keys::evolutionFiles, key))
        add(keys::evolutionFiles, key, "has no path");
    else
        add(keys::evolutionFiles, keys::fileCount, "counts " + key + ", which is missing");
}

void WorkspaceChecker::checkFiles()
{
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        const std::string key = keys::numbered(keys::file, i + 1);
        const std::string& stored = m_record.files[i];
        if (stored.empty())
            addMissing(key);
        else if (m_files[i] != storedPath(stored, m_path))
            add(keys::evolutionFiles, key, stored + " is not there; it was found at " + m_files[i]);
        else if (!fileExists(m_files[i]))
            add(keys::evolutionFiles, key, stored + " is missing");
    }
}

void WorkspaceChecker::checkSeries(BatchRun& run)
{
    const auto report = [this](std::size_t index, const std::string& why) {
        if (fileExists(m_files[index])) // others are already reported
            add(keys::evolutionFiles, keys::numbered(keys::file, index + 1), why);
    };
    const std::vector<EVM*> evolutions =
        openEvolutions(namedEvolutions(m_record.plots, m_files.size()), m_files, run, report);
    for (std::size_t j = 0; j < m_record.plots.size(); ++j) {
        for (const SeriesFault& fault : namedSeries(m_record.plots[j], evolutions).faults)
            add(keys::plotSection(j + 1), keys::numbered(keys::series, fault.index + 1),
                fault.reason);
    }
}

} // namespace

std::vector<Finding> checkWorkspace(const std::string& path, BatchRun& run)
{
    const FileBytes file(path);
    return WorkspaceChecker(file.bytes(), path).check(run);
}

} // namespace tarsil::batch
