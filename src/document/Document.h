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

/// What has to be said of a workspace that is open.
struct OpenedWorkspace
{
    std::vector<Namesake> namesakes;
    std::vector<LongValue> cutValues; ///< texts of which the file holds more
    std::exception_ptr failure; ///< the first one, after which what could be read was opened
};

/// What lives for the whole run: the modal evolutions, the plots that show them, the aircraft, and
/// the texts of the workspace. The windows are views of it: they change it through its functions
/// and follow its signals and those of its lists. It needs no window itself.
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

    /// What the user has changed. It begins anew with a new workspace.
    UndoHistory& history() { return m_history; }

    /// Reads modal evolutions and appends those that were not open; returns these. The user is told
    /// of each file that cannot be opened (`mdlMain::loadEvolutions`).
    std::vector<EVM*> load(const std::vector<std::string>& paths, UserInterface& user);

    /// Removes an evolution, and its rows from all plots. Error 5 for one that is not there.
    void remove(EVM& evolution);

    const AirplaneInfo& airplane() const { return m_airplane; }

    void setAirplane(AirplaneInfo airplane);

    const WorkspaceTexts& texts() const { return m_texts; }
    void setTexts(const WorkspaceTexts& texts);
    void setDescription(const QString& description);

    /// A new, untitled workspace: no evolutions, one empty plot, which is active. Nothing is asked.
    void startNew();

    /// Opens a workspace in place of what is there: all that can be read of it, with its evolutions
    /// as far as they are found. The user is told of evolutions that are missing or cannot be read.
    /// Errors: those of opening a file, and of one of which nothing can be read; then nothing has
    /// changed.
    OpenedWorkspace open(const std::string& path, UserInterface& user);

    /// Writes the workspace, whole or not at all, under the name of a user. Errors: those of
    /// `writeWorkspace` and of writing a file; then nothing has changed.
    WrittenWorkspace save(const std::string& path, const std::string& userName);

    /// Where the workspace was opened or saved; empty for an untitled one.
    const std::string& path() const { return m_path; }

    /// Whether the file at `path` holds more than the document, or another thing: evolutions that
    /// are not there, texts that were cut, damaged parts.
    bool isPartial() const { return m_isPartial; }

    /// Opens a copy of a workspace that was never saved (`RecoveryCopy`) as an untitled one with
    /// changes; otherwise as `open`.
    OpenedWorkspace recover(const std::string& copy, UserInterface& user);

    /// Whether the workspace would be saved as something else than when it was last opened or
    /// saved. What is being edited is committed first.
    bool isChanged();

    /// The same for what is in the document now, without what is being edited.
    bool isSaved() const { return state() == m_saved; }

    /// What is there now counts as saved.
    void markSaved();

    /// The document as a workspace keeps it.
    WorkspaceRecord record() const;

Q_SIGNALS:
    void textsChanged();

    /// The workspace is about to be saved: plots get the size that the window gives them, so that
    /// the positions of their boxes are those of the window.
    void aboutToBeSaved();

    /// The aircraft information may be another one.
    void airplaneChanged();

    /// The document is a new, untitled workspace.
    void startedNew();

private:
    static WorkspaceTexts textsOfNewWorkspace();
    void commitEdits();
    WorkspaceRecord state() const;
    std::vector<EVM*> loadListed(const WorkspaceSource& source, UserInterface& user);
    std::exception_ptr applyPlots(const std::vector<PlotRecord>& records,
                                  const std::vector<EVM*>& evolutions, std::exception_ptr failure);
    EvmPlot& plotFor(std::size_t index, const QString& caption);

    EvolutionList m_evolutions;
    PlotList m_plots; ///< refer to evolutions, and end before them
    UndoHistory m_history {*this};
    AirplaneInfo m_airplane;
    WorkspaceTexts m_texts;
    std::string m_path;
    bool m_isPartial = false;
    WorkspaceRecord m_saved; ///< the state when it was last saved or opened
};

} // namespace tarsil
