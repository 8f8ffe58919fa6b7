// SPDX-License-Identifier: Apache-2.0

// The menus of the main window.

#include "app/WndMain.h"

#include "app/PlotMenu.h"
#include "app/StepKeys.h"
#include "datacontrol/WndData.h"
#include "explorer/WndEvolExplorer.h"
#include "vgfplot/EvmPlot.h"

#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>

namespace tarsil {

namespace {

/// The caption of a command as the name of a step: "Set Scale".
QString stepName(const char* caption)
{
    QString name = QString::fromLatin1(caption);
    name.remove(u'&');
    name.remove(QStringLiteral(" ..."));
    return name;
}

/// A text in which nothing is taken for the letter of a key.
QString withoutMnemonic(QString text)
{
    return text.replace(u'&', QStringLiteral("&&"));
}

} // namespace

std::vector<wndMain::CommandMenu> wndMain::commandTable()
{
    return {fileMenu(),   viewMenu(), formatMenu(), toolsMenu(),
            windowMenu(), editMenu(), helpMenu()};
}

wndMain::CommandMenu wndMain::fileMenu()
{
    return {
        "FileMenu",
        "&File",
        {{"mnuNewWorkspace", nullptr, "&New Workspace", &wndMain::mnuNewWorkspace_Click, "Ctrl+N"},
         {"OpenMenu", nullptr, "&Open Workspace ...", &wndMain::OpenMenu_Click, "Ctrl+O"},
         {"mnuSaveWorkspace", nullptr, "&Save Worspace", &wndMain::mnuSaveWorkspace_Click,
          "Ctrl+S"},
         {"AddMenu", nullptr, "&Add Modal Evolution ...", &wndMain::AddMenu_Click, "Ctrl+Shift+O"},
         {"ImportMenu", nullptr, "&Import Solver Results ...", &wndMain::ImportMenu_Click},
         {"ExportMenu", nullptr, "&Export Mix File ...", &wndMain::ExportMenu_Click},
         {"writeDocument", nullptr, "&Write Report ...", &wndMain::writeDocument},
         {"printPlots", nullptr, "&Print Plots ...", &wndMain::showPrint, "Ctrl+P"},
         {"savePictures", nullptr, "Save All Pics ...", &wndMain::savePictures},
         {"QuitMenu", nullptr, "Quit", &wndMain::QuitMenu_Click, "Ctrl+Q"}}};
}

wndMain::CommandMenu wndMain::viewMenu()
{
    return {"mnuView",
            "&View",
            {{"mnuDataControl", nullptr, "Data Control", &wndMain::mnuDataControl_Click},
             {"mnuModalEvolExplorer", nullptr, "Modal Evolution Explorer",
              &wndMain::mnuModalEvolExplorer_Click},
             {"mnuVgfPlot", nullptr, "V-g-f Plot", &wndMain::mnuVgfPlot_Click}}};
}

wndMain::CommandMenu wndMain::formatMenu()
{
    return {"mnuFormat",
            "&Format",
            {{"mnuSetScale", "popSetScale", "Set Scale", &wndMain::mnuSetScale_Click},
             {"breakCurves", "popBreakCurves", "Break Curves at Jumps", &wndMain::breakCurves}},
            "popFormat",
            "Format"};
}

wndMain::CommandMenu wndMain::toolsMenu()
{
    return {
        "mnuTools",
        "&Tools",
        {{"mnuAddRef", "popAddRef", "Add Reference Speed ...", &wndMain::mnuAddRef_Click},
         {"mnuClearRef", "popClearRef", "Clear Reference Speeds", &wndMain::mnuClearRef_Click},
         {"mnuAddDamp", "popAddDamp", "Add Damping Line ...", &wndMain::mnuAddDamp_Click},
         {"mnuClearDamp", "popClearDamp", "Clear Damping Lines", &wndMain::mnuClearDamp_Click},
         {"mnuFlutCalc", "popFlutCalc", "Calculate Flutter Speeds", &wndMain::mnuFlutCalc_Click},
         {"stability", "popStability", "Stability ...", &wndMain::showStability},
         {"flutterTrend", nullptr, "Flutter Trend ...", &wndMain::showTrend},
         {"mnuOptions", nullptr, "Options ...", &wndMain::mnuOptions_Click}},
        "popTools",
        "Tools"};
}

wndMain::CommandMenu wndMain::windowMenu()
{
    return {"WindowsMenu",
            "&Window",
            {{"mnuDefLayout", nullptr, "Defalut Layout", &wndMain::mnuDefLayout_Click},
             {"TileVertMenu", nullptr, "Tile Vertically", &wndMain::TileVertMenu_Click},
             {"TileHorizMenu", nullptr, "Tile Horizontally", &wndMain::TileHorizMenu_Click}}};
}

wndMain::CommandMenu wndMain::editMenu()
{
    return {"EditMenu",
            "&Edit",
            {{"mnuUndo", nullptr, "&Undo", &wndMain::mnuUndo_Click, "Ctrl+Z"},
             {"mnuRedo", nullptr, "&Redo", &wndMain::mnuRedo_Click, "Ctrl+Shift+Z"}}};
}

wndMain::CommandMenu wndMain::helpMenu()
{
    return {"HelpMenu",
            "&Help",
            {{"showGuide", nullptr, "&Guide", &wndMain::showGuide},
             {"help", nullptr, "&Keys", &wndMain::showHelp, "F1"},
             {"openSamples", nullptr, "Open &Samples", &wndMain::openSamples},
             {"about", nullptr, "&About Tarsil", &wndMain::showAbout}}};
}

void wndMain::makeMenuBar()
{
    for (const CommandMenu& entry : commandTable()) {
        QMenu* const menu = menuBar()->addMenu(QString::fromLatin1(entry.caption));
        menu->setObjectName(QString::fromLatin1(entry.name));
        for (const Command& command : entry.commands)
            addCommand(*menu, command, command.name);
    }
    m_explorer->showKeyOfSave(findChild<QAction*>(QStringLiteral("mnuSaveWorkspace"))->shortcut());
    addRecentFiles();
    addHideActions();
    listPlots(*findChild<QMenu*>(QStringLiteral("WindowsMenu")), m_document.plots());
}

/// The same actions as in the pop-ups of plot and grid, so that the keyboard reaches them.
void wndMain::addHideActions()
{
    auto* const menu = findChild<QMenu*>(QStringLiteral("EditMenu"));
    menu->addSeparator();
    menu->addActions(m_data->hideActions());
}

/// Before "Quit", which stays the last entry.
void wndMain::addRecentFiles()
{
    auto* const menu = findChild<QMenu*>(QStringLiteral("FileMenu"));
    QAction* const quit = findChild<QAction*>(QStringLiteral("QuitMenu"));
    menu->insertMenu(quit, m_recent->workspaces());
    menu->insertMenu(quit, m_recent->evolutions());
}

void wndMain::makePopups()
{
    m_plotMenu = new QMenu(QStringLiteral("EvmPlot"), this);
    m_plotMenu->setObjectName(QStringLiteral("popEvmPlot"));
    for (const CommandMenu& entry : commandTable()) {
        if (entry.twin == nullptr)
            continue;
        QMenu* const menu = m_plotMenu->addMenu(QString::fromLatin1(entry.twinCaption));
        menu->setObjectName(QString::fromLatin1(entry.twin));
        for (const Command& command : entry.commands) {
            if (command.twin != nullptr)
                addCommand(*menu, {command.name, nullptr, command.caption, command.handler},
                           command.twin);
        }
    }
    m_curveMenu = new QMenu(QStringLiteral("EvmPlot"), this);
    m_curveMenu->setObjectName(QStringLiteral("popCurve"));
    m_curveMenu->addActions(m_plotMenu->actions());
    m_curveMenu->addSeparator();
    m_curveMenu->addActions(m_data->curveMenu().actions());
    m_plotMenu->addAction(m_data->hideActions().back()); // "Show All Hidden" needs no selection
    m_explorerMenu = new QMenu(QStringLiteral("EvolExplorer"), this);
    m_explorerMenu->setObjectName(QStringLiteral("popEvolExplorer"));
    addCommand(*m_explorerMenu, {"", nullptr, "Set as reference", &wndMain::popSetRefEvol_Click},
               "popSetRefEvol");
    addCommand(*m_explorerMenu,
               {"", nullptr, "Select multiple modes", &wndMain::popSelMultModes_Click},
               "popSelMultModes");
    addCommand(*m_explorerMenu, {"", nullptr, "Track Modes", &wndMain::trackModes},
               "popTrackModes");
    addCommand(*m_explorerMenu, {"", nullptr, "Tick All", &wndMain::tickAll}, "popTickAll");
    addCommand(*m_explorerMenu, {"", nullptr, "Tick None", &wndMain::tickNone}, "popTickNone");
}

void wndMain::addCommand(QMenu& menu, const Command& command, const char* name)
{
    QAction* const action = menu.addAction(QString::fromLatin1(command.caption));
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcut(QKeySequence(QString::fromLatin1(command.key)));
    connect(action, &QAction::triggered, this,
            [this, step = stepName(command.caption), handler = command.handler] {
                run(step, handler);
            });
    if (command.handler != &wndMain::breakCurves)
        return;
    action->setCheckable(true);
    connect(&menu, &QMenu::aboutToShow, action, [this, action] {
        const EvmPlot* const plot = m_document.plots().active();
        action->setChecked(plot != nullptr && plot->properties().breaksAtJumps());
    });
}

void wndMain::followHistory()
{
    m_undo = findChild<QAction*>(QStringLiteral("mnuUndo"));
    m_redo = findChild<QAction*>(QStringLiteral("mnuRedo"));
    connect(&m_document.history().steps(), &QUndoStack::indexChanged, this, [this] {
        showSteps();
        keepCopy();
    });
    qApp->installEventFilter(new StepKeys(this));
    showSteps();
}

/// The commands say what they would undo and make again: "Undo Set Scale".
void wndMain::showSteps()
{
    const QUndoStack& steps = m_document.history().steps();
    m_undo->setEnabled(steps.canUndo());
    m_undo->setText(tr("&Undo %1").arg(withoutMnemonic(steps.undoText())).trimmed());
    m_redo->setEnabled(steps.canRedo());
    m_redo->setText(tr("&Redo %1").arg(withoutMnemonic(steps.redoText())).trimmed());
}

} // namespace tarsil
