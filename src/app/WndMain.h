#pragma once

#include "app/ChildFrame.h"
#include "app/FlutterReportCommand.h"
#include "model/Session.h"
#include "runtime/UserInterface.h"

#include <QMainWindow>

#include <memory>
#include <span>
#include <string>
#include <vector>

class QMdiArea;
class QMenu;

namespace tarsil {

class StatusPanels;
class dlgDampLine;
class dlgRefSpeed;
class wndEvolPlot;

/// The main window: menus, pop-up menus, status bar, and the three child windows. It owns what
/// lives for the whole run, and has one implementation of each command, which menu items and their
/// pop-up twins share.
class wndMain : public QMainWindow
{
    Q_OBJECT

public:
    /// `userInterface` must outlive the window.
    explicit wndMain(UserInterface& userInterface, FlutterReportCommand::FileOpener opener);
    ~wndMain() override;

    /// Shows the child windows in the default layout, makes the first plot active, and acts on the
    /// command line: one that holds ".tsw" anywhere names a workspace, otherwise one that holds
    /// ".evm" or ".ev2" names evolutions to load. An error is reported, and the window stays.
    void MDIForm_Load(const std::vector<std::string>& arguments);

    /// The default layout of the child windows.
    void wndDefLayout();

    StatusPanels& stBar() { return *m_statusPanels; }
    wndEvolPlot& evolPlot() { return *m_evolPlot; }
    Session& session() { return m_session; }
    QMenu* popEvmPlot() { return m_plotMenu; }

    /// Where flutter reports go: the user's documents, unless told otherwise.
    void setReportFolder(const QString& folder) { m_reportFolder = folder; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    using Handler = void (wndMain::*)();

    /// One item of a menu: its name, its caption, the command behind it (none yet when it is null),
    /// and its key.
    struct MenuItem
    {
        const char* name;
        const char* caption;
        Handler handler = nullptr;
        const char* key = "";
    };

    void makeChildWindows();
    void makeMenuBar();
    void makePopups();
    void makeHelpKey();
    void fillMenu(QMenu& menu, std::span<const MenuItem> items);
    void run(Handler handler);

    void AddMenu_Click();
    void ExportMenu_Click();
    void QuitMenu_Click();
    void mnuDataControl_Click();
    void mnuModalEvolExplorer_Click();
    void mnuVgfPlot_Click();
    void mnuSetScale_Click();
    void mnuAddRef_Click();
    void mnuClearRef_Click();
    void mnuAddDamp_Click();
    void mnuClearDamp_Click();
    void mnuFlutCalc_Click();
    void mnuDefLayout_Click();
    void TileVertMenu_Click();
    void TileHorizMenu_Click();
    void showHelp();
    void stBar_PanelClick(int panel);

    void load(const std::vector<std::string>& paths);
    class EvmPlot& activePlot() const;
    QSize innerSize() const;
    std::vector<ChildFrame*> frames() const;

    UserInterface& m_userInterface;
    Session m_session;
    FlutterReportCommand m_report;
    QString m_reportFolder;
    QMdiArea* m_area;
    StatusPanels* m_statusPanels;
    wndEvolPlot* m_evolPlot = nullptr;
    ChildFrames m_frames {};
    QMenu* m_plotMenu = nullptr;
    QMenu* m_explorerMenu = nullptr;
    std::unique_ptr<dlgRefSpeed> m_refSpeed; ///< made when it is first wanted
    std::unique_ptr<dlgDampLine> m_dampLine;
};

} // namespace tarsil
