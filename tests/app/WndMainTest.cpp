// SPDX-License-Identifier: Apache-2.0

// The main window: start-up, layout, menus, status bar, shut-down.

#include "app/WndMainFixture.h"

#include <QDialog>
#include <QLabel>
#include <QMenuBar>

#include <gmock/gmock.h>

#include <set>

using namespace tarsil;
using test::sample;
using test::WndMainTest;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

/// Captions of the items of a menu.
std::vector<std::string> captionsOf(const QMenu& menu)
{
    std::vector<std::string> captions;
    for (const QAction* action : menu.actions())
        captions.push_back(action->text().toStdString());
    return captions;
}

/// The mnemonics of the items of a menu or menu bar.
std::vector<QChar> mnemonicsOf(const QList<QAction*>& actions)
{
    std::vector<QChar> letters;
    for (const QAction* action : actions) {
        const qsizetype mnemonic = action->text().indexOf(u'&');
        if (mnemonic >= 0)
            letters.push_back(action->text()[mnemonic + 1].toLower());
    }
    return letters;
}

} // namespace

TEST_F(WndMainTest, hasItsCaptionAndAnswersToItsName)
{
    EXPECT_EQ(window.windowTitle().toStdString(), "Tarsil 4.0");
    EXPECT_EQ(window.objectName().toStdString(), "wndMain");
}

TEST_F(WndMainTest, hasTheMenusLetterForLetter)
{
    const auto menu = [this](const char* name) -> const QMenu& {
        return *window.menuBar()->findChild<QMenu*>(QString::fromLatin1(name));
    };
    EXPECT_THAT(captionsOf(menu("FileMenu")),
                ElementsAre("&New Workspace", "&Open Workspace ...", "&Save Worspace",
                            "&Add Modal Evolution ...", "&Import Solver Results ...",
                            "&Export Mix File ...", "&Write Report ...", "&Print Plots ...",
                            "Save All Pics ...", "&Recent Workspaces", "Re&cent Modal Evolutions",
                            "Quit"));
    EXPECT_THAT(captionsOf(menu("EditMenu")),
                ElementsAre("&Undo", "&Redo", "", "&Hide", "&Show", "Show &All Hidden"));
    EXPECT_THAT(captionsOf(menu("mnuView")),
                ElementsAre("Data Control", "Modal Evolution Explorer", "V-g-f Plot"));
    EXPECT_THAT(captionsOf(menu("mnuFormat")), ElementsAre("Set Scale", "Break Curves at Jumps"));
    EXPECT_THAT(captionsOf(menu("mnuTools")),
                ElementsAre("Add Reference Speed ...", "Clear Reference Speeds",
                            "Add Damping Line ...", "Clear Damping Lines",
                            "Calculate Flutter Speeds", "Stability ...", "Flutter Trend ...",
                            "Options ..."));
    EXPECT_THAT(captionsOf(menu("WindowsMenu")),
                ElementsAre("Defalut Layout", "Tile Vertically", "Tile Horizontally"));
    std::vector<std::string> bar;
    for (const QAction* entry : window.menuBar()->actions())
        bar.push_back(entry->text().toStdString());
    EXPECT_THAT(bar,
                ElementsAre("&File", "&View", "&Format", "&Tools", "&Window", "&Edit", "&Help"));
    EXPECT_THAT(captionsOf(menu("HelpMenu")),
                ElementsAre("&Guide", "&Keys", "Open &Samples", "&About Tarsil"));
}

TEST_F(WndMainTest, hasThePopupsOfPlotAndExplorer)
{
    EXPECT_THAT(captionsOf(*window.popEvmPlot()),
                ElementsAre("Format", "Tools", "Show &All Hidden"));
    const auto* const tools = window.findChild<QMenu*>(QStringLiteral("popTools"));
    EXPECT_THAT(captionsOf(*tools),
                ElementsAre("Add Reference Speed ...", "Clear Reference Speeds",
                            "Add Damping Line ...", "Clear Damping Lines",
                            "Calculate Flutter Speeds", "Stability ..."));
    const auto* const explorer = window.findChild<QMenu*>(QStringLiteral("popEvolExplorer"));
    EXPECT_EQ(explorer->title().toStdString(), "EvolExplorer");
    EXPECT_THAT(captionsOf(*explorer),
                ElementsAre("Set as reference", "Select multiple modes", "Track Modes", "Tick All",
                            "Tick None"));
    EXPECT_EQ(window.popEvmPlot()->title().toStdString(), "EvmPlot");
}

TEST_F(WndMainTest, hasNoLetterOrKeyTwiceInAMenu)
{
    std::set<QString> keys;
    for (const QMenu* menu : window.menuBar()->findChildren<QMenu*>()) {
        const std::vector<QChar> letters = mnemonicsOf(menu->actions());
        EXPECT_EQ(std::set<QChar>(letters.begin(), letters.end()).size(), letters.size())
            << menu->objectName().toStdString();
        for (const QAction* action : menu->actions()) {
            const QString key = action->shortcut().toString();
            EXPECT_TRUE(key.isEmpty() || keys.insert(key).second) << key.toStdString();
        }
    }
    for (const char* key : {"Ctrl+N", "Ctrl+O", "Ctrl+S", "Ctrl+Q"})
        EXPECT_TRUE(keys.count(QString::fromLatin1(key))) << key;
}

TEST_F(WndMainTest, startsWithTheChildWindowsInTheDefaultLayout)
{
    load();
    const QSize size = inner();
    EXPECT_EQ(frame("wndEvolExplorer").geometry(),
              QRect(0, 0, size.width() / 2, size.height() / 4));
    EXPECT_EQ(frame("wndEvolPlot").geometry(),
              QRect(size.width() / 2, 0, size.width() - size.width() / 2, size.height()));
    const int top = size.height() / 4;
    EXPECT_EQ(frame("wndData").geometry(), QRect(0, top, size.width() / 2, size.height() - top));
    for (const char* name : {"wndEvolExplorer", "wndEvolPlot", "wndData"})
        EXPECT_TRUE(frame(name).isVisible()) << name;
    EXPECT_EQ(frame("wndData").windowTitle().toStdString(), "Data Control");
    EXPECT_EQ(frame("wndEvolExplorer").windowTitle().toStdString(), "Modal Evolutions Explorer");
    EXPECT_EQ(frame("wndEvolPlot").windowTitle().toStdString(), "V-g-f Plot - Plot1");
    plot().properties().setCaption(QStringLiteral("Clean"));
    EXPECT_EQ(frame("wndEvolPlot").windowTitle().toStdString(), "V-g-f Plot - Clean");
    EXPECT_EQ(frame("wndEvolPlot").accessibleName().toStdString(), "V-g-f Plot - Clean");
}

TEST_F(WndMainTest, keepsTheQuarterOfTheExplorerOnATinyFrame)
{
    load();
    window.resize(window.minimumSizeHint().expandedTo(QSize(220, 180)));
    QApplication::processEvents();
    choose("mnuDefLayout");
    const int height = inner().height();
    EXPECT_EQ(frame("wndEvolExplorer").height(), height / 4);
    EXPECT_EQ(frame("wndData").height(), height - height / 4);
}

TEST_F(WndMainTest, startsWithTheFirstPlotActive)
{
    EXPECT_EQ(window.evolPlot().ActivePlot(), nullptr);
    load();
    ASSERT_NE(window.evolPlot().ActivePlot(), nullptr);
    EXPECT_EQ(plot().properties().Caption(), QStringLiteral("Plot1"));
}

TEST_F(WndMainTest, reportsThatAPlotAcceptsNoMoreCurves)
{
    std::vector<std::string> many;
    const std::string text = test::fileBytes(sample("goland_clean_m040.ev2"));
    for (int i = 0; i < 80; ++i) // of seven modes each
        many.push_back(folder.write("many" + std::to_string(i) + ".ev2", text));
    load(many);
    EXPECT_EQ(window.document().evolutions().all().size(), 80U);
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].text,
              "80 modal evolutions are loaded. The first 71 are drawn: a plot is limited to 500 "
              "curves."); // 71 x 7 = 497 of 500
    ASSERT_FALSE(user.progress.empty());
    EXPECT_EQ(user.progress.back(), std::pair(std::size_t {80}, std::size_t {80}));
}

TEST_F(WndMainTest, loadsTheEvolutionsOfTheCommandLine)
{
    load({sample("goland_clean_m040.ev2"), sample("goland_clean_m050.ev2")});
    EXPECT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_FALSE(plot().SeriesCollection().empty());
    EXPECT_THAT(user.statuses, ::testing::Contains("Open Modal Evolutions. Please Wait ..."));
    EXPECT_EQ(user.statuses.back(), "Ready");
}

TEST_F(WndMainTest, startsEmptyWithACommandLineThatItDoesNotKnow)
{
    load({"notes.txt"});
    EXPECT_TRUE(window.document().evolutions().all().empty());
    EXPECT_TRUE(user.messages.empty());
    EXPECT_TRUE(frame("wndEvolPlot").isVisible());
}

TEST_F(WndMainTest, opensOnlyTheWorkspaceOfACommandLineThatNamesBoth)
{
    load({sample("goland_clean_m040.ev2"), "case.tsw"});
    EXPECT_TRUE(window.document().evolutions().all().empty());
}

TEST_F(WndMainTest, tilesTheShownWindows)
{
    load();
    choose("TileHorizMenu");
    const QSize size = inner();
    EXPECT_EQ(frame("wndEvolExplorer").geometry(), QRect(0, 0, size.width(), size.height() / 3));
    EXPECT_EQ(frame("wndEvolPlot").geometry().bottom(), size.height() - 1);
    frame("wndData").close();
    choose("TileVertMenu");
    EXPECT_EQ(frame("wndEvolExplorer").geometry(), QRect(0, 0, size.width() / 2, size.height()));
    EXPECT_EQ(frame("wndEvolPlot").geometry().left(), size.width() / 2);
    EXPECT_FALSE(frame("wndData").isVisible());
}

TEST_F(WndMainTest, bringsAClosedChildWindowBackWithWhatItHeld)
{
    load({sample("goland_clean_m040.ev2")});
    const std::size_t curves = plot().SeriesCollection().size();
    frame("wndEvolPlot").close();
    EXPECT_FALSE(frame("wndEvolPlot").isVisible());
    choose("mnuVgfPlot");
    EXPECT_TRUE(frame("wndEvolPlot").isVisible());
    EXPECT_EQ(plot().SeriesCollection().size(), curves);
    frame("wndData").close();
    choose("mnuDataControl");
    EXPECT_TRUE(frame("wndData").isVisible());
    frame("wndEvolExplorer").close();
    choose("mnuModalEvolExplorer");
    EXPECT_TRUE(frame("wndEvolExplorer").isVisible());
}

TEST_F(WndMainTest, keepsThePlotInTheSizeOfItsWindow)
{
    load();
    choose("TileHorizMenu");
    EXPECT_EQ(plot().size(), window.evolPlot().size());
}

TEST_F(WndMainTest, togglesTheEditModeByItsPanelOnly)
{
    load();
    Q_EMIT window.stBar().panelClicked(1);
    Q_EMIT window.stBar().panelClicked(2);
    EXPECT_FALSE(plot().texts().EditMode());
    Q_EMIT window.stBar().panelClicked(3);
    EXPECT_TRUE(plot().texts().EditMode());
    Q_EMIT window.stBar().panelClicked(3);
    EXPECT_FALSE(plot().texts().EditMode());
}

TEST_F(WndMainTest, saysInTheStatusBarWhereReferenceSpeedsAreDrawnElsewhere)
{
    load();
    const QString note = QStringLiteral(
        "Reference speeds are drawn 100 knots too far right: the speed axis begins at 100");
    const auto shown = [this] {
        QApplication::processEvents();
        return window.findChild<QLabel*>(QStringLiteral("stBar_PlotNote"))->text();
    };
    plot().SetScale(100, 700, 0, 50, 0, -0.25F);
    EXPECT_EQ(shown(), QString());
    plot().references().AddRef(352.1F, QStringLiteral("Vd"));
    EXPECT_EQ(shown(), note);
    window.stBar().setNote(QStringLiteral("The picture is in ..."));
    EXPECT_EQ(shown(), note);
    EvmPlot& first = plot();
    window.evolPlot().ActivatePlot(&window.evolPlot().AddPlot({}));
    EXPECT_EQ(shown(), QString()) << "the other plot has none";
    window.evolPlot().ActivatePlot(&first);
    EXPECT_EQ(shown(), note);
    plot().SetScale(0, 700, 0, 50, 0, -0.25F);
    EXPECT_EQ(shown(), QString());
}

TEST_F(WndMainTest, leavesNoDialogWhenItQuits)
{
    load();
    choose("mnuAddRef");
    choose("mnuAddDamp");
    choose("QuitMenu");
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(window.findChildren<QDialog*>().isEmpty());
}

TEST_F(WndMainTest, showsThePopupOfThePlotWhereTheUserAsksForIt)
{
    load();
    Q_EMIT window.evolPlot().plotMenuRequested({50, 50}, false);
    EXPECT_TRUE(window.popEvmPlot()->isVisible());
    window.popEvmPlot()->close();
}

TEST_F(WndMainTest, reportsAPlotThatCannotBeDrawnAndGoesOn)
{
    load();
    plot().properties().setVthicks(0);
    window.evolPlot().repaint();
    QApplication::processEvents();
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text, HasSubstr("Error # 11 was generated by "));
    EXPECT_THAT(user.messages[0].text, HasSubstr(" in Module wndEvolPlot\r"));
    EXPECT_EQ(user.messages[0].title, "Error");
    choose("mnuClearRef");
    EXPECT_TRUE(window.isVisible());
}
