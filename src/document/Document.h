// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "aircraft/AirplaneInfo.h"
#include "document/EvolutionList.h"
#include "document/PlotList.h"
#include "document/UndoHistory.h"
#include "document/WorkspaceSource.h"
#include "document/WorkspaceTexts.h"
#include "workspace/WorkspaceRecord.h"
#include "workspace/WorkspaceWriter.h"

#include <QObject>

#include <cstddef>
#include <exception>
#include <string>
#include <vector>

namespace tarsil {

class UserInterface;

/// What is worth reporting after a workspace was opened.
struct OpenedWorkspace
{
    std::vector<Namesake> namesakes;
    std::vector<LongValue> cutValues; ///< texts that the reader cut at their maximum length
    std::exception_ptr failure; ///< the first error; what could be read is open all the same
};

/// The state of a run: modal evolutions, plots, aircraft, and the texts of the workspace. The
/// windows are views: they change it through its functions and follow its signals and those of its
/// lists. Needs no window.
class Document : public QObject
{
    Q_OBJECT

public:
    /// A new, untitled workspace with one plot, which is not active.
    Document();
    ~Document() override;

    EvolutionList& evolutions() { return m_evolutions; }
    const EvolutionList& evolutions() const { return m_evolutions; }
    PlotList& plots() { return m_plots; }
    const PlotList& plots() const { return m_plots; }

    /// The undo history of the document. Cleared by a new workspace.
    UndoHistory& history() { return m_history; }

    /// Reads modal evolutions and appends those not open yet; returns these. Shows a message for
    /// each file that cannot be opened (`mdlMain::loadEvolutions`).
    std::vector<EVM*> load(const std::vector<std::string>& paths, UserInterface& user);

    /// Removes evolutions, and their rows from all plots. Error 5 for an unknown evolution; nothing
    /// has changed then.
    void remove(const std::vector<EVM*>& evolutions);

    const AirplaneInfo& airplane() const { return m_airplane; }

    void setAirplane(AirplaneInfo airplane);

    const WorkspaceTexts& texts() const { return m_texts; }
    void setTexts(const WorkspaceTexts& texts);
    void setDescription(const QString& description);

    /// Starts a new, untitled workspace: no evolutions, one empty plot, which is active. Asks
    /// nothing.
    void startNew();

    /// Replaces the document by a workspace: everything readable in it, and its evolutions as far
    /// as they are found. Shows messages about evolutions that are missing or unreadable. When the
    /// user stops the search for files that moved, or the loading, the remaining evolutions are
    /// missing. Errors: those of opening a file, or of a file in which nothing is readable; nothing
    /// has changed then.
    OpenedWorkspace open(const std::string& path, UserInterface& user);

    /// Writes the workspace, whole or not at all, with `userName` as its author. Errors: those of
    /// `writeWorkspace` and of writing a file; nothing has changed then.
    WrittenWorkspace save(const std::string& path, const std::string& userName);

    /// The path of the workspace; empty when untitled.
    const std::string& path() const { return m_path; }

    /// Whether the file at `path` contains more than the document: evolutions that are missing,
    /// texts that were cut, damaged parts.
    bool isPartial() const { return m_isPartial; }

    /// Opens the copy of an unsaved workspace (`RecoveryCopy`) as an untitled workspace with
    /// changes; otherwise as `open`.
    OpenedWorkspace recover(const std::string& copy, UserInterface& user);

    /// Whether the workspace differs from what was last opened or saved. Commits edits in progress
    /// first.
    bool isChanged();

    /// The opposite, without committing edits in progress.
    bool isSaved() const { return state() == m_saved; }

    /// Makes the present state the saved one.
    void markSaved();

    /// The document as a record of a workspace.
    WorkspaceRecord record() const;

Q_SIGNALS:
    void textsChanged();

    /// The workspace is about to be saved. Plots are to be fitted to the window, so that the
    /// positions of their boxes are those on the screen.
    void aboutToBeSaved();

    /// The aircraft information has changed, or been read again.
    void airplaneChanged();

    /// The document is a new, untitled workspace.
    void startedNew();

private:
    static WorkspaceTexts textsOfNewWorkspace();
    void commitEdits();
    void redrawPlotsOf(const EVM* evolution);
    WorkspaceRecord state() const;
    std::vector<EVM*> loadListed(const WorkspaceSource& source, UserInterface& user);
    std::exception_ptr applyPlots(const std::vector<PlotRecord>& records,
                                  const std::vector<EVM*>& evolutions, std::exception_ptr failure);
    EvmPlot& plotFor(std::size_t index, const QString& caption);

    EvolutionList m_evolutions;
    PlotList m_plots; ///< refer to evolutions, so destroyed before them
    UndoHistory m_history {*this};
    AirplaneInfo m_airplane;
    WorkspaceTexts m_texts;
    std::string m_path;
    bool m_isPartial = false;
    WorkspaceRecord m_saved; ///< the state when last opened or saved
};

} // namespace tarsil
