#include "app/WorkspaceCommands.h"

#include "app/LeftOutRows.h"
#include "base/files/AtomicFile.h"
#include "base/files/InputFile.h"
#include "base/files/PathNames.h"
#include "base/text/ShortList.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "base/user/RunTimeError.h"
#include "explorer/DateText.h"
#include "explorer/WndEvolExplorer.h"
#include "formats/EvolutionLoader.h"
#include "plotwindow/WndEvolPlot.h"
#include "vgfplot/EvolutionRecords.h"
#include "vgfplot/PlotRecords.h"
#include "workspace/FoundFiles.h"
#include "workspace/WorkspaceReader.h"
#include "workspace/WorkspaceWriter.h"

#include <QDateTime>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <functional>
#include <system_error>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// The path with the extension of a workspace, unless it has that. Any other belongs to the name
/// ("wing m0.40"), and without its own no dialog would list the file.
std::string withExtension(const std::string& path)
{
    const QString extension = QStringLiteral(".tsw");
    return QString::fromStdString(path).endsWith(extension, Qt::CaseInsensitive) ? path
                                                                                 : path + ".tsw";
}

/// Of the account, and not what the environment calls it.
std::string userName()
{
#ifdef Q_OS_UNIX
    if (const passwd* const account = getpwuid(geteuid()))
        return account->pw_name;
#endif
    return qEnvironmentVariable("USER", qEnvironmentVariable("USERNAME")).toStdString();
}

QString workspaceNameOf(const std::string& path)
{
    QString name = QString::fromStdString(resolvePath(path).name);
    return name.remove(QStringLiteral(".tsw"));
}

/// All that a workspace which was read in part is worth is shown, and the user hears of the first
/// thing that failed.
class FirstFailure
{
public:
    void run(const std::function<void()>& action)
    {
        try {
            action();
        } catch (...) {
            if (m_failure == nullptr)
                m_failure = std::current_exception();
        }
    }

    bool happened() const { return m_failure != nullptr; }

    void raise() const
    {
        if (m_failure != nullptr)
            std::rethrow_exception(m_failure);
    }

private:
    std::exception_ptr m_failure;
};

/// A count without its list is nothing.
bool holdsNothing(const WorkspaceRecord& record)
{
    return record.plots.empty()
        && std::all_of(record.files.begin(), record.files.end(),
                       [](const std::string& file) { return file.empty(); });
}

/// "Header of [PLOT1], Legend of [PLOT2]".
std::string placesOf(const std::vector<LongValue>& values)
{
    std::string places;
    for (const LongValue& value : values)
        places += (places.empty() ? "" : ", ") + value.key + " of [" + value.section + "]";
    return places;
}

/// What is said of values that are longer than the format takes, before what is said of the file.
std::string noteOf(const std::vector<LongValue>& values)
{
    return values.empty() ? std::string()
                          : placesOf(values) + (values.size() == 1 ? " is" : " are")
            + " longer than 1023 characters, all that the format takes of each: the rest will be "
              "cut when the workspace is opened. ";
}

} // namespace

WorkspaceCommands::WorkspaceCommands(Session& session, wndEvolPlot& plots,
                                     wndEvolExplorer& explorer, UserInterface& userInterface)
    : m_session(session), m_plots(plots), m_explorer(explorer), m_userInterface(userInterface)
{
    remember();
}

/// What is being typed into a text box belongs to its plot.
void WorkspaceCommands::takeEditsAlong()
{
    for (EvmPlot* const plot : m_plots.plots())
        plot->commitEdits();
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
        if (evolution.get() == m_explorer.referenceEvolution())
            record.reference = static_cast<std::int16_t>(record.files.size());
    }
    record.edited = editedRecordsOf(evolutions);
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
    takeEditsAlong();
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
        m_path.clear();
        m_isPartial = false;
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

/// What can be read is shown, also when an error ends the reading in the middle. That is reported
/// once everything is there. A file of which nothing can be read is no workspace, and takes the
/// place of none.
void WorkspaceCommands::open(const std::string& path)
{
    const FileBytes file(path);
    const WorkspaceReading reading = tryToReadWorkspace(file.bytes(), shownPath(path));
    const WorkspaceRecord& record = reading.record;
    FirstFailure failure;
    failure.run([&] {
        if (reading.error)
            throw RunTimeError(*reading.error);
    });
    if (holdsNothing(record))
        failure.raise();
    m_explorer.startNew();
    m_path = shownPath(path);
    m_explorer.setWorkspaceName(workspaceNameOf(path));
    m_explorer.setDescription(QString::fromStdString(record.description));
    m_explorer.setDateCreated(QString::fromStdString(record.dateCreated));
    m_explorer.setDateModified(QString::fromStdString(record.dateModified));
    m_isPartial = failure.happened() || !reading.cutValues.empty();
    const std::vector<EVM*> evolutions = loadFiles(record, path);
    for (std::size_t i = 0; i < record.plots.size(); ++i) {
        EvmPlot& plot = plotFor(i, QString::fromStdString(record.plots[i].caption));
        failure.run([&] { applyRecord(record.plots[i], evolutions, plot); });
        failure.run([&plot] { plot.plot(); });
    }
    m_plots.ActivatePlot(m_plots.plots().front());
    m_isPartial |= failure.happened();
    remember();
    if (!reading.cutValues.empty())
        m_userInterface.showNote(placesOf(reading.cutValues)
                                 + (reading.cutValues.size() == 1 ? " is" : " are")
                                 + " cut: the format takes 1023 characters of each.");
    failure.raise();
}

/// The evolutions in the order of the list as it was saved, null for each that is not there.
std::vector<EVM*> WorkspaceCommands::loadFiles(const WorkspaceRecord& record,
                                               const std::string& path)
{
    const std::vector<std::string> files = foundFiles(record.files, path);
    std::vector<EVM*> evolutions = mdlMain::loadListedEvolutions(
        m_session, files, m_userInterface, [&](const std::vector<EVM*>& opened) {
            applyEdited(record.edited, opened); // first: the tree shows the parameters
            m_explorer.FillEvolsNode();
        });
    if (record.reference > 0)
        m_explorer.setReference(evolutions.at(static_cast<std::size_t>(record.reference - 1)));
    m_isPartial |= std::find(evolutions.begin(), evolutions.end(), nullptr) != evolutions.end();
    tellOfNamesakes(record.files, files, path);
    return evolutions;
}

/// A file that has nothing but the name of the one that is listed may be another run's, and its
/// curves would be wrong.
void WorkspaceCommands::tellOfNamesakes(const std::vector<std::string>& stored,
                                        const std::vector<std::string>& files,
                                        const std::string& path)
{
    constexpr std::size_t mostTold = 20;
    std::vector<std::string> lines;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (isTakenByNameAlone(stored[i], files[i], path))
            lines.push_back(shownPath(stored[i]) + ": " + shownPath(files[i]));
    }
    if (lines.empty())
        return;
    m_isPartial = true;
    const std::string text =
        "These modal evolutions are not where the workspace says. Files of their "
        "names were taken, which may be those of other runs:";
    m_userInterface.showMessage(text + "\n" + shortList(lines, mostTold), "Tarsil",
                                MessageIcon::Exclamation);
}

/// The first plot, which is always there, becomes the first of the file; the others are new, and
/// the explorer keeps their captions apart.
EvmPlot& WorkspaceCommands::plotFor(std::size_t index, const QString& caption)
{
    if (index > 0)
        return m_plots.AddPlot(caption);
    EvmPlot& first = *m_plots.plots().front();
    first.setCaption(caption);
    return first;
}

void WorkspaceCommands::SaveWorkSpace()
{
    guarded(m_userInterface, mdlWorkSpace::module, [this] {
        const std::vector<EvmPlot*> plots = m_plots.plots();
        tellOfLeftOutRows({plots.begin(), plots.end()}, "the workspace", m_userInterface);
        const FileQuestion question {std::string(mdlWorkSpace::filter), 1, false, m_path, false};
        const auto answer = m_userInterface.askSaveFile(question);
        if (!answer)
            return;
        const std::string path = withExtension(*answer);
        if (!fileExists(path) || mayReplace(path))
            write(path);
    });
}

/// What could not be opened is still in its file, until that is replaced.
bool WorkspaceCommands::mayReplace(const std::string& path) const
{
    std::error_code unknown;
    const bool losesParts =
        m_isPartial && fs::equivalent(nativePath(path), nativePath(m_path), unknown);
    return m_userInterface.confirm("The file '" + resolvePath(path).name
                                       + "' already exists. Do you want to replace it?",
                                   "Tarsil")
        && (!losesParts
            || m_userInterface.confirm(
                "Some of this workspace could not be opened as it is in the file: evolutions that "
                "are not there, with their curves, texts that were cut, or damaged parts. They "
                "will be lost from the file. Replace it all the same?",
                "Tarsil"));
}

void WorkspaceCommands::write(const std::string& path)
{
    takeEditsAlong();
    // A plot that has never been on the screen has a size of its own; the places of its boxes are
    // to be those of the window.
    for (EvmPlot* const plot : m_plots.plots())
        m_plots.FitPlot(plot);
    const QString modified = m_explorer.dateModified();
    m_explorer.setDateModified(dateText(QDateTime::currentDateTime()));
    try {
        const WrittenWorkspace written = writeWorkspace(gather(), userName());
        writeFile(path, written.bytes);
        m_explorer.setWorkspaceName(workspaceNameOf(path));
        m_path = shownPath(path);
        m_isPartial = false;
        remember();
        m_userInterface.showNote(noteOf(written.longValues) + "The workspace is in "
                                 + wholePath(path));
    } catch (...) {
        m_explorer.setDateModified(modified);
        throw;
    }
}

} // namespace tarsil
