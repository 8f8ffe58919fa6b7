// SPDX-License-Identifier: Apache-2.0
#include "app/QtUserInterface.h"

#include "app/StatusPanels.h"
#include "formats/EvolutionLoader.h"
#include "formats/MdlMix.h"
#include "support/TestFiles.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <vector>

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
    void TearDown() override { panels.setParent(nullptr); }

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

    /// Input that arrives while the windows are painted next.
    template <typename Input>
    void meanwhile(Input input)
    {
        QMetaObject::invokeMethod(&window, input, Qt::QueuedConnection);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }
    QPoint middle(const QWidget& widget) { return widget.mapTo(&window, widget.rect().center()); }
    void click(const QWidget& widget)
    {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, middle(widget));
    }

    /// The program waits for input: it handles everything that has arrived.
    static void idle()
    {
        constexpr int enough = 20; // more than the events of a test
        for (int i = 0; i < enough; ++i)
            QApplication::processEvents();
    }

    std::vector<QString> received; ///< what the user's input has caused
    QMainWindow window;
    QToolButton& stop() { return *panels.findChild<QToolButton*>(QStringLiteral("stBar_Stop")); }
    QProgressBar& bar() { return *panels.findChild<QProgressBar*>(); }

    StatusPanels panels;
    QtUserInterface user {ProgressTimes {0ms, 0ms}};
};

/// A window with a field, a button and keys.
class InputMeanwhile : public QtUserInterfaceTest
{
protected:
    InputMeanwhile()
    {
        auto* const content = new QWidget(&window);
        auto* const layout = new QVBoxLayout(content);
        layout->addWidget(&field);
        layout->addWidget(&button);
        button.setFocusPolicy(Qt::NoFocus); // the field keeps it
        window.setCentralWidget(content);
        const auto note = [this](const QString& what) {
            return [this, what] { received.push_back(what); };
        };
        QObject::connect(&field, &QLineEdit::textChanged, &window,
                         [this](const QString& text) { received.push_back(text); });
        QObject::connect(&button, &QPushButton::clicked, &window, note(QStringLiteral("click")));
        for (const char* const keys : {"Ctrl+B", "Escape"}) {
            auto* const action = new QAction(&window);
            action->setShortcut(QKeySequence(QString::fromLatin1(keys)));
            window.addAction(action);
            QObject::connect(action, &QAction::triggered, &window, note(QString::fromLatin1(keys)));
        }
        window.activateWindow();
        field.setFocus();
        idle();
    }
    ~InputMeanwhile() override
    {
        field.setParent(nullptr);
        button.setParent(nullptr);
    }

    void useAll()
    {
        press(Qt::Key_A);
        press(Qt::Key_B, Qt::ControlModifier);
        click(button);
    }

    QLineEdit field;
    QPushButton button;
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
    meanwhile([this] { click(stop()); });
    EXPECT_FALSE(user.showProgress(2, 10));
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(stop().isVisible());
    EXPECT_TRUE(user.showProgress(3, 10)) << "another operation";
    EXPECT_TRUE(user.showProgress(4, 10));
}

TEST_F(QtUserInterfaceTest, stopsAnOperationByEscape)
{
    EXPECT_TRUE(user.showProgress(1, 10));
    meanwhile([this] { press(Qt::Key_Escape); });
    EXPECT_FALSE(user.showProgress(2, 10));
    idle();
    EXPECT_TRUE(received.empty()) << "no window gets the key";
}

TEST_F(InputMeanwhile, isDroppedWhileTheProgressIsVisible)
{
    EXPECT_TRUE(user.showProgress(1, 10));
    meanwhile([this] {
        useAll();
        window.windowHandle()->close();
    });
    EXPECT_TRUE(user.showProgress(2, 10));
    EXPECT_TRUE(user.showProgress(10, 10));
    idle();
    EXPECT_TRUE(received.empty());
    EXPECT_TRUE(window.isVisible());
    useAll();
    EXPECT_EQ(received,
              (std::vector<QString> {QStringLiteral("a"), QStringLiteral("Ctrl+B"),
                                     QStringLiteral("click")}))
        << "after the operation";
}

TEST_F(InputMeanwhile, isDeliveredInItsOrderAfterAShortOperation)
{
    meanwhile([this] { useAll(); });
    user.showStatus("Please Wait ...");
    meanwhile([this] { press(Qt::Key_C); });
    user.showStatus("Ready");
    EXPECT_TRUE(received.empty()) << "nothing is delivered into the operation";
    idle();
    EXPECT_EQ(received,
              (std::vector<QString> {QStringLiteral("a"), QStringLiteral("Ctrl+B"),
                                     QStringLiteral("click"), QStringLiteral("ac")}));
}

TEST_F(InputMeanwhile, isKeptUntilTheProgressIsPainted)
{
    user.showStatus("Please Wait ...");
    meanwhile([this] {
        press(Qt::Key_A);
        press(Qt::Key_Escape);
    });
    EXPECT_TRUE(user.showProgress(1, 10)) << "nobody could see the button";
    EXPECT_TRUE(bar().isVisible());
    EXPECT_TRUE(user.showProgress(2, 10));
    user.showStatus("Ready");
    EXPECT_TRUE(received.empty());
    idle();
    EXPECT_EQ(received, (std::vector<QString> {QStringLiteral("a"), QStringLiteral("Escape")}));
}

TEST_F(InputMeanwhile, ofAButtonThatIsHeldDownIsDeliveredWhole)
{
    user.showStatus("Please Wait ...");
    meanwhile(
        [this] { QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, middle(button)); });
    EXPECT_TRUE(user.showProgress(1, 10));
    meanwhile(
        [this] { QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, middle(button)); });
    EXPECT_TRUE(user.showProgress(2, 10));
    user.showStatus("Ready");
    EXPECT_TRUE(received.empty());
    idle();
    EXPECT_EQ(received, (std::vector<QString> {QStringLiteral("click")}));
}

TEST_F(InputMeanwhile, waitsForTheNextOperationThatItBegins)
{
    QObject::connect(&button, &QPushButton::clicked, &window, [this] {
        user.showStatus("Please Wait ...");
        user.showStatus("Ready");
        received.push_back(QStringLiteral("end"));
    });
    meanwhile([this] {
        click(button);
        press(Qt::Key_A);
    });
    user.showStatus("Please Wait ...");
    user.showStatus("Ready");
    idle();
    EXPECT_EQ(received,
              (std::vector<QString> {QStringLiteral("click"), QStringLiteral("end"),
                                     QStringLiteral("a")}));
}

TEST_F(InputMeanwhile, isLostWhenAMessageBlocksItsWindow)
{
    meanwhile([this] { useAll(); });
    user.showStatus("Please Wait ...");
    onDialog<QMessageBox>([](QMessageBox& box) {
        idle();
        box.reject();
    });
    user.showMessage("Wrong.", "Error", MessageIcon::Critical);
    idle();
    EXPECT_TRUE(received.empty());
    useAll();
    EXPECT_EQ(received.size(), 3U);
}

TEST_F(InputMeanwhile, closesTheWindowAfterTheOperation)
{
    meanwhile([this] { window.windowHandle()->close(); });
    user.showStatus("Please Wait ...");
    EXPECT_TRUE(window.isVisible());
    idle();
    EXPECT_FALSE(window.isVisible());
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
