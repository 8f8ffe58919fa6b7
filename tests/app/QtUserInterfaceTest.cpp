// SPDX-License-Identifier: Apache-2.0
#include "app/QtUserInterface.h"

#include "app/StatusPanels.h"
#include "formats/EvolutionLoader.h"
#include "formats/MdlMix.h"
#include "support/TestFiles.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

using namespace std::chrono_literals;
using namespace tarsil;

namespace {

class QtUserInterfaceTest : public ::testing::Test
{
protected:
    QtUserInterfaceTest() : panels(&window)
    {
        window.setStatusBar(&panels);
        user.attach(&window, &panels);
        window.show();
    }
    ~QtUserInterfaceTest() override { panels.setParent(nullptr); }

    /// Runs an action on the dialog that opens next.
    template <typename Dialog, typename Action>
    void onDialog(Action action)
    {
        QTimer::singleShot(0, &window, [action] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            action(*dialog);
        });
    }

    QMainWindow window;
    QToolButton& stop() { return *panels.findChild<QToolButton*>(QStringLiteral("stBar_Stop")); }
    QProgressBar& bar() { return *panels.findChild<QProgressBar*>(); }

    StatusPanels panels;
    QtUserInterface user {ProgressTimes {0ms, 0ms}};
};

} // namespace

TEST(NameFilters, keepTheCaptionAndThePatternApart)
{
    EXPECT_EQ(nameFilters(mdlMain::evolutionFilter()),
              QStringList({QStringLiteral("Modal Evolution Files (*.evm) (*.evm)"),
                           QStringLiteral("New Modal Evolution Files (*.ev2) (*.ev2)"),
                           QStringLiteral("All Files (*.*) (*)")}));
    EXPECT_EQ(nameFilters(std::string(mdlMix::mixedFilter)).first(),
              QStringLiteral("Mixed Modal Evolution (*.mix) (*.evm)"));
}

TEST_F(QtUserInterfaceTest, showsMessagesWithTitleAndLines)
{
    QString text;
    QString title;
    onDialog<QMessageBox>([&](QMessageBox& box) {
        text = box.text();
        title = box.windowTitle();
        box.button(QMessageBox::Ok)->click();
    });
    user.showMessage("first\rsecond <b>", "Error", MessageIcon::Critical);
    EXPECT_EQ(text, QStringLiteral("first\nsecond <b>"));
    EXPECT_EQ(title, QStringLiteral("Error"));
}

TEST_F(QtUserInterfaceTest, asksYesOrNo)
{
    onDialog<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); });
    EXPECT_TRUE(user.confirm("Really?", "Tarsil"));
    onDialog<QMessageBox>([](QMessageBox& box) { box.reject(); });
    EXPECT_FALSE(user.confirm("Really?", "Tarsil"));
}

TEST_F(QtUserInterfaceTest, asksWhatBecomesOfUnsavedChanges)
{
    onDialog<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Save));
        box.button(QMessageBox::Save)->click();
    });
    EXPECT_EQ(user.askToSave("Save?", "Tarsil"), Unsaved::Save);
    onDialog<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Discard)->click(); });
    EXPECT_EQ(user.askToSave("Save?", "Tarsil"), Unsaved::Discard);
    onDialog<QMessageBox>([](QMessageBox& box) { box.reject(); });
    EXPECT_EQ(user.askToSave("Save?", "Tarsil"), Unsaved::Cancel);
}

TEST_F(QtUserInterfaceTest, asksForATextAndOffersOne)
{
    onDialog<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.textValue(), QStringLiteral("0.8"));
        EXPECT_EQ(dialog.labelText(), QStringLiteral("Mach?"));
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Tarsil: wing"));
        dialog.setTextValue(QStringLiteral("0.9"));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(user.askText("Mach?", "Tarsil: wing", "0.8"), "0.9");
    onDialog<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(user.askText("Mach?", "Tarsil", ""), std::nullopt);
}

TEST_F(QtUserInterfaceTest, offersFilesByTheWantedFilter)
{
    FileQuestion question {mdlMain::evolutionFilter(), 2, true, {}};
    onDialog<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("New Modal Evolution Files (*.ev2)"));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFiles);
        dialog.reject();
    });
    EXPECT_TRUE(user.askOpenFiles(question).empty());
    question.fileName = "Plot1";
    onDialog<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(dialog.selectedFiles().value(0).endsWith(QStringLiteral("Plot1")));
        dialog.reject();
    });
    EXPECT_EQ(user.askSaveFile(question), std::nullopt);
}

TEST_F(QtUserInterfaceTest, asksForAChoice)
{
    onDialog<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Tarsil"));
        EXPECT_EQ(dialog.textValue(), QStringLiteral("one"));
        dialog.setTextValue(QStringLiteral("two"));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(user.askChoice("Which?", "Tarsil", {"one", "two"}), 1U);
    onDialog<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(user.askChoice("Which?", "Tarsil", {"one", "two"}), std::nullopt);
}

TEST_F(QtUserInterfaceTest, appendsTheExtensionOfTheChosenFilter)
{
    const test::TemporaryFolder folder;
    const FileQuestion question {
        "Metafile (*.emf)|*.emf|All Files (*.*)|*.*|SVG (*.svg)|*.svg|PNG (*.png)|*.png|",
        1,
        false,
        folder.file("Plot1"),
        true,
        3};
    const auto choose = [](QFileDialog& dialog, const char* filter) {
        dialog.selectNameFilter(QString::fromLatin1(filter));
        Q_EMIT dialog.filterSelected(dialog.selectedNameFilter());
        return QFileInfo(dialog.selectedFiles().value(0)).fileName();
    };
    onDialog<QFileDialog>([choose](QFileDialog& dialog) {
        EXPECT_EQ(choose(dialog, "SVG (*.svg) (*.svg)"), QStringLiteral("Plot1.svg"));
        EXPECT_EQ(choose(dialog, "PNG (*.png) (*.png)"), QStringLiteral("Plot1.png"));
        EXPECT_EQ(choose(dialog, "Metafile (*.emf) (*.emf)"), QStringLiteral("Plot1.emf"));
        choose(dialog, "SVG (*.svg) (*.svg)");
        dialog.selectFile(QStringLiteral("wing m0.40"));
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(user.askSaveFile(question), folder.file("wing m0.40.svg"));
    onDialog<QFileDialog>([](QFileDialog& dialog) { static_cast<QDialog&>(dialog).accept(); });
    EXPECT_EQ(user.askSaveFile(question), folder.file("Plot1")) << "a metafile keeps its name";
}

TEST_F(QtUserInterfaceTest, asksForAFolderThatExists)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.path().string();
    onDialog<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
        EXPECT_EQ(dialog.directory().absolutePath().toStdString(), path);
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(user.askFolder(path), path);
    onDialog<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(user.askFolder(path), std::nullopt);
}

TEST_F(QtUserInterfaceTest, belongsToTheWindowThatAsksAndGivesItTheKeyboardBack)
{
    QDialog asking(&window);
    QLineEdit first(&asking);
    QLineEdit second(&asking);
    asking.show();
    asking.activateWindow();
    second.setFocus();
    QApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), &second);
    const FileQuestion question {"All Files (*.*)|*.*|", 1, false, {}, true};
    const std::function<void()> questions[] = {
        [&] { user.showMessage("Wrong.", "Error", MessageIcon::Critical); },
        [&] { user.confirm("Really?", "Tarsil"); },
        [&] { user.askToSave("Save?", "Tarsil"); },
        [&] { user.askText("Mach?", "Tarsil", ""); },
        [&] { user.askOpenFiles(question); },
        [&] { user.askSaveFile(question); },
        [&] { user.askFolder("/"); }};
    int asked = 0;
    for (const auto& ask : questions) {
        onDialog<QDialog>([&](QDialog& dialog) {
            EXPECT_EQ(dialog.parentWidget(), &asking) << asked;
            window.activateWindow(); // as some window managers do when a dialog closes
            dialog.reject();
        });
        ask();
        QApplication::processEvents();
        EXPECT_EQ(QApplication::activeWindow(), &asking) << asked;
        EXPECT_EQ(QApplication::focusWidget(), &second) << asked;
        ++asked;
    }
}

TEST(QtUserInterface, belongsToTheMainWindowWhileNoneIsActive)
{
    ASSERT_EQ(QApplication::activeWindow(), nullptr);
    QMainWindow window;
    QtUserInterface user;
    user.attach(&window, nullptr);
    QTimer::singleShot(0, &window, [&window] {
        auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->parentWidget(), &window);
        box->reject();
    });
    user.showMessage("Wrong.", "Error", MessageIcon::Critical);
    user.beginCommand();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(QtUserInterfaceTest, showsANoteBesideTheStatusUntilTheNextCommand)
{
    auto* const note = panels.findChild<QLabel*>(QStringLiteral("stBar_Note"));
    ASSERT_NE(note, nullptr);
    EXPECT_FALSE(note->isVisible());
    const int width = panels.minimumSizeHint().width();
    const QString path = QStringLiteral("The picture is in /home/<b>/") + QString(3000, u'x');
    user.showNote(path.toStdString());
    EXPECT_TRUE(note->isVisible());
    EXPECT_LT(panels.minimumSizeHint().width(), width + 100) << "the window stays as it is";
    user.showStatus("of before");
    EXPECT_EQ(note->text(), path);
    EXPECT_EQ(note->textFormat(), Qt::PlainText);
    EXPECT_TRUE(note->toolTip().contains(QStringLiteral("&lt;b&gt;"))) << "unchanged";
    user.beginCommand();
    EXPECT_FALSE(note->isVisible());
    EXPECT_EQ(note->text(), QString());
    EXPECT_EQ(note->toolTip(), QString());
    EXPECT_EQ(panels.text(), QStringLiteral("Ready"));
}

TEST_F(QtUserInterfaceTest, showsStatusAndProgress)
{
    EXPECT_EQ(panels.text(), QStringLiteral("Ready")) << "the text at first";
    user.showStatus("Please Wait ...");
    EXPECT_EQ(panels.text(), QStringLiteral("Please Wait ..."));
    EXPECT_FALSE(bar().isVisible());
    EXPECT_TRUE(user.showProgress(3, 10));
    EXPECT_TRUE(bar().isVisible());
    EXPECT_TRUE(stop().isVisible());
    EXPECT_EQ(bar().value(), 3);
    EXPECT_TRUE(user.showProgress(10, 10));
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(stop().isVisible());
    user.showProgress(3, 10);
    user.showStatus("Ready");
    EXPECT_FALSE(bar().isVisible()) << "the operation has ended, by an error for instance";
}

TEST_F(QtUserInterfaceTest, stopsAnOperationByTheButton)
{
    EXPECT_EQ(stop().text(), QStringLiteral("Stop"));
    EXPECT_EQ(stop().accessibleName(), QStringLiteral("Stop"));
    EXPECT_TRUE(stop().toolTip().contains(QStringLiteral("Esc")));
    user.showStatus("Please Wait ...");
    EXPECT_TRUE(user.showProgress(1, 10));
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const QPoint center = stop().rect().center();
        QApplication::postEvent(&stop(),
                                new QMouseEvent(type, center, stop().mapToGlobal(center),
                                                Qt::LeftButton, Qt::LeftButton, Qt::NoModifier));
    }
    EXPECT_FALSE(user.showProgress(2, 10));
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(stop().isVisible());
    EXPECT_TRUE(user.showProgress(3, 10)) << "another operation";
}

TEST_F(QtUserInterfaceTest, stopsAnOperationByEscape)
{
    EXPECT_TRUE(user.showProgress(1, 10));
    QApplication::postEvent(&window,
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    EXPECT_FALSE(user.showProgress(2, 10));
}

TEST_F(QtUserInterfaceTest, dropsOtherInputWhileAnOperationCanBeStopped)
{
    auto* const field = new QLineEdit(&window);
    auto* const button = new QPushButton(&window);
    window.setCentralWidget(button);
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, &window, [&clicks] { ++clicks; });
    const auto use = [&] {
        QApplication::postEvent(
            field, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a")));
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const QPoint center = button->rect().center();
            QApplication::postEvent(button,
                                    new QMouseEvent(type, center, button->mapToGlobal(center),
                                                    Qt::LeftButton, Qt::LeftButton,
                                                    Qt::NoModifier));
        }
    };
    use();
    QApplication::postEvent(&window, new QCloseEvent);
    EXPECT_TRUE(user.showProgress(1, 10));
    EXPECT_EQ(field->text(), QString());
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(user.showProgress(10, 10));
    use();
    QApplication::processEvents();
    EXPECT_EQ(field->text(), QStringLiteral("a"));
    EXPECT_EQ(clicks, 1);
}

TEST_F(QtUserInterfaceTest, showsNoProgressOfAShortOperation)
{
    QtUserInterface patient(ProgressTimes {24h, 0ms});
    patient.attach(&window, &panels);
    patient.showStatus("Please Wait ...");
    EXPECT_TRUE(patient.showProgress(5, 10));
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(stop().isVisible());
}

TEST_F(QtUserInterfaceTest, updatesTheProgressOnceInAnInterval)
{
    QtUserInterface slow(ProgressTimes {0ms, 24h});
    slow.attach(&window, &panels);
    slow.showStatus("Please Wait ...");
    slow.showProgress(1, 10);
    slow.showProgress(2, 10);
    EXPECT_EQ(bar().value(), 1);
    slow.showStatus("Please Wait ...");
    slow.showProgress(3, 10);
    EXPECT_EQ(bar().value(), 3) << "another operation begins with an update";
}

TEST_F(QtUserInterfaceTest, showsAStatusThatLooksLikeMarkUpUnchanged)
{
    const auto* const label = panels.findChild<QLabel*>(QStringLiteral("stBar_Status"));
    user.showStatus("R&D<br>D");
    const int width = label->sizeHint().width();
    user.showStatus("R&D<br>DD");
    EXPECT_GT(label->sizeHint().width(), width) << "mark-up would make two lines";
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

TEST_F(QtUserInterfaceTest, letsAScreenReaderHearTheStatus)
{
    user.showStatus("Please Wait ...");
    QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(
        panels.findChild<QLabel*>(QStringLiteral("stBar_Status")));
    ASSERT_NE(heard, nullptr);
    EXPECT_EQ(heard->text(QAccessible::Name), QStringLiteral("Please Wait ..."));
}

TEST_F(QtUserInterfaceTest, announcesClicksOnThePanelsAndTogglesNothingByItself)
{
    std::vector<int> clicked;
    QObject::connect(&panels, &StatusPanels::panelClicked,
                     [&clicked](int panel) { clicked.push_back(panel); });
    auto* const autoPlot = panels.findChild<QToolButton*>(QStringLiteral("stBar_AutoPlot"));
    auto* const editMode = panels.findChild<QToolButton*>(QStringLiteral("stBar_EditMode"));
    EXPECT_EQ(autoPlot->text(), QStringLiteral("AutoPlot"));
    EXPECT_EQ(editMode->text(), QStringLiteral("Edit Mode"));
    autoPlot->click();
    editMode->click();
    EXPECT_EQ(clicked, (std::vector<int> {2, 3}));
    EXPECT_TRUE(autoPlot->isChecked());
    EXPECT_FALSE(editMode->isChecked());
    panels.setEditMode(true);
    EXPECT_TRUE(editMode->isChecked());
    auto* const text = panels.findChild<QLabel*>(QStringLiteral("stBar_Status"));
    QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(text, &release);
    EXPECT_EQ(clicked.back(), 1);
}
