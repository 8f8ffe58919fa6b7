// SPDX-License-Identifier: Apache-2.0
#include "batch/WorkspaceInput.h"

#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "document/WorkspaceSource.h"
#include "formats/ListOpener.h"
#include "model/EVM.h"
#include "vgfplot/EvolutionRecords.h"
#include "vgfplot/NamedMode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <iterator>
#include <utility>

namespace tarsil::batch {

namespace {

/// The index of a plot from its number, counted from 1; empty when the text is not a valid number.
std::optional<std::size_t> indexOfNumber(std::string_view text, std::size_t count)
{
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = error == std::errc() && end == text.data() + text.size();
    if (!isNumber || number < 1 || number > count)
        return std::nullopt;
    return number - 1;
}

std::string plotList(const std::vector<PlotRecord>& plots)
{
    if (plots.empty())
        return "the workspace has none";
    std::string list;
    for (std::size_t i = 0; i < plots.size(); ++i)
        list.append(list.empty() ? "there are " : ", ")
            .append(std::to_string(i + 1) + " \"" + plots[i].caption + "\"");
    return list;
}

std::vector<PlotRecord> plotsAskedFor(const std::vector<PlotRecord>& plots,
                                      const std::optional<std::string>& plot,
                                      const std::string& path)
{
    if (!plot)
        return plots;
    if (const auto index = indexOfNumber(*plot, plots.size()))
        return {plots[*index]};
    const auto captioned = std::find_if(plots.begin(), plots.end(),
                                        [&plot](const auto& one) { return one.caption == *plot; });
    if (captioned == plots.end())
        throw Failure(path + ": there is no plot \"" + *plot + "\"; " + plotList(plots));
    return {*captioned};
}

/// Opens the evolutions of a workspace for a command.
class InputOpener : public ListOpener
{
public:
    InputOpener(std::vector<bool> named, BatchRun& run, const OpeningReport& report)
        : m_named(std::move(named)), m_run(run), m_report(report)
    { }

    bool isWanted(std::size_t index) const override { return m_named[index]; }
    EVM& open(const std::string& path) override { return m_run.open(path); }
    void foundOpen(const EVM& /*evolution*/) override { }
    bool isDone(std::size_t /*count*/) override { return true; }

    void isMissing(std::size_t index, const std::string& path) override
    {
        const RunTimeError missing(ErrorNumber::FileNotFound, "tarsil-batch", path);
        m_report(index,
                 path.empty() ? "the workspace has no path for it"
                              : m_run.readable(missing.description()));
    }

    void cannotOpen(std::size_t index, const std::exception_ptr& error) override
    {
        try {
            std::rethrow_exception(error);
        } catch (const RunTimeError& fault) {
            m_report(index, m_run.readable(fault.description()));
        } catch (const Failure& failure) {
            m_report(index, failure.what());
        }
    }

private:
    std::vector<bool> m_named;
    BatchRun& m_run;
    const OpeningReport& m_report;
};

/// Removes the series without a mode from a plot, and complains about each that is faulty itself.
void leaveOutFaults(PlotRecord& plot, const std::string& path, WorkspaceInput& input, BatchRun& run)
{
    const NamedSeries named = namedSeries(plot, input.evolutions);
    for (const std::string& fault : named.faultTexts(plot)) {
        input.isWhole = false;
        run.complain(std::string(path).append(": ").append(fault));
    }
    std::vector<SeriesRecord> present;
    for (const auto& [series, mode] : named.present)
        present.push_back(*series);
    plot.series = std::move(present);
}

} // namespace

bool isWorkspace(std::string_view path)
{
    static constexpr std::array<std::string_view, 1> extensions = {".tsw"};
    return hasExtension(path, extensions);
}

bool hasWorkspace(const std::vector<std::string>& paths)
{
    return std::any_of(paths.begin(), paths.end(), isWorkspace);
}

void checkWorkspaceOptions(const CommandLine& line, const std::vector<std::string>& paths,
                           const std::vector<std::string_view>& useless)
{
    if (!hasWorkspace(paths)) {
        if (line.has(plotOption.name))
            throw UsageError(std::string(plotOption.name) + " needs a workspace");
        return;
    }
    for (const std::string_view option : useless) {
        if (line.has(option))
            throw UsageError(std::string(option)
                             + ": already determined by the series of the workspace");
    }
}

WorkspaceInput openWorkspace(const std::string& path, const std::optional<std::string>& plot,
                             BatchRun& run, UsedEvolutions used)
{
    const WorkspaceSource source = readWorkspaceSource(path);
    if (source.reading.error)
        throw RunTimeError(*source.reading.error);
    const WorkspaceRecord& record = source.reading.record;
    const std::vector<std::string>& files = source.files;
    WorkspaceInput input;
    input.record = record;
    input.userName = source.reading.userName;
    input.plots = plotsAskedFor(record.plots, plot, path);
    input.files.insert(path);
    std::copy_if(files.begin(), files.end(), std::inserter(input.files, input.files.end()),
                 fileExists);
    const auto complain = [&](std::size_t index, const std::string& why) {
        input.isWhole = false;
        run.complain(path + ": the series of modal evolution " + std::to_string(index + 1)
                     + " are left out: " + why);
    };
    for (const Namesake& one : source.namesakes)
        run.complain(path + ": modal evolution " + std::to_string(one.position + 1) + ", "
                     + shownPath(one.stored) + ", is not there; " + shownPath(one.taken)
                     + " is used because of its name alone");
    const std::vector<bool> wanted = used == UsedEvolutions::All
        ? std::vector<bool>(files.size(), true)
        : namedEvolutions(input.plots, files.size());
    input.evolutions = openEvolutions(wanted, files, run, complain);
    applyEdited(record.edited, input.evolutions);
    for (PlotRecord& one : input.plots)
        leaveOutFaults(one, path, input, run);
    return input;
}

std::vector<EVM*> openEvolutions(const std::vector<bool>& wanted,
                                 const std::vector<std::string>& files, BatchRun& run,
                                 const OpeningReport& report)
{
    InputOpener opener(wanted, run, report);
    return openListed({}, files, opener);
}

} // namespace tarsil::batch
