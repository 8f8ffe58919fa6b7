// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "analysis/TrackedFile.h"

#include <memory>
#include <string>

namespace tarsil {

class Document;
class EVM;
class UserInterface;

/// Commands for tracked evolutions, whose modes follow the roots. They are separate files beside
/// their sources, which stay unchanged. Every exchange of two modes is a modification in the header
/// of the tracked file. A change of a tracked file that is open is a step of the undo history.
class TrackingCommands
{
public:
    /// Both must outlive the object.
    TrackingCommands(Document& document, UserInterface& user) : m_document(document), m_user(user)
    { }

    /// Tracks an evolution of the document, writes NAME_tracked.ev2 beside its file, and opens it,
    /// or updates it if it is open. Asks before it replaces a file. Returns false when the user has
    /// stopped the tracking; nothing has changed then. Errors: 5 for an evolution without sections
    /// (.ev2), one that cannot be tracked, or an open tracked one with other modes; those of
    /// reading and writing files.
    bool track(const EVM& evolution);

    /// Exchanges two modes of a tracked evolution of the document in its file and in all plots.
    /// Errors: 5 for an evolution that is not tracked; those of `exchangedText` and of files.
    void exchange(const EVM& evolution, const ModeExchange& exchange);

private:
    TrackedEvolution trackedOf(const EVM& evolution) const;
    void write(const std::string& target, std::string text);
    std::shared_ptr<EVM> openEvolution(const std::string& path) const;

    Document& m_document;
    UserInterface& m_user;
};

} // namespace tarsil
