#pragma once

#include "analysis/TrackedFile.h"

#include <string>
#include <vector>

namespace tarsil {

class Document;
class EVM;
class UserInterface;

/// Tracked evolutions: files of their own, whose modes follow the roots, beside their sources. The
/// sources stay as they are. Every exchange of two modes is a modification in the header of the
/// tracked file.
class TrackingCommands
{
public:
    /// Both must outlive the object.
    TrackingCommands(Document& document, UserInterface& user) : m_document(document), m_user(user)
    { }

    /// Tracks an evolution of the document into NAME_tracked.ev2 beside its file, and opens that
    /// one, or shows its new state where it is open. The user is asked before a file is replaced.
    /// Errors: 5 for an evolution without sections (.ev2) or that cannot be tracked; those of
    /// reading and writing files.
    void track(const EVM& evolution);

    /// Exchanges two modes of a tracked evolution of the document in its file and in all plots.
    /// Errors: 5 for an evolution that is not tracked; those of `exchangedText` and of files.
    void exchange(const EVM& evolution, const ModeExchange& exchange);

    /// Whether there is an exchange to be taken back.
    bool canUndo() const { return !m_undoSteps.empty(); }

    /// Takes the last exchange back: the file is what it was before. Error 5 when the file is no
    /// longer what the exchange made of it, or its evolution is not open any more.
    void undoExchange();

private:
    /// The file of an exchange before and afterwards.
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

/// Whether the name of an evolution is that of a tracked one ("wing_tracked.ev2").
bool isTracked(const EVM& evolution);

} // namespace tarsil
