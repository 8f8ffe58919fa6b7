// SPDX-License-Identifier: Apache-2.0
#include "app/PlainMessageBoxes.h"

#include "support/TestFiles.h"

#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

class PlainMessageBoxesTest : public ::testing::Test
{
protected:
    PlainMessageBoxesTest() { QApplication::instance()->installEventFilter(&filter); }

    PlainMessageBoxes filter;
};

} // namespace

TEST_F(PlainMessageBoxesTest, showTheQuestionOfAFileDialogUnchanged)
{
    const test::TemporaryFolder folder;
    folder.write("<b>x.evm", "");
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDirectory(QString::fromStdString(folder.path().string()));
    dialog.selectFile(QStringLiteral("<b>x.evm"));
    QString shown;
    QTimer::singleShot(0, &dialog, [&shown] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        shown = box->text();
        box->reject();
    });
    static_cast<QDialog&>(dialog).accept(); // asks before the file is replaced
    EXPECT_TRUE(shown.startsWith(QStringLiteral("<b>x.evm"))) << shown.toStdString();
}
