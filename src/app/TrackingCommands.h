#pragma once

#include "analysis/TrackedFile.h"

#include <string>
#include <vector>

namespace tarsil {

class Document;
class EVM;
class UserInterface;

/// Commands for tracked evolutions, whose modes follow the roots. They are separate files beside
/// their sources, which stay unchanged. Every exchange of two modes is a modification in the header
/// of the tracked file.
class TrackingCommands
{
public:
    /// Both must outlive the object.
    TrackingCommands(Document& document, UserInterface& user) : m_document(document), m_user(user)
    { }

    /// Tracks an evolution of the document, writes NAME_tracked.ev2 beside its file, and opens it,
    /// or updates it if it is open. Asks before it replaces a file. Errors: 5 for an evolution
    /// without sections (.ev2) or one that cannot be tracked; those of reading and writing files.
    void track(const EVM& evolution);

    /// Exchanges two modes of a tracked evolution of the document in its file and in all plots.
    /// Errors: 5 for an evolution that is not tracked; those of `exchangedText` and of files.
    void exchange(const EVM& evolution, const ModeExchange& exchange);

    /// Whether there is an exchange to undo.
    bool canUndo() const { return !m_undoSteps.empty(); }

    /// Undoes the last exchange: the file gets its former contents. Error 5 when the file has
    /// changed since the exchange, or its evolution is not open any more.
    void undoExchange();

private:
    /// The contents of a file before and after an exchange.
    struct UndoStep
    {
        std::string path;
        std::string before;
        std::string after;
    };

    EVM* openEvolution(const std::string& path) const;
    void showNewState(EVM& evolution);

    Document& m_document;
    UserInterface& m_user;
    std::vector<UndoStep> m_undoSteps;
};

/// Whether an evolution is tracked, by its name ("wing_tracked.ev2").
bool isTracked(const EVM& evolution);

} // namespace tarsil
