// SPDX-License-Identifier: Apache-2.0

// The focus after a message box of a dialog, with real boxes and windows.

#include "app/QtUserInterface.h"
#include "app/StatusPanels.h"
#include "app/WndMain.h"
#include "datacontrol/SeriesGridModel.h"
#include "datacontrol/SeriesGridView.h"
#include "plotwindow/WndEvolPlot.h"
#include "support/FormParts.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <QAction>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

using namespace tarsil;
using test::partOf;

namespace {

class KeyboardAfterBoxes : public ::testing::Test
{
protected:
    KeyboardAfterBoxes()
        : window(
            user, [](const QString&) { return true; }, OptionsStore(folder.file("tarsil.ini")))
    {
        user.attach(&window, &window.stBar());
        window.resize(1000, 700);
        window.show();
        window.MDIForm_Load({test::sample("goland_clean_m040.ev2")});
        window.activateWindow();
        choose("mnuDataControl"); // the grid has the focus
    }

    void choose(const char* command)
    {
        window.findChild<QAction*>(QString::fromLatin1(command))->trigger();
        QApplication::processEvents();
    }

    /// Opens a dialog by its menu item.
    QDialog& open(const char* command, const char* name)
    {
        choose(command);
        auto& dialog = partOf<QDialog>(window, name);
        dialog.activateWindow();
        QApplication::processEvents();
        EXPECT_EQ(QApplication::activeWindow(), &dialog);
        return dialog;
    }

    /// Replaces the text of an input, key by key, and closes each box that appears.
    void typeOver(QLineEdit& input, const char* text)
    {
        input.setFocus();
        input.selectAll();
        for (const char* key = text; *key != '\0'; ++key) {
            closeBoxSoon();
            QKeyEvent event(QEvent::KeyPress, 0, Qt::NoModifier, QString(QLatin1Char(*key)));
            QApplication::sendEvent(&input, &event);
            QApplication::processEvents();
        }
    }

    /// Closes the box that is open when the event loop runs next.
    void closeBoxSoon()
    {
        QTimer::singleShot(0, &window, [this] { closeBox(); });
    }

    void closeBox()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        ++boxes;
        window.activateWindow(); // as some window managers do when a dialog closes
        box->accept();
    }

    /// Presses a key in the widget that has the focus.
    static void press(Qt::Key key)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        test::press(*QApplication::focusWidget(), key);
        QApplication::processEvents();
    }

    std::size_t curves() { return window.evolPlot().ActivePlot()->SeriesCollection().size(); }

    test::TemporaryFolder folder;
    QtUserInterface user;
    wndMain window;
    int boxes = 0;
};

} // namespace

TEST_F(KeyboardAfterBoxes, isInTheSpeedThatWasNoNumber)
{
    const std::size_t before = curves();
    QDialog& dialog = open("mnuAddRef", "dlgRefSpeed");
    auto& speed = partOf<QLineEdit>(dialog, "posInp");
    typeOver(speed, "x300");
    closeBoxSoon();
    press(Qt::Key_Return);
    EXPECT_EQ(boxes, 1);
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(speed.text(), QStringLiteral("300"));
    partOf<QLineEdit>(dialog, "capInp").setFocus();
    speed.setText(QStringLiteral("fast"));
    closeBoxSoon();
    press(Qt::Key_Return);
    EXPECT_EQ(boxes, 2);
    EXPECT_EQ(QApplication::focusWidget(), &partOf<QLineEdit>(dialog, "capInp"));
    closeBoxSoon();
    partOf<QPushButton>(dialog, "AddRefBtn").setFocus();
    partOf<QPushButton>(dialog, "AddRefBtn").click();
    QApplication::processEvents();
    EXPECT_EQ(QApplication::focusWidget(), &speed);
    EXPECT_EQ(curves(), before);
}

TEST_F(KeyboardAfterBoxes, isInTheDampingThatIsNoNumber)
{
    const std::size_t before = curves();
    QDialog& dialog = open("mnuAddDamp", "dlgDampLine");
    auto& damping = partOf<QLineEdit>(dialog, "sdampInp");
    typeOver(damping, "0,3");
    EXPECT_EQ(boxes, 2) << "after the comma and after the 3";
    closeBoxSoon();
    press(Qt::Key_Backspace);
    EXPECT_EQ(boxes, 3) << "a comma makes no number";
    press(Qt::Key_Backspace);
    EXPECT_EQ(damping.text(), QStringLiteral("0"));
    EXPECT_EQ(boxes, 3);
    EXPECT_EQ(curves(), before);
}

TEST_F(KeyboardAfterBoxes, isInTheListOfOptionsThatIsNone)
{
    const std::size_t before = curves();
    QDialog& dialog = open("mnuOptions", "dlgOptions");
    auto& scale = partOf<QLineEdit>(dialog, "txtVgfScale");
    typeOver(scale, "x0|450|0|-0.25|0|20");
    closeBoxSoon();
    partOf<QPushButton>(dialog, "btnApply").setFocus();
    partOf<QPushButton>(dialog, "btnApply").click();
    QApplication::processEvents();
    EXPECT_EQ(boxes, 1);
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(scale.text(), QStringLiteral("0|450|0|-0.25|0|20"));
    EXPECT_EQ(curves(), before);
}

TEST_F(KeyboardAfterBoxes, isInTheCellWhoseModeWasNoNumber)
{
    const std::size_t before = curves();
    auto& grid = partOf<SeriesGridView>(window, "flxSerieViewer");
    grid.setCurrentIndex(grid.model()->index(0, static_cast<int>(SeriesColumn::Mode)));
    grid.edit(grid.currentIndex());
    test::openEditor(grid)->setText(QStringLiteral("x2"));
    QTimer closer; // the cell handles Return in the event loop, and the box opens there
    QObject::connect(&closer, &QTimer::timeout, &window, [this] { closeBox(); });
    closer.start();
    press(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(boxes, 1);
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), QStringLiteral("x2"));
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    press(Qt::Key_Return);
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(curves(), before);
    EXPECT_EQ(grid.model()->index(0, static_cast<int>(SeriesColumn::Mode)).data().toString(),
              QStringLiteral("2"));
}

TEST_F(KeyboardAfterBoxes, isInTheTreeWhenTheNameOfAPlotIsRefused)
{
    window.document().plots().add(QStringLiteral("wing"));
    auto& tree = partOf<QTreeWidget>(window, "tvwEvolExplorer");
    const QList<QTreeWidgetItem*> nodes =
        tree.findItems(QStringLiteral("wing"), Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(nodes.size(), 1);
    tree.setFocus();
    tree.setCurrentItem(nodes.front());
    tree.editItem(nodes.front());
    test::openEditor(tree)->setText(window.document().plots().first().properties().Caption());
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, &window, [this] { closeBox(); });
    closer.start();
    press(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(QApplication::focusWidget(), &tree);
}
