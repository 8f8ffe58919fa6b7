// SPDX-License-Identifier: Apache-2.0
#include "printing/PrintDialog.h"

#include "document/Document.h"
#include "support/ScriptedUserInterface.h"
#include "support/TestFiles.h"
#include "vgfplot/EvmPlot.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPrintPreviewDialog>
#include <QTimer>

#include <gmock/gmock.h>

#include <filesystem>

using namespace tarsil;
using ::testing::HasSubstr;

namespace {

class PrintDialogTest : public ::testing::Test
{
protected:
    PrintDialogTest()
    {
        document.plots().add(QStringLiteral("Second"));
        document.plots().add(QStringLiteral("Third"));
        dialog.show();
    }

    QAbstractButton& button(const char* name)
    {
        return *dialog.findChild<QAbstractButton*>(QString::fromLatin1(name));
    }

    void untick(int row) { plots().item(row)->setCheckState(Qt::Unchecked); }
    QListWidget& plots() { return *dialog.findChild<QListWidget*>(QStringLiteral("plots")); }
    std::string pdf() { return test::fileBytes(folder.file("out.pdf")); }

    test::TemporaryFolder folder;
    test::ScriptedUserInterface user;
    Document document;
    PrintDialog dialog {document, user};
};

} // namespace

TEST_F(PrintDialogTest, writesNoPdfAfterAStop)
{
    for (const std::size_t page : {1U, 2U}) {
        user.saveFiles = {folder.file("out.pdf")};
        user.progress.clear();
        user.stopsAt = page;
        button("pdf").click();
        EXPECT_EQ(user.progress.size(), page);
        EXPECT_FALSE(std::filesystem::exists(folder.file("out.pdf")));
        EXPECT_EQ(user.note, "Stopped: no file was written");
        EXPECT_EQ(user.statuses.back(), "Ready");
    }
}

TEST_F(PrintDialogTest, writesTheTickedPlotsAsPdf)
{
    user.saveFiles = {folder.file("out")};
    button("pdf").click();
    EXPECT_THAT(pdf(), HasSubstr("/Count 3"));
    EXPECT_THAT(user.note, HasSubstr("out.pdf"));
    untick(1);
    user.saveFiles = {folder.file("out.pdf")};
    user.confirmations = {true};
    button("pdf").click();
    EXPECT_THAT(pdf(), HasSubstr("/Count 2"));
    dialog.findChild<QComboBox*>(QStringLiteral("plotsPerPage"))->setCurrentIndex(1);
    user.saveFiles = {folder.file("out.pdf")};
    user.confirmations = {true};
    button("pdf").click();
    EXPECT_THAT(pdf(), HasSubstr("/Count 1"));
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PrintDialogTest, keepsAFileThatTheUserDoesNotReplace)
{
    folder.write("out.pdf", "old");
    user.saveFiles = {folder.file("out.pdf")};
    button("pdf").click();
    EXPECT_EQ(pdf(), "old");
    EXPECT_EQ(user.questions.size(), 1U);
    document.plots().first().properties().setVthicks(0);
    user.saveFiles = {folder.file("out.pdf")};
    user.confirmations = {true};
    button("pdf").click();
    EXPECT_EQ(pdf(), "old") << "a plot that cannot be drawn";
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_EQ(user.messages[0].icon, MessageIcon::Critical);
}

TEST_F(PrintDialogTest, needsATickedPlot)
{
    EXPECT_TRUE(button("print").isEnabled());
    for (int row = 0; row < 3; ++row)
        untick(row);
    for (const char* name : {"print", "preview", "pdf"})
        EXPECT_FALSE(button(name).isEnabled()) << name;
    EXPECT_TRUE(button("pageSetup").isEnabled());
}

TEST_F(PrintDialogTest, listsThePlotsThatThereAreWhenItIsShown)
{
    dialog.hide();
    document.plots().add(QStringLiteral("Fourth"));
    dialog.show();
    EXPECT_EQ(plots().count(), 4);
    EXPECT_EQ(plots().item(3)->text(), QStringLiteral("Fourth"));
}

TEST_F(PrintDialogTest, showsAPreview)
{
    bool wasShown = false;
    QTimer::singleShot(0, &dialog, [&] {
        auto* const preview = dialog.findChild<QPrintPreviewDialog*>();
        ASSERT_NE(preview, nullptr);
        wasShown = preview->isVisible();
        EXPECT_FALSE(preview->accessibleName().isEmpty());
        preview->reject();
    });
    button("preview").click();
    EXPECT_TRUE(wasShown);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(PrintDialogTest, isUsableByKeyboardAndScreenReader)
{
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(u"qt_"))
            continue;
        const auto* const asButton = qobject_cast<const QAbstractButton*>(widget);
        const QString name = asButton != nullptr ? asButton->text() : widget->accessibleName();
        EXPECT_FALSE(name.isEmpty()) << widget->metaObject()->className();
    }
}
