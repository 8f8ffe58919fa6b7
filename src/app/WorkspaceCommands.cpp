#include "app/WorkspaceCommands.h"

#include "explorer/DateText.h"
#include "explorer/WndEvolExplorer.h"
#include "model/EvolutionLoader.h"
#include "runtime/AtomicFile.h"
#include "runtime/BusyStatus.h"
#include "runtime/ErrorGuard.h"
#include "runtime/MappedFile.h"
#include "runtime/PathNames.h"
#include "runtime/RunTimeError.h"
#include "vgf/PlotRecords.h"
#include "vgf/WndEvolPlot.h"
#include "workspace/FoundFiles.h"
#include "workspace/WorkspaceReader.h"
#include "workspace/WorkspaceWriter.h"

#include <QDateTime>
#include <QString>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// The path with the extension of a workspace, unless it has one.
std::string withExtension(const std::string& path)
{
    return nativePath(path).has_extension() ? path : path + ".tsw";
}

std::string userName()
{
    const QString name = qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME"));
    return name.toStdString();
}

QString workspaceNameOf(const std::string& path)
{
    QString name = QString::fromStdString(resolvePath(path).name);
    return name.remove(QStringLiteral(".tsw"));
}

/// The evolution of the session that is read from a file; null when there is none.
EVM* openEvolution(const Session& session, const std::string& path)
{
    std::error_code unknown;
    const auto found = std::find_if(
        session.evolutions.begin(), session.evolutions.end(), [&](const auto& evolution) {
            return fs::equivalent(nativePath(evolution->path()), nativePath(path), unknown);
        });
    return found == session.evolutions.end() ? nullptr : found->get();
}

} // namespace

WorkspaceCommands::WorkspaceCommands(Session& session, wndEvolPlot& plots,
                                     wndEvolExplorer& explorer, UserInterface& userInterface)
    : m_session(session), m_plots(plots), m_explorer(explorer), m_userInterface(userInterface)
{
    remember();
}

WorkspaceRecord WorkspaceCommands::gather() const
{
    WorkspaceRecord record;
    record.description = m_explorer.description().toStdString();
    record.dateCreated = m_explorer.dateCreated().toStdString();
    record.dateModified = m_explorer.dateModified().toStdString();
    std::vector<const EVM*> evolutions;
    for (const auto& evolution : m_session.evolutions) {
        evolutions.push_back(evolution.get());
        record.files.push_back(evolution->path());
    }
    for (const EvmPlot* plot : m_plots.plots())
        record.plots.push_back(recordOf(*plot, evolutions));
    return record;
}

/// What the user has made: a box that nobody moved stands where the size of the window puts it,
/// which is no change.
WorkspaceRecord WorkspaceCommands::state() const
{
    WorkspaceRecord record = gather();
    const std::vector<EvmPlot*> plots = m_plots.plots();
    for (std::size_t i = 0; i < plots.size(); ++i) {
        record.plots[i].header.position.reset();
        if (!plots[i]->Legend().wasMoved())
            record.plots[i].legend.position.reset();
        if (!plots[i]->Mechanism().wasMoved())
            record.plots[i].mechanism.position.reset();
    }
    return record;
}

void WorkspaceCommands::remember()
{
    m_saved = state();
}

bool WorkspaceCommands::mayDiscard()
{
    return state() == m_saved
        || m_userInterface.confirm("The workspace has changed since it was last saved. Discard the "
                                   "changes?",
                                   "Tarsil");
}

void WorkspaceCommands::New()
{
    guarded(m_userInterface, mdlWorkSpace::module, [this] {
        if (!mayDiscard())
            return;
        m_explorer.startNew();
        remember();
    });
}

void WorkspaceCommands::OpenWorkSpace()
{
    guarded(m_userInterface, mdlWorkSpace::module, [this] {
        if (!mayDiscard())
            return;
        const std::vector<std::string> chosen =
            mdlMain::OpenFileDialog(m_userInterface, mdlWorkSpace::filter, 1);
        if (!chosen.empty())
            open(chosen.front());
    });
}

void WorkspaceCommands::OpenWorkSpace(const std::string& path)
{
    guarded(m_userInterface, mdlWorkSpace::module, [&] {
        std::string plain = path;
        std::erase(plain, '"');
        open(plain);
    });
}

/// What can be read is shown, also when an error ends the reading in the middle.
void WorkspaceCommands::open(const std::string& path)
{
    const MappedFile file(path);
    WorkspaceRecord record;
    const auto read = [&] { readWorkspace(file.bytes(), shownPath(path), record); };
    guarded(m_userInterface, mdlWorkSpace::module, read);
    m_explorer.startNew();
    m_explorer.setWorkspaceName(workspaceNameOf(path));
    m_explorer.setDescription(QString::fromStdString(record.description));
    m_explorer.setDateCreated(QString::fromStdString(record.dateCreated));
    m_explorer.setDateModified(QString::fromStdString(record.dateModified));
    addPlots(record, loadFiles(record, path));
    remember();
}

/// The evolutions in the order of the list as it was saved, null for each that is not there.
std::vector<EVM*> WorkspaceCommands::loadFiles(const WorkspaceRecord& record,
                                               const std::string& path)
{
    const std::vector<std::string> paths = foundFiles(record.files, path);
    mdlMain::loadEvolutions(m_session, paths, m_userInterface,
                            [this] { m_explorer.FillEvolsNode(); });
    std::vector<EVM*> evolutions;
    evolutions.reserve(paths.size());
    for (const std::string& one : paths)
        evolutions.push_back(openEvolution(m_session, one));
    return evolutions;
}

/// The first plot, which is always there, becomes the first of the file.
void WorkspaceCommands::addPlots(const WorkspaceRecord& record, const std::vector<EVM*>& evolutions)
{
    for (std::size_t i = 0; i < record.plots.size(); ++i) {
        const QString caption = QString::fromStdString(record.plots[i].caption);
        EvmPlot& plot = i == 0 ? *m_plots.plots().front() : m_plots.AddPlot(caption);
        plot.setCaption(caption);
        guarded(m_userInterface, mdlWorkSpace::module,
                [&] { applyRecord(record.plots[i], evolutions, plot); });
        guarded(m_userInterface, mdlWorkSpace::module, [&plot] { plot.plot(); });
    }
    m_plots.ActivatePlot(m_plots.plots().front());
}

void WorkspaceCommands::SaveWorkSpace()
{
    guarded(m_userInterface, mdlWorkSpace::module, [this] {
        const FileQuestion question {std::string(mdlWorkSpace::filter), 1, false, {}, false};
        const auto answer = m_userInterface.askSaveFile(question);
        if (!answer)
            return;
        const std::string path = withExtension(*answer);
        if (!fileExists(path)
            || m_userInterface.confirm("The file '" + resolvePath(path).name
                                           + "' already exists. Do you want to replace it?",
                                       "Tarsil"))
            write(path);
    });
}

void WorkspaceCommands::write(const std::string& path)
{
    const QString name = m_explorer.workspaceName();
    const QString modified = m_explorer.dateModified();
    m_explorer.setDateModified(dateText(QDateTime::currentDateTime()));
    try {
        const WrittenWorkspace written = writeWorkspace(gather(), userName());
        writeFile(path, written.bytes);
        m_explorer.setWorkspaceName(workspaceNameOf(path));
        remember();
        if (!written.longValues.empty())
            m_userInterface.showStatus(written.longValues.front().key + " of ["
                                       + written.longValues.front().section
                                       + "] is longer than 1023 characters: it is cut when the "
                                         "workspace is opened.");
    } catch (...) {
        m_explorer.setDateModified(modified);
        throw;
    }
}

} // namespace tarsil
