#include "batch/WorkspaceInput.h"

#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "batch/BatchRun.h"
#include "document/WorkspaceSource.h"
#include "model/EVM.h"
#include "vgfplot/EvolutionRecords.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <iterator>
#include <map>
#include <utility>

namespace tarsil::batch {

namespace {

/// The plot of a number from 1; nothing when the text is no such number.
std::optional<std::size_t> placeOfNumber(std::string_view text, std::size_t count)
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
        return "the workspace holds none";
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
    if (const auto place = placeOfNumber(*plot, plots.size()))
        return {plots[*place]};
    const auto captioned = std::find_if(plots.begin(), plots.end(),
                                        [&plot](const auto& one) { return one.caption == *plot; });
    if (captioned == plots.end())
        throw Failure(path + ": there is no plot \"" + *plot + "\"; " + plotList(plots));
    return {*captioned};
}

/// Whether a series names an evolution of a list with `count` entries.
bool namesEvolution(const SeriesRecord& series, std::size_t count)
{
    return series.evolution >= 1 && static_cast<std::size_t>(series.evolution) <= count;
}

std::size_t placeOfEvolution(const SeriesRecord& series)
{
    return static_cast<std::size_t>(series.evolution) - 1;
}

/// Whether series of the plots name the evolution at each place.
std::vector<bool> evolutionsNamed(const std::vector<PlotRecord>& plots, std::size_t count)
{
    std::vector<bool> named(count);
    for (const PlotRecord& plot : plots) {
        for (const SeriesRecord& series : plot.series) {
            if (namesEvolution(series, count))
                named[placeOfEvolution(series)] = true;
        }
    }
    return named;
}

/// The evolution of a file, null after a report why it cannot be opened.
EVM* openListed(const std::string& file, BatchRun& run,
                const std::function<void(const std::string& why)>& report)
{
    if (file.empty()) {
        report("the workspace does not say its path");
        return nullptr;
    }
    try {
        if (!fileExists(file))
            throw RunTimeError(ErrorNumber::FileNotFound, "tarsil-batch", file);
        return &run.open(file);
    } catch (const RunTimeError& error) {
        report(run.readable(error.description()));
    } catch (const Failure& failure) {
        report(failure.what());
    }
    return nullptr;
}

/// Takes the series without a mode away from a plot, with a complaint for each that has a fault of
/// its own.
void leaveOutFaults(PlotRecord& plot, const std::string& path, WorkspaceInput& input, BatchRun& run)
{
    std::vector<SeriesRecord> sound;
    for (std::size_t i = 0; i < plot.series.size(); ++i) {
        SeriesRecord& series = plot.series[i];
        const std::string fault = faultOf(series, input.evolutions);
        if (!fault.empty()) {
            input.isWhole = false;
            std::string message = path;
            message.append(": plot \"").append(plot.caption).append("\", series ");
            message.append(std::to_string(i + 1)).append(" is left out: ").append(fault);
            run.complain(message);
        } else if (input.evolutions[placeOfEvolution(series)] != nullptr) {
            sound.push_back(std::move(series));
        }
    }
    plot.series = std::move(sound);
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
            throw UsageError(std::string(option) + ": the series of a workspace say that already");
    }
}

WorkspaceInput openWorkspace(const std::string& path, const std::optional<std::string>& plot,
                             BatchRun& run)
{
    const WorkspaceSource source = readWorkspaceSource(path);
    if (source.reading.error)
        throw RunTimeError(*source.reading.error);
    const WorkspaceRecord& record = source.reading.record;
    const std::vector<std::string>& files = source.files;
    WorkspaceInput input;
    input.plots = plotsAskedFor(record.plots, plot, path);
    input.files.insert(path);
    std::copy_if(files.begin(), files.end(), std::inserter(input.files, input.files.end()),
                 fileExists);
    const auto complain = [&](std::size_t place, const std::string& why) {
        input.isWhole = false;
        run.complain(path + ": the series of modal evolution " + std::to_string(place + 1)
                     + " are left out: " + why);
    };
    for (const Namesake& one : source.namesakes)
        run.complain(path + ": modal evolution " + std::to_string(one.position + 1) + ", "
                     + shownPath(one.stored) + ", is not there; " + shownPath(one.taken)
                     + " is taken for its name alone");
    input.evolutions = openEvolutions(input.plots, files, run, complain);
    applyEdited(record.edited, input.evolutions);
    for (PlotRecord& one : input.plots)
        leaveOutFaults(one, path, input, run);
    return input;
}

std::vector<EVM*>
openEvolutions(const std::vector<PlotRecord>& plots, const std::vector<std::string>& files,
               BatchRun& run,
               const std::function<void(std::size_t place, const std::string& why)>& report)
{
    const std::vector<bool> named = evolutionsNamed(plots, files.size());
    std::vector<EVM*> evolutions(files.size());
    std::map<std::string_view, EVM*> opened;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!named[i])
            continue;
        const auto [known, isNew] = opened.try_emplace(files[i], nullptr);
        if (isNew || known->second == nullptr)
            known->second = openListed(files[i], run, std::bind_front(report, i));
        evolutions[i] = known->second;
    }
    return evolutions;
}

std::string faultOf(const SeriesRecord& series, const std::vector<EVM*>& evolutions)
{
    if (!namesEvolution(series, evolutions.size()))
        return "there is no modal evolution " + std::to_string(series.evolution)
            + "; the workspace lists " + std::to_string(evolutions.size());
    const EVM* const evolution = evolutions[placeOfEvolution(series)];
    if (evolution == nullptr)
        return {};
    const std::size_t modes = evolution->Modes.size();
    if (series.mode >= 1 && static_cast<std::size_t>(series.mode) <= modes)
        return {};
    return evolution->FileName + " has no mode at position " + std::to_string(series.mode)
        + "; it holds " + std::to_string(modes);
}

AeMode& modeOf(const SeriesRecord& series, const std::vector<EVM*>& evolutions)
{
    const EVM& evolution = *evolutions[placeOfEvolution(series)];
    return *evolution.Modes[static_cast<std::size_t>(series.mode) - 1];
}

} // namespace tarsil::batch
