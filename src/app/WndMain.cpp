// SPDX-License-Identifier: Apache-2.0
#include "app/WndMain.h"

#include "app/DlgDampLine.h"
#include "app/DlgRefSpeed.h"
#include "app/LeftOutRows.h"
#include "app/SaveAllPictures.h"
#include "app/StatusPanels.h"
#include "app/WindowMemory.h"
#include "app/WndGuide.h"
#include "base/files/PathNames.h"
#include "base/user/ErrorGuard.h"
#include "base/user/ErrorReport.h"
#include "base/user/RunTimeError.h"
#include "datacontrol/WndData.h"
#include "explorer/WndEvolExplorer.h"
#include "explorer/WndSelModes.h"
#include "formats/EvolutionLoader.h"
#include "formats/FormatTable.h"
#include "formats/MdlMix.h"
#include "importing/DlgImport.h"
#include "importing/DroppedFiles.h"
#include "options/DlgOptions.h"
#include "plotwindow/DlgPlotProp.h"
#include "plotwindow/WndEvolPlot.h"
#include "printing/PrintDialog.h"
#include "stability/TrendWindow.h"
#include "stability/WndStability.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/EvolutionPlotter.h"
#include "vgfplot/PlotZoom.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMdiArea>
#include <QMenu>
#include <QStandardPaths>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view workspaceExtension = ".tsw";
const QString layoutName = QStringLiteral("childWindows"); ///< in the settings

/// The first argument that contains an extension; the end when there is none.
auto mentionOf(const std::vector<std::string>& arguments, std::string_view extension)
{
    return std::find_if(arguments.begin(), arguments.end(), [extension](const auto& argument) {
        return argument.find(extension) != std::string::npos;
    });
}

std::string folderOf(const std::string& path)
{
    return QFileInfo(QString::fromStdString(path)).absolutePath().toStdString();
}

bool isAircraftFile(const std::string& path)
{
    return QString::fromStdString(path).endsWith(QStringLiteral(".inp"), Qt::CaseInsensitive);
}

bool nameEvolutions(const std::vector<std::string>& arguments)
{
    return std::any_of(arguments.begin(), arguments.end(),
                       [](const auto& argument) { return findFormat(argument) != nullptr; });
}

/// Whether an argument names a file that is neither a workspace, an evolution nor an aircraft file.
bool namesOutput(const std::string& argument)
{
    return argument.find(workspaceExtension) == std::string::npos && findFormat(argument) == nullptr
        && !isAircraftFile(argument) && fileExists(argument);
}

std::vector<std::string> outputsAmong(const std::vector<std::string>& arguments)
{
    std::vector<std::string> outputs;
    std::copy_if(arguments.begin(), arguments.end(), std::back_inserter(outputs), namesOutput);
    return outputs;
}

std::vector<std::string> withoutOthers(std::vector<std::string> arguments)
{
    std::erase_if(arguments, [](const std::string& argument) {
        return namesOutput(argument) || isAircraftFile(argument);
    });
    return arguments;
}

} // namespace

wndMain::wndMain(UserInterface& userInterface, FlutterReportCommand::FileOpener opener,
                 OptionsStore store)
    : m_userInterface(userInterface), m_workspace(m_document, userInterface),
      m_store(std::move(store)), m_memory(m_store.memory()), m_recovery(folderOf(m_store.path())),
      m_questions(userInterface), m_report(userInterface, m_questions, std::move(opener)),
      m_reportDocument(m_document, userInterface, m_questions),
      m_tracking(m_document, userInterface),
      m_reportFolder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)),
      m_area(new QMdiArea(this)), m_statusPanels(new StatusPanels(this))
{
    setObjectName(QStringLiteral("wndMain"));
    setWindowTitle(QStringLiteral("Tarsil 4.0"));
    setAccessibleName(windowTitle());
    setCentralWidget(m_area);
    setAcceptDrops(true);
    setStatusBar(m_statusPanels);
    connect(m_statusPanels, &StatusPanels::panelClicked, this, &wndMain::stBar_PanelClick);
    makeChildWindows();
    connectRecentFiles();
    makeMenuBar();
    makePopups();
    followHistory();
}

/// Deletes the child windows before the document that they show. Steps that end with the document
/// are no longer followed. An open editor is committed when it loses the focus; that must happen
/// while all windows exist.
wndMain::~wndMain()
{
    if (QWidget* const field = focusWidget())
        field->clearFocus();
    m_document.history().steps().disconnect(this);
    closeDialogs();
    m_layout.reset();
    delete m_area;
}

void wndMain::makeChildWindows()
{
    m_evolPlot = new wndEvolPlot(m_document.plots(), m_userInterface);
    m_evolPlot->adviseOn(m_document.evolutions());
    const auto frameOf = [this](QWidget* content) { return new ChildFrame(content, *m_area); };
    m_explorer = new wndEvolExplorer(m_document, *m_evolPlot, m_userInterface);
    m_data = new wndData(m_document, m_userInterface);
    m_frames.data = frameOf(m_data);
    m_frames.explorer = frameOf(m_explorer);
    m_frames.plot = frameOf(m_evolPlot);
    m_layout = std::make_unique<ChildLayout>(*m_area, m_frames);
    connect(m_evolPlot, &wndEvolPlot::failed, this, [this](const RunTimeError& error) {
        m_userInterface.showMessage(errorReport(error, "wndEvolPlot"), "Error",
                                    MessageIcon::Critical);
    });
    connect(&m_document, &Document::aboutToBeSaved, m_evolPlot, &wndEvolPlot::fitAll);
    connect(&m_document.plots(), &PlotList::activeChanged, this,
            [this](EvmPlot* before, EvmPlot* now) {
                m_statusPanels->setEditMode(now != nullptr && now->texts().EditMode());
                followMarks(before, now);
            });
    connect(m_evolPlot, &wndEvolPlot::edited, this,
            [this](const QString& what, UndoHistory::Joining joining) {
                m_document.history().note(what, joining);
            });
    connect(m_evolPlot, &wndEvolPlot::plotMenuRequested, this,
            [this](QPoint position, bool hasCurve) {
                (hasCurve ? m_curveMenu : m_plotMenu)->popup(position);
            });
    connect(m_evolPlot, &wndEvolPlot::curvesSelected, m_data, &wndData::selectRows);
    connect(m_evolPlot, &wndEvolPlot::removeWanted, m_data, &wndData::removeRows);
    connect(m_data, &wndData::rowsSelected, m_evolPlot, &wndEvolPlot::selectCurves);
    connectExplorer();
}

/// Connects the explorer's buttons to the commands of the File menu.
void wndMain::connectExplorer()
{
    const auto runs = [this](const char* name, Handler handler) {
        return [this, name, handler] { run(QString::fromLatin1(name), handler); };
    };
    connect(m_explorer, &wndEvolExplorer::newWanted, this,
            runs("New Workspace", &wndMain::mnuNewWorkspace_Click));
    connect(m_explorer, &wndEvolExplorer::openWanted, this,
            runs("Open Workspace", &wndMain::OpenMenu_Click));
    connect(m_explorer, &wndEvolExplorer::saveWanted, this,
            runs("Save Workspace", &wndMain::mnuSaveWorkspace_Click));
    connect(m_explorer, &wndEvolExplorer::addWanted, this,
            runs("Add Modal Evolution", &wndMain::AddMenu_Click));
    connect(m_explorer, &wndEvolExplorer::menuRequested, this,
            [this](QPoint position) { m_explorerMenu->popup(position); });
}

void wndMain::connectRecentFiles()
{
    m_recent = new RecentFiles(m_document, m_memory, this);
    connect(m_recent, &RecentFiles::workspaceChosen, this,
            [this](const std::string& path) { runRecent([&] { openWorkspace(path); }); });
    connect(m_recent, &RecentFiles::evolutionChosen, this,
            [this](const std::string& path) { runRecent([&] { open({path}); }); });
}

/// Opens a recent file.
void wndMain::runRecent(const std::function<void()>& opens)
{
    commitEdits();
    m_userInterface.beginCommand();
    guarded(m_userInterface, "wndMain", opens);
    m_recent->followWorkspace();
}

/// Keeps the notes about the speed axis and misplaced reference speeds up to date. A plot signals a
/// change before it is complete, so the note is updated when control returns to the event loop.
void wndMain::followMarks(const EvmPlot* before, const EvmPlot* now)
{
    const auto showNote = [this] {
        const EvmPlot* const plot = m_document.plots().active();
        QStringList notes;
        if (plot != nullptr)
            notes = {axisNote(*plot), plot->references().shiftNote()};
        notes.removeAll(QString());
        m_statusPanels->setPlotNote(notes.join(QStringLiteral(". ")));
    };
    if (before != nullptr)
        disconnect(before, &EvmPlot::changed, this, nullptr);
    if (now != nullptr)
        connect(now, &EvmPlot::changed, this, showNote, Qt::QueuedConnection);
    showNote();
}

void wndMain::MDIForm_Load(const std::vector<std::string>& arguments)
{
    guarded(m_userInterface, "wndMain", [&] {
        options().GetOptReg();
        m_document.markSaved(); // the axes of the options are not a change by the user
        for (ChildFrame* frame : {m_frames.data, m_frames.explorer, m_frames.plot})
            frame->bringBack();
        wndDefLayout();
        for (const RememberedPair& pair : m_memory.pairsIfReadable(remembered::windows)) {
            if (pair.key == layoutName)
                m_layout->restore(pair.value);
            else if (pair.key == m_data->objectName())
                m_data->setColumnWidths(pair.value);
        }
        m_document.plots().activate(&m_document.plots().first());
        const auto workspace = mentionOf(arguments, workspaceExtension);
        if (m_workspace.recover(*m_recovery)) {
            m_workspace.showNotOpened(arguments);
            return;
        }
        if (workspace != arguments.end())
            m_workspace.OpenWorkSpace(*workspace);
        else if (nameEvolutions(arguments))
            draw(m_document.load(withoutOthers(arguments), m_userInterface));
        useAircraftFileAmong(arguments);
        m_document.history().clear();
        importResults(outputsAmong(arguments));
    });
    m_recent->followWorkspace();
}

void wndMain::restoreSize()
{
    restoreWindow(*this, m_memory);
}

/// The window and its child windows, for the next start.
void wndMain::keepLayout()
{
    keepWindow(*this, m_memory);
    if (m_stability)
        keepWindow(*m_stability, m_memory);
    m_memory.rememberQuietly(remembered::windows, {{m_data->objectName(), m_data->columnWidths()}});
    const QString layout = m_layout->text();
    const auto known = m_memory.pairsIfReadable(remembered::windows);
    const bool isKnown = std::any_of(known.begin(), known.end(), [](const RememberedPair& pair) {
        return pair.key == layoutName;
    });
    if (isKnown || !layout.isEmpty())
        m_memory.rememberQuietly(remembered::windows, {{layoutName, layout}});
}

/// Applies what is being typed, because a command acts on what the user sees.
void wndMain::commitEdits()
{
    m_data->commitEdits();
    m_explorer->commitEdits();
    if (EvmPlot* const plot = m_document.plots().active())
        plot->commitEdits();
}

/// What the command has changed is one step that can be undone, also when it failed half-way.
void wndMain::run(const QString& name, Handler handler)
{
    commitEdits();
    m_userInterface.beginCommand();
    guarded(m_userInterface, "wndMain", [this, handler] { (this->*handler)(); });
    m_document.history().note(name);
    m_recent->followWorkspace();
    keepCopy();
}

/// A copy that cannot be written is nothing that the user asked for, so that a note is enough.
void wndMain::keepCopy()
{
    if (!m_recovery)
        return;
    try {
        m_recovery->follow(m_document);
    } catch (const RunTimeError& error) {
        m_userInterface.showNote("No copy of the unsaved workspace is kept: "
                                 + error.description());
    }
}

void wndMain::wndDefLayout()
{
    m_layout->setDefault();
}

QSize wndMain::innerSize() const
{
    return m_area->viewport()->size();
}

std::vector<ChildFrame*> wndMain::frames() const
{
    return {m_frames.explorer, m_frames.data, m_frames.plot};
}

EvmPlot& wndMain::activePlot() const
{
    if (m_document.plots().active() == nullptr)
        throw RunTimeError(ErrorNumber::ObjectVariableNotSet, "wndMain", "no plot is active");
    return *m_document.plots().active();
}

/// Draws the evolutions of the command line at once.
void wndMain::draw(const std::vector<EVM*>& evolutions)
{
    std::vector<EvolutionCurves> curves;
    curves.reserve(evolutions.size());
    for (EVM* evolution : evolutions)
        curves.push_back(allCurvesOf(*evolution));
    const std::size_t drawn =
        plotCurves(activePlot(), curves, {}, m_document.plots().newSeriesPalette());
    if (drawn < evolutions.size())
        m_userInterface.showMessage(
            std::to_string(evolutions.size()) + " modal evolutions are loaded. "
                + (drawn == 0 ? "None of them is" : "The first " + std::to_string(drawn) + " are")
                + " drawn: a plot is limited to " + std::to_string(mostCurves) + " curves.",
            "Tarsil", MessageIcon::None);
}

void wndMain::mnuNewWorkspace_Click()
{
    m_workspace.New();
}

void wndMain::OpenMenu_Click()
{
    m_workspace.OpenWorkSpace();
}

void wndMain::mnuSaveWorkspace_Click()
{
    m_workspace.SaveWorkSpace();
}

void wndMain::popSetRefEvol_Click()
{
    m_explorer->SetAsRef();
}

void wndMain::popSelMultModes_Click()
{
    wndSelModes(*m_explorer, *m_evolPlot, m_userInterface, this).exec();
}

void wndMain::AddMenu_Click()
{
    m_document.load(mdlMain::OpenFileDialog(m_userInterface, mdlMain::evolutionFilter(), 1, true),
                    m_userInterface);
}

void wndMain::ImportMenu_Click()
{
    importResults(mdlMain::OpenFileDialog(m_userInterface, dlgImport::fileFilter, 1, true));
}

/// Adds the files to the dialog if it is open. Closing it deletes it with everything it has read.
void wndMain::importResults(const std::vector<std::string>& paths)
{
    if (paths.empty())
        return;
    if (m_import) {
        m_import->addFiles(paths);
        return;
    }
    auto dialog = std::make_unique<dlgImport>(m_document, m_userInterface, m_store, this);
    if (!dialog->addFiles(paths))
        return;
    m_import = std::move(dialog);
    connect(m_import.get(), &QDialog::finished, this,
            [this] { m_import.release()->deleteLater(); });
    m_import->open();
}

/// Opens the files passed by another program: a workspace replaces the document, other files are
/// added to it, and the last aircraft file becomes that of the options.
void wndMain::open(const std::vector<std::string>& paths)
{
    const auto workspace = mentionOf(paths, workspaceExtension);
    if (workspace != paths.end()) {
        openWorkspace(*workspace);
        return;
    }
    if (nameEvolutions(paths))
        m_document.load(withoutOthers(paths), m_userInterface);
    m_document.history().note(tr("Add Modal Evolution"));
    useAircraftFileAmong(paths);
    importResults(outputsAmong(paths));
}

void wndMain::useAircraftFileAmong(const std::vector<std::string>& paths)
{
    const auto file = std::find_if(paths.rbegin(), paths.rend(), isAircraftFile);
    if (file == paths.rend())
        return;
    options().useAircraftFile(*file);
    m_document.history().note(tr("Aircraft File"));
    m_userInterface.showNote("Aircraft file: " + *file);
}

void wndMain::openWorkspace(const std::string& path)
{
    if (m_workspace.mayLeave())
        m_workspace.OpenWorkSpace(path);
}

void wndMain::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFiles(*event->mimeData()).empty())
        event->acceptProposedAction();
}

/// The source program waits until the drop event ends, so dialogs are opened afterwards.
void wndMain::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    QMetaObject::invokeMethod(
        this,
        [this, paths = droppedFiles(*event->mimeData())] {
            commitEdits();
            m_userInterface.beginCommand();
            guarded(m_userInterface, "wndMain", [&] { open(paths); });
            m_recent->followWorkspace();
        },
        Qt::QueuedConnection);
}

void wndMain::ExportMenu_Click()
{
    std::vector<const AeMode*> modes;
    for (const PlotRow& row : activePlot().rows().all()) {
        if (row.hasMode())
            modes.push_back(row.series.Mode);
    }
    showLeftOutRows({&activePlot()}, "the mixed modal evolution", m_userInterface);
    mdlMix::exportMixed(modes, m_userInterface);
}

void wndMain::writeDocument()
{
    m_reportDocument.run();
}

void wndMain::showPrint()
{
    if (!m_print)
        m_print = std::make_unique<PrintDialog>(m_document, m_userInterface, this);
    m_print->open();
}

/// Plots that were never shown get the size of the window first.
void wndMain::savePictures()
{
    m_evolPlot->fitAll();
    const std::string folder =
        m_document.path().empty() ? m_reportFolder.toStdString() : folderOf(m_document.path());
    saveAllPictures(m_document.plots(), folder, m_userInterface);
}

void wndMain::QuitMenu_Click()
{
    close();
}

void wndMain::mnuUndo_Click()
{
    const QString name = m_document.history().steps().undoText();
    m_document.history().undo();
    m_userInterface.showNote(tr("Undone: %1").arg(name).toStdString());
}

void wndMain::mnuRedo_Click()
{
    const QString name = m_document.history().steps().redoText();
    m_document.history().redo();
    m_userInterface.showNote(tr("Redone: %1").arg(name).toStdString());
}

void wndMain::mnuDataControl_Click()
{
    m_frames.data->bringBack();
}

void wndMain::mnuModalEvolExplorer_Click()
{
    m_frames.explorer->bringBack();
}

void wndMain::mnuVgfPlot_Click()
{
    m_frames.plot->bringBack();
}

void wndMain::mnuSetScale_Click()
{
    dlgPlotProp(activePlot(), m_userInterface, this).exec();
}

void wndMain::breakCurves()
{
    EvmPlot& plot = activePlot();
    m_document.history().change(tr("Break Curves at Jumps"), [&plot] {
        plot.properties().setBreaksAtJumps(!plot.properties().breaksAtJumps());
    });
}

void wndMain::mnuAddRef_Click()
{
    if (!m_refSpeed)
        m_refSpeed = std::make_unique<dlgRefSpeed>(m_document, m_userInterface, this);
    m_refSpeed->show();
    m_refSpeed->raise();
    m_refSpeed->activateWindow();
}

void wndMain::mnuClearRef_Click()
{
    activePlot().references().RemoveRef();
}

void wndMain::mnuAddDamp_Click()
{
    if (!m_dampLine)
        m_dampLine = std::make_unique<dlgDampLine>(m_document, m_userInterface, this);
    m_dampLine->show();
    m_dampLine->raise();
    m_dampLine->activateWindow();
}

void wndMain::mnuClearDamp_Click()
{
    activePlot().references().RemoveDampLine();
}

void wndMain::mnuFlutCalc_Click()
{
    m_report.run(activePlot(), m_document.airplane(), m_reportFolder);
}

void wndMain::showStability()
{
    if (!m_stability)
        connectStability();
    m_stability->show();
    m_stability->raise();
    m_stability->activateWindow();
}

void wndMain::connectStability()
{
    m_stability = std::make_unique<wndStability>(m_document, m_userInterface, this);
    restoreWindow(*m_stability, m_memory);
    m_stability->addActions({m_undo, m_redo}); // so that their keys work there
    connect(m_stability.get(), &wndStability::pointedOut, m_evolPlot, &wndEvolPlot::highlight);
    connect(m_stability.get(), &wndStability::signsChanged, m_evolPlot, &wndEvolPlot::showSigns);
    connect(m_evolPlot, &wndEvolPlot::signClicked, m_stability.get(), &wndStability::chooseSign);
    connect(m_stability.get(), &wndStability::modeChosen, m_data, &wndData::selectCurve);
    connect(m_stability.get(), &wndStability::exchangeWanted, this,
            [this](const EVM& evolution, const ModeExchange& exchange) {
                m_userInterface.beginCommand();
                guarded(m_userInterface, "wndMain",
                        [&] { m_tracking.exchange(evolution, exchange); });
            });
}

void wndMain::showTrend()
{
    if (!m_trend) {
        m_trend = std::make_unique<TrendWindow>(m_document, m_userInterface, this);
        connect(m_explorer, &wndEvolExplorer::ticksChanged, m_trend.get(),
                [this] { showTickedInTrend(); });
    }
    showTickedInTrend();
    m_trend->show();
    m_trend->raise();
    m_trend->activateWindow();
}

void wndMain::showTickedInTrend()
{
    const std::vector<EVM*> ticked = m_explorer->tickedEvolutions();
    m_trend->showEvolutions({ticked.begin(), ticked.end()});
}

void wndMain::trackModes()
{
    const std::vector<EVM*> evolutions = m_explorer->selectedEvolutions();
    if (evolutions.empty())
        m_userInterface.showMessage("Please select a modal evolution.", "Tarsil",
                                    MessageIcon::Exclamation);
    for (std::size_t i = 0; i < evolutions.size(); ++i) {
        if (m_tracking.track(*evolutions[i]))
            continue;
        m_userInterface.showNote("Stopped: " + std::to_string(i) + " of "
                                 + std::to_string(evolutions.size()) + " evolutions were tracked");
        return;
    }
}

void wndMain::tickAll()
{
    m_explorer->tickShown(true);
}

void wndMain::tickNone()
{
    m_explorer->tickShown(false);
}

dlgOptions& wndMain::options()
{
    if (!m_options)
        m_options = std::make_unique<dlgOptions>(m_document, m_userInterface, m_store, this);
    return *m_options;
}

void wndMain::mnuOptions_Click()
{
    options().show();
    options().raise();
    options().activateWindow();
}

void wndMain::mnuDefLayout_Click()
{
    wndDefLayout();
}

void wndMain::TileVertMenu_Click()
{
    tileVertically(frames(), innerSize());
}

void wndMain::TileHorizMenu_Click()
{
    tileHorizontally(frames(), innerSize());
}

/// Only "Edit Mode", the third panel, reacts.
void wndMain::stBar_PanelClick(int panel)
{
    constexpr int editMode = 3;
    if (panel != editMode)
        return;
    m_userInterface.beginCommand();
    guarded(m_userInterface, "wndMain", [this] {
        EvmPlot& plot = activePlot();
        plot.texts().setEditMode(!plot.texts().EditMode());
        m_statusPanels->setEditMode(plot.texts().EditMode());
    });
}

/// Options that cannot be written are reported but do not prevent closing.
void wndMain::closeEvent(QCloseEvent* event)
{
    commitEdits();
    if (!m_workspace.mayLeave()) {
        event->ignore();
        return;
    }
    if (m_options)
        guarded(m_userInterface, "wndMain", [this] { m_options->SetOptReg(); });
    keepLayout();
    closeDialogs();
    m_recovery->remove();
    m_recovery.reset();
    event->accept();
}

void wndMain::closeDialogs()
{
    m_refSpeed.reset();
    m_dampLine.reset();
    m_stability.reset();
    m_trend.reset();
    m_options.reset();
    m_import.reset();
    m_print.reset();
    m_guide.reset();
}

} // namespace tarsil
