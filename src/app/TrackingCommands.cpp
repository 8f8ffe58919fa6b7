// SPDX-License-Identifier: Apache-2.0
#include "app/TrackingCommands.h"

#include "base/files/AtomicFile.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/user/BusyStatus.h"
#include "base/user/RunTimeError.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "formats/Ev2Format.h"
#include "formats/FormatTable.h"

#include <QString>

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

[[noreturn]] void refuseTracking(const std::string& reason)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "Tracking", reason);
}

std::string textOfFile(const std::string& path)
{
    return std::string(FileBytes(path).bytes());
}

} // namespace

bool TrackingCommands::track(const EVM& evolution)
{
    if (findFormat(evolution.FileName) != &ev2Format)
        refuseTracking(evolution.FileName
                       + " is no evolution with sections (.ev2), which tracking needs");
    const std::string target = joinPath(evolution.Folder, trackedName(evolution.FileName));
    const TrackedEvolution tracked = trackedOf(evolution);
    if (!tracked.tracking.isComplete())
        return false;
    std::string text = trackedText(FileBytes(evolution.path()).bytes(), tracked);
    if (fileExists(target)
        && !m_user.confirm("Replace the tracked evolution\n" + shownPath(target) + "?", "Tarsil"))
        return true;
    write(target, std::move(text));
    m_user.showNote(std::to_string(tracked.modifications.size()) + " exchanges of modes in "
                    + shownPath(target));
    return true;
}

TrackedEvolution TrackingCommands::trackedOf(const EVM& evolution) const
{
    const BusyStatus status(m_user, "Track Modes. Please Wait ...");
    return trackEvolution(evolution, {}, [this](std::size_t done, std::size_t total) {
        return m_user.showProgress(done, total);
    });
}

void TrackingCommands::write(const std::string& target, std::string text)
{
    if (auto open = openEvolution(target); open != nullptr && fileExists(target)) {
        m_document.history().changeFile(QStringLiteral("Track Modes"),
                                        {std::move(open), textOfFile(target), std::move(text)});
    } else if (open != nullptr) { // its file is gone, so that no step could restore it
        replaceFile(m_document.evolutions(), *open, text);
    } else {
        writeFile(target, text);
        m_document.load({target}, m_user);
    }
}

void TrackingCommands::exchange(const EVM& evolution, const ModeExchange& exchange)
{
    if (!isTracked(evolution))
        refuseTracking(evolution.FileName
                       + " is no tracked evolution: use \"Track Modes\" in the explorer first");
    const std::string path = evolution.path();
    std::string before = textOfFile(path);
    std::string after = exchangedText(before, evolution, exchange);
    m_document.history().changeFile(QStringLiteral("Exchange Modes"),
                                    {openEvolution(path), std::move(before), std::move(after)});
}

/// The evolution of the document with this path; null for none.
std::shared_ptr<EVM> TrackingCommands::openEvolution(const std::string& path) const
{
    const OwnedEvolutions& all = m_document.evolutions().all();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [&path](const auto& one) { return one->path() == path; });
    return found == all.end() ? nullptr : *found;
}

} // namespace tarsil
