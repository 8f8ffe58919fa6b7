// SPDX-License-Identifier: Apache-2.0

// Undo and redo as the user has them, in the main window.

#include "app/WndMainFixture.h"

#include "support/FormParts.h"

#include <QDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QTest>
#include <QTextEdit>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

using namespace tarsil;
using test::partOf;
using test::sample;
using test::WndMainTest;
using ::testing::IsEmpty;

namespace {

class Undo : public WndMainTest
{
protected:
    Undo() { load({sample("goland_clean_m040.ev2")}); }

    std::string undoText() { return action("mnuUndo").text().toStdString(); }
    std::string redoText() { return action("mnuRedo").text().toStdString(); }
    void mouse(QEvent::Type type, QPoint position)
    {
        QMouseEvent event(type, position, view().mapToGlobal(position), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view(), &event);
    }
    /// Makes an undo step by a dialog; the window is active after it.
    void addReferenceSpeed()
    {
        choose("mnuAddRef");
        auto& dialog = partOf<QDialog>(window, "dlgRefSpeed");
        test::click(dialog, "AddRefBtn");
        dialog.close();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    EvmPlotView& view() { return *window.evolPlot().viewOf(plot()); }
    QTreeWidgetItem& nodeOf(const char* text)
    {
        return *partOf<QTreeWidget>(window, "tvwEvolExplorer")
                    .findItems(QString::fromLatin1(text), Qt::MatchRecursive)
                    .at(0);
    }
};

} // namespace

TEST_F(Undo, beginsWithNothingToUndo)
{
    EXPECT_EQ(undoText(), "&Undo");
    EXPECT_EQ(redoText(), "&Redo");
    EXPECT_FALSE(action("mnuUndo").isEnabled());
    EXPECT_FALSE(action("mnuRedo").isEnabled());
    EXPECT_EQ(action("mnuUndo").shortcut(), QKeySequence(QStringLiteral("Ctrl+Z")));
    EXPECT_EQ(action("mnuRedo").shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+Z")));
}

TEST_F(Undo, takesWhatTheDialogsAddBack)
{
    choose("mnuAddRef");
    auto& dialog = partOf<QDialog>(window, "dlgRefSpeed");
    test::click(dialog, "AddRefBtn");
    EXPECT_EQ(undoText(), "&Undo Add Reference Speed");
    choose("mnuUndo");
    EXPECT_THAT(plot().references().referenceSpeeds(), IsEmpty());
    EXPECT_EQ(user.note, "Undone: Add Reference Speed");
    EXPECT_EQ(redoText(), "&Redo Add Reference Speed");
    choose("mnuRedo");
    EXPECT_EQ(plot().references().referenceSpeeds().size(), 1U);
    choose("mnuClearRef");
    EXPECT_EQ(undoText(), "&Undo Clear Reference Speeds");
    choose("mnuUndo");
    EXPECT_EQ(plot().references().referenceSpeeds().size(), 1U);
}

TEST_F(Undo, takesLoadedEvolutionsBackAndLoadsThemWithoutReading)
{
    test::TemporaryFolder files;
    const std::string copy =
        files.write("case.ev2", test::fileBytes(sample("goland_clean_m050.ev2")));
    user.openFiles.push_back({copy});
    choose("AddMenu");
    ASSERT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_EQ(undoText(), "&Undo Add Modal Evolution");
    std::filesystem::remove(copy);
    choose("mnuUndo");
    EXPECT_EQ(window.document().evolutions().all().size(), 1U);
    choose("mnuRedo");
    ASSERT_EQ(window.document().evolutions().all().size(), 2U);
    EXPECT_GT(window.document().evolutions().all()[1]->Modes.size(), 0U);
    EXPECT_EQ(nodeOf("case.ev2").text(0), QStringLiteral("case.ev2"));
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(Undo, takesAnEditedTextBack)
{
    const QString before = plot().Header().Text();
    mouse(QEvent::MouseButtonDblClick, plot().Header().geometry().center());
    auto* const editor = view().findChild<QTextEdit*>();
    ASSERT_NE(editor, nullptr);
    editor->setPlainText(QStringLiteral("wing"));
    choose("mnuClearRef"); // what is being typed counts first
    EXPECT_EQ(plot().Header().Text(), QStringLiteral("wing"));
    EXPECT_EQ(undoText(), "&Undo Edit Text");
    choose("mnuUndo");
    EXPECT_EQ(plot().Header().Text(), before);
}

TEST_F(Undo, joinsTheArrowKeysThatMoveAText)
{
    const QRect before = plot().Mechanism().geometry();
    mouse(QEvent::MouseButtonPress, before.center());
    mouse(QEvent::MouseButtonRelease, before.center());
    for (int i = 0; i < 3; ++i)
        test::press(view(), Qt::Key_Down);
    EXPECT_EQ(undoText(), "&Undo Move Text");
    EXPECT_EQ(plot().Mechanism().geometry().top(), before.top() + 3);
    choose("mnuUndo");
    EXPECT_EQ(plot().Mechanism().geometry(), before);
    EXPECT_FALSE(action("mnuUndo").isEnabled());
}

TEST_F(Undo, beginsAnewWithAnotherWorkspace)
{
    choose("mnuClearRef");
    plot().references().AddRef(300, QStringLiteral("Vd"));
    choose("mnuClearRef");
    user.unsaved = {Unsaved::Discard};
    choose("mnuNewWorkspace");
    EXPECT_FALSE(action("mnuUndo").isEnabled());
}

TEST_F(Undo, worksByItsKeysInAFieldWithoutTyping)
{
    addReferenceSpeed();
    auto& filter = partOf<QLineEdit>(window, "txtEvolutionFilter");
    filter.setFocus();
    QTest::keyClick(&filter, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_THAT(plot().references().referenceSpeeds(), IsEmpty());
    QTest::keyClick(&filter, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(plot().references().referenceSpeeds().size(), 1U);
}

TEST_F(Undo, leavesItsKeysToAFieldWithTyping)
{
    addReferenceSpeed();
    auto& filter = partOf<QLineEdit>(window, "txtEvolutionFilter");
    QTest::keyClicks(&filter, QStringLiteral("wing"));
    QTest::keyClick(&filter, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(filter.text(), QString());
    EXPECT_EQ(plot().references().referenceSpeeds().size(), 1U);
}

TEST_F(Undo, leavesItsKeysToAnEditorInPlace)
{
    plot().properties().setCaption(QStringLiteral("wing"));
    addReferenceSpeed();
    auto& tree = partOf<QTreeWidget>(window, "tvwEvolExplorer");
    tree.editItem(&nodeOf("wing"));
    QTest::keyClick(test::openEditor(tree), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(plot().references().referenceSpeeds().size(), 1U);
    EXPECT_NE(test::openEditor(tree), nullptr) << "open when the window ends";
}
