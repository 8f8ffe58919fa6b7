#include "app/QtUserInterface.h"

#include "app/StatusPanels.h"
#include "model/EvolutionLoader.h"
#include "model/MdlMix.h"

#include <QAccessible>
#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
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

    /// Does something with the dialog that opens next.
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
    StatusPanels panels;
    QtUserInterface user;
};

} // namespace

TEST(NameFilters, keepTheCaptionAndThePatternApart)
{
    EXPECT_EQ(nameFilters(std::string(mdlMain::evolutionFilter)),
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

TEST_F(QtUserInterfaceTest, asksForATextAndOffersOne)
{
    onDialog<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.textValue(), QStringLiteral("0.8"));
        EXPECT_EQ(dialog.labelText(), QStringLiteral("Mach?"));
        dialog.setTextValue(QStringLiteral("0.9"));
        dialog.accept();
    });
    EXPECT_EQ(user.askText("Mach?", "0.8"), "0.9");
    onDialog<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(user.askText("Mach?", ""), std::nullopt);
}

TEST_F(QtUserInterfaceTest, offersFilesByTheWantedFilter)
{
    FileQuestion question {std::string(mdlMain::evolutionFilter), 2, true, {}};
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

TEST_F(QtUserInterfaceTest, showsStatusAndProgress)
{
    EXPECT_EQ(panels.text(), QStringLiteral("Ready")) << "the text at first";
    user.showStatus("Please Wait ...");
    EXPECT_EQ(panels.text(), QStringLiteral("Please Wait ..."));
    auto* const bar = panels.findChild<QProgressBar*>();
    EXPECT_FALSE(bar->isVisible());
    user.showProgress(3, 10);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->value(), 3);
    user.showProgress(10, 10);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(QtUserInterfaceTest, showsAStatusThatLooksLikeMarkUpAsItStands)
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
