#include "app/TrackingCommands.h"

#include "base/files/AtomicFile.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "formats/Ev2Format.h"
#include "formats/EvolutionLoader.h"
#include "formats/FormatTable.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>

namespace tarsil {

namespace {

[[noreturn]] void refuse(const std::string& reason)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "Tracking", reason);
}

bool hasRowsOf(const EvmPlot& plot, const EVM& evolution)
{
    const PlotRows::Rows& rows = plot.rows().all();
    return std::any_of(rows.begin(), rows.end(),
                       [&evolution](const PlotRow& row) { return row.evolution == &evolution; });
}

} // namespace

bool isTracked(const EVM& evolution)
{
    return evolution.FileName.ends_with(trackedName({}));
}

void TrackingCommands::track(const EVM& evolution)
{
    if (findFormat(evolution.FileName) != &ev2Format)
        refuse(evolution.FileName + " is no evolution with sections (.ev2), which tracking needs");
    const std::string target = joinPath(evolution.Folder, trackedName(evolution.FileName));
    const TrackedEvolution tracked = trackEvolution(evolution, {});
    const std::string text = trackedText(FileBytes(evolution.path()).bytes(), tracked);
    if (fileExists(target)
        && !m_user.confirm("Replace the tracked evolution\n" + shownPath(target) + "?", "Tarsil"))
        return;
    writeFile(target, text);
    if (EVM* const open = openEvolution(target))
        showNewState(*open);
    else
        m_document.load({target}, m_user);
    m_user.showNote(std::to_string(tracked.modifications.size()) + " exchanges of modes in "
                    + shownPath(target));
}

void TrackingCommands::exchange(const EVM& evolution, const ModeExchange& exchange)
{
    if (!isTracked(evolution))
        refuse(evolution.FileName
               + " is no tracked evolution: use \"Track Modes\" in the explorer first");
    const std::string path = evolution.path();
    const std::string before(FileBytes(path).bytes());
    const std::string after = exchangedText(before, evolution, exchange);
    writeFile(path, after);
    if (EVM* const open = openEvolution(path))
        showNewState(*open);
    m_undoSteps.push_back({path, before, after});
}

void TrackingCommands::undoExchange()
{
    if (m_undoSteps.empty())
        return;
    const UndoStep step = m_undoSteps.back();
    m_undoSteps.pop_back();
    EVM* const open = openEvolution(step.path);
    if (open == nullptr)
        refuse(shownPath(step.path) + " is not open any more");
    if (FileBytes(step.path).bytes() != step.after)
        refuse(shownPath(step.path) + " has been changed since the exchange");
    writeFile(step.path, step.before);
    showNewState(*open);
}

EVM* TrackingCommands::openEvolution(const std::string& path) const
{
    const OwnedEvolutions& all = m_document.evolutions().all();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&path](const auto& one) { return one->path() == path; });
    return found == all.end() ? nullptr : found->get();
}

/// Reads the file again, into the modes that rows of plots refer to.
void TrackingCommands::showNewState(EVM& evolution)
{
    const LoadedEvolutions state = mdlMain::loadEvolutions({}, {evolution.path()}, m_user);
    if (state.added.empty())
        return; // the reason was shown already
    m_document.evolutions().takePoints(evolution, *state.added.front());
    for (EvmPlot* const plot : m_document.plots().all()) {
        if (hasRowsOf(*plot, evolution))
            plot->plot();
    }
}

} // namespace tarsil
