// The menus of the main window.

#include "app/WndMain.h"

#include <QMenu>
#include <QMenuBar>

#include <array>

namespace tarsil {

void wndMain::makeMenuBar()
{
    struct Menu
    {
        const char* name;
        const char* caption;
        std::vector<MenuItem> items;
    };
    const std::array<Menu, 5> menus = {{
        {"FileMenu",
         "&File",
         {{"mnuNewWorkspace", "&New Workspace", nullptr, "Ctrl+N"},
          {"OpenMenu", "&Open Workspace ...", nullptr, "Ctrl+O"},
          {"mnuSaveWorkspace", "&Save Worspace", nullptr, "Ctrl+S"},
          {"AddMenu", "&Add Modal Evolution ...", &wndMain::AddMenu_Click, "Ctrl+Shift+O"},
          {"ExportMenu", "&Export Mix File ...", &wndMain::ExportMenu_Click},
          {"QuitMenu", "Quit", &wndMain::QuitMenu_Click, "Ctrl+Q"}}},
        {"mnuView",
         "&View",
         {{"mnuDataControl", "Data Control", &wndMain::mnuDataControl_Click},
          {"mnuModalEvolExplorer", "Modal Evolution Explorer",
           &wndMain::mnuModalEvolExplorer_Click},
          {"mnuVgfPlot", "V-g-f Plot", &wndMain::mnuVgfPlot_Click}}},
        {"mnuFormat", "&Format", {{"mnuSetScale", "Set Scale", &wndMain::mnuSetScale_Click}}},
        {"mnuTools",
         "&Tools",
         {{"mnuAddRef", "Add Reference Speed ...", &wndMain::mnuAddRef_Click},
          {"mnuClearRef", "Clear Reference Speeds", &wndMain::mnuClearRef_Click},
          {"mnuAddDamp", "Add Damping Line ...", &wndMain::mnuAddDamp_Click},
          {"mnuClearDamp", "Clear Damping Lines", &wndMain::mnuClearDamp_Click},
          {"mnuFlutCalc", "Calculate Flutter Speeds", &wndMain::mnuFlutCalc_Click},
          {"mnuOptions", "Options ..."}}},
        {"WindowsMenu",
         "&Window",
         {{"mnuDefLayout", "Defalut Layout", &wndMain::mnuDefLayout_Click},
          {"TileVertMenu", "Tile Vertically", &wndMain::TileVertMenu_Click},
          {"TileHorizMenu", "Tile Horizontally", &wndMain::TileHorizMenu_Click}}},
    }};
    for (const Menu& entry : menus) {
        QMenu* const menu = menuBar()->addMenu(QString::fromLatin1(entry.caption));
        menu->setObjectName(QString::fromLatin1(entry.name));
        fillMenu(*menu, entry.items);
    }
}

void wndMain::makePopups()
{
    const auto popup = [this](QMenu* parent, const char* name, const char* caption,
                              const std::vector<MenuItem>& items) {
        QMenu* const menu = parent == nullptr ? new QMenu(QString::fromLatin1(caption), this)
                                              : parent->addMenu(QString::fromLatin1(caption));
        menu->setObjectName(QString::fromLatin1(name));
        fillMenu(*menu, items);
        return menu;
    };
    m_plotMenu = popup(nullptr, "popEvmPlot", "EvmPlot", {});
    popup(m_plotMenu, "popFormat", "Format",
          {{"popSetScale", "Set Scale", &wndMain::mnuSetScale_Click}});
    popup(m_plotMenu, "popTools", "Tools",
          {{"popAddRef", "Add Reference Speed ...", &wndMain::mnuAddRef_Click},
           {"popClearRef", "Clear Reference Speeds", &wndMain::mnuClearRef_Click},
           {"popAddDamp", "Add Damping Line ...", &wndMain::mnuAddDamp_Click},
           {"popClearDamp", "Clear Damping Lines", &wndMain::mnuClearDamp_Click},
           {"popFlutCalc", "Calculate Flutter Speeds", &wndMain::mnuFlutCalc_Click}});
    m_explorerMenu = popup(
        nullptr, "popEvolExplorer", "EvolExplorer",
        {{"popSetRefEvol", "Set as reference"}, {"popSelMultModes", "Select multiple modes"}});
}

/// An item without a command is there, and grey.
void wndMain::fillMenu(QMenu& menu, std::span<const MenuItem> items)
{
    for (const MenuItem& item : items) {
        QAction* const action = menu.addAction(QString::fromLatin1(item.caption));
        action->setObjectName(QString::fromLatin1(item.name));
        action->setShortcut(QKeySequence(QString::fromLatin1(item.key)));
        action->setEnabled(item.handler != nullptr);
        if (item.handler != nullptr)
            connect(action, &QAction::triggered, this,
                    [this, handler = item.handler] { run(handler); });
    }
}

void wndMain::makeHelpKey()
{
    auto* const help = new QAction(tr("Help"), this);
    help->setObjectName(QStringLiteral("help"));
    help->setShortcut(QKeySequence::HelpContents);
    connect(help, &QAction::triggered, this, [this] { run(&wndMain::showHelp); });
    addAction(help);
}

void wndMain::showHelp()
{
    m_userInterface.showMessage(
        "Ctrl+Shift+O  adds modal evolutions\n"
        "Ctrl+C  on a plot copies its picture\n"
        "Ctrl+Q  ends the program\n\n"
        "Text boxes of a plot: click and drag or use the arrow keys to move one (Shift for ten "
        "pixels), double click or F2 to edit it.\n"
        "Right button on a plot: its scales, reference speeds, damping lines and flutter speeds.\n"
        "Rest the pointer on a plot to read the nearest curve.",
        "Tarsil", MessageIcon::None);
}

} // namespace tarsil
