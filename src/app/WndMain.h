// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/ChildLayout.h"
#include "app/FlutterQuestions.h"
#include "app/FlutterReportCommand.h"
#include "app/RecentFiles.h"
#include "app/ReportDocumentCommand.h"
#include "app/TrackingCommands.h"
#include "app/WorkspaceCommands.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "document/RecoveryCopy.h"
#include "options/OptionsStore.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class QAction;
class QMdiArea;
class QMenu;

namespace tarsil {

class EVM;
class EvmPlot;
class StatusPanels;
class dlgDampLine;
class dlgImport;
class dlgOptions;
class dlgRefSpeed;
class PrintDialog;
class wndGuide;
class wndData;
class wndEvolExplorer;
class wndEvolPlot;
class wndStability;
class TrendWindow;

/// The main window: menus, pop-up menus, status bar, and three child windows. Owns the document.
/// Each command has one implementation, shared by its menu item and the item's twin in a pop-up.
class wndMain : public QMainWindow
{
    Q_OBJECT

public:
    /// `userInterface` must outlive the window. `store` holds the options.
    wndMain(UserInterface& userInterface, FlutterReportCommand::FileOpener opener,
            OptionsStore store);
    ~wndMain() override;

    /// Applies the options, shows the child windows in the default layout, or in that which the
    /// user has left instead, activates the first
    /// plot, and handles the command line: if an argument contains ".tsw", that workspace is
    /// opened; otherwise, if one contains the extension of a format, the evolutions are loaded and
    /// drawn. Other files are imported as solver outputs. Errors are reported, and the window stays
    /// open.
    void MDIForm_Load(const std::vector<std::string>& arguments);

    /// Arranges the child windows in the default layout.
    void wndDefLayout();

    /// Gives the window the size and position it had when the program last ended.
    void restoreSize();

    StatusPanels& stBar() { return *m_statusPanels; }
    wndEvolPlot& evolPlot() { return *m_evolPlot; }
    wndEvolExplorer& explorer() { return *m_explorer; }
    Document& document() { return m_document; }
    QMenu* popEvmPlot() { return m_plotMenu; }

    /// Sets the folder of flutter reports; initially the user's documents.
    void setReportFolder(const QString& folder) { m_reportFolder = folder; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    using Handler = void (wndMain::*)();

    /// A command of the menu bar: the name of its item; the name of the item's twin in the pop-up
    /// of the plot, if it has one; caption; handler; key.
    struct Command
    {
        const char* name;
        const char* twin;
        const char* caption;
        Handler handler;
        const char* key = "";
    };

    /// A menu of the menu bar, and its twin in the pop-up of the plot, if it has one.
    struct CommandMenu
    {
        const char* name;
        const char* caption;
        std::vector<Command> commands;
        const char* twin = nullptr;
        const char* twinCaption = nullptr;
    };

    static std::vector<CommandMenu> commandTable();
    static CommandMenu fileMenu();
    static CommandMenu viewMenu();
    static CommandMenu formatMenu();
    static CommandMenu toolsMenu();
    static CommandMenu windowMenu();
    static CommandMenu editMenu();
    static CommandMenu helpMenu();

    void makeChildWindows();
    void connectExplorer();
    void followMarks(const EvmPlot* before, const EvmPlot* now);
    void makeMenuBar();
    void makePopups();
    void addRecentFiles();
    void addHideActions();
    void connectRecentFiles();
    void runRecent(const std::function<void()>& opens);
    void closeDialogs();
    void addCommand(QMenu& menu, const Command& command, const char* name);
    void run(const QString& name, Handler handler);
    void followHistory();
    void keepCopy();
    void keepLayout();
    void showSteps();
    void commitEdits();

    void mnuNewWorkspace_Click();
    void OpenMenu_Click();
    void mnuSaveWorkspace_Click();
    void AddMenu_Click();
    void ImportMenu_Click();
    void ExportMenu_Click();
    void writeDocument();
    void showPrint();
    void savePictures();
    void QuitMenu_Click();
    void mnuUndo_Click();
    void mnuRedo_Click();
    void mnuDataControl_Click();
    void mnuModalEvolExplorer_Click();
    void mnuVgfPlot_Click();
    void mnuSetScale_Click();
    void breakCurves();
    void mnuAddRef_Click();
    void mnuClearRef_Click();
    void mnuAddDamp_Click();
    void mnuClearDamp_Click();
    void mnuFlutCalc_Click();
    void showStability();
    void connectStability();
    void showTrend();
    void showTickedInTrend();
    void trackModes();
    void tickAll();
    void tickNone();
    void mnuOptions_Click();
    void mnuDefLayout_Click();
    void TileVertMenu_Click();
    void TileHorizMenu_Click();
    void popSetRefEvol_Click();
    void popSelMultModes_Click();
    void showGuide();
    void showHelp();
    void openSamples();
    void showAbout();
    void stBar_PanelClick(int panel);

    void open(const std::vector<std::string>& paths);
    void useAircraftFileAmong(const std::vector<std::string>& paths);
    void importResults(const std::vector<std::string>& paths);
    void draw(const std::vector<EVM*>& evolutions);
    dlgOptions& options();
    EvmPlot& activePlot() const;
    void openWorkspace(const std::string& path);
    QSize innerSize() const;
    std::vector<ChildFrame*> frames() const;

    UserInterface& m_userInterface;
    Document m_document;
    WorkspaceCommands m_workspace;
    OptionsStore m_store;
    OptionsStore m_memory; ///< of the windows
    std::optional<RecoveryCopy> m_recovery; ///< until the program ends
    FlutterQuestions m_questions;
    FlutterReportCommand m_report;
    ReportDocumentCommand m_reportDocument;
    TrackingCommands m_tracking;
    QString m_reportFolder;
    QMdiArea* m_area;
    StatusPanels* m_statusPanels;
    wndEvolPlot* m_evolPlot = nullptr;
    wndEvolExplorer* m_explorer = nullptr;
    wndData* m_data = nullptr;
    ChildFrames m_frames {};
    std::unique_ptr<ChildLayout> m_layout;
    RecentFiles* m_recent = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QMenu* m_plotMenu = nullptr;
    QMenu* m_curveMenu = nullptr; ///< that of the plot and the commands on the selected curves
    QMenu* m_explorerMenu = nullptr;
    std::unique_ptr<dlgRefSpeed> m_refSpeed; ///< dialogs are created on first use
    std::unique_ptr<dlgDampLine> m_dampLine;
    std::unique_ptr<wndStability> m_stability;
    std::unique_ptr<TrendWindow> m_trend;
    std::unique_ptr<dlgOptions> m_options;
    std::unique_ptr<dlgImport> m_import; ///< while it is open
    std::unique_ptr<PrintDialog> m_print;
    std::unique_ptr<wndGuide> m_guide;
};

} // namespace tarsil
