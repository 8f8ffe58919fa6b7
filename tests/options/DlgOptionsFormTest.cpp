// SPDX-License-Identifier: Apache-2.0

// The form of the options dialog: names, captions, keys.

#include "options/DlgOptionsFixture.h"

#include <QGroupBox>
#include <QLabel>

#include <map>

using namespace tarsil;
using test::DlgOptionsTest;
using test::partOf;

TEST_F(DlgOptionsTest, hasItsControlsUnderTheirNamesWithTheirCaptions)
{
    EXPECT_EQ(dialog->windowTitle().toStdString(), "Options");
    EXPECT_EQ(dialog->objectName().toStdString(), "dlgOptions");
    EXPECT_FALSE(dialog->isModal());
    const auto& frame = partOf<QGroupBox>(*dialog, "Frame1");
    EXPECT_EQ(frame.title().toStdString(), "Startup Options");
    EXPECT_EQ(test::textIn(frame, "txtAcInfo"), "Tarsil.inp");
    EXPECT_EQ(test::textIn(frame, "txtVgfScale"), "");
    EXPECT_EQ(test::textIn(frame, "txtVgfThicks"), "");
    EXPECT_EQ(partOf<QGroupBox>(*dialog, "fraCurves").title().toStdString(), "Look of new curves");
    dialog->show();
    EXPECT_GT(partOf<QGroupBox>(*dialog, "fraCurves").y(), frame.y()) << "after the others";
    const std::map<std::string, std::string> captions = {{"btnAcInfo", "&Browse ..."},
                                                         {"btnOK", "OK"},
                                                         {"btnApply", "&Apply"},
                                                         {"btnCancel", "Cancel"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(partOf<QPushButton>(*dialog, name).text().toStdString(), caption);
}

TEST_F(DlgOptionsTest, namesEachInputByItsLabel)
{
    const std::map<std::string, std::string> inputs = {{"acInfoLabel", "txtAcInfo"},
                                                       {"vgfScaleLabel", "txtVgfScale"},
                                                       {"vgfThicksLabel", "txtVgfThicks"}};
    for (const auto& [name, input] : inputs) {
        const auto& label = partOf<QLabel>(*dialog, name);
        auto& control = partOf<QWidget>(*dialog, input);
        EXPECT_EQ(label.buddy(), &control);
        EXPECT_EQ(label.text().remove(u'&').toStdString(), test::accessibleName(control) + ":");
    }
}

TEST_F(DlgOptionsTest, reachesTheColoursByTheLetterOfTheirLabel)
{
    EXPECT_EQ(partOf<QLabel>(*dialog, "coloursLabel").buddy(),
              &partOf<QWidget>(*dialog, "cboColours"));
}

TEST_F(DlgOptionsTest, leadsTheTabKeyThroughItsControlsInOrder)
{
    const QWidget* control = &partOf<QWidget>(*dialog, "txtAcInfo");
    for (const char* const name :
         {"txtAcInfo", "btnAcInfo", "txtVgfScale", "txtVgfThicks", "cboColours", "chkLineStyles",
          "chkDashLines", "btnOK", "btnApply", "btnCancel"}) {
        EXPECT_EQ(control->objectName().toStdString(), name);
        do
            control = control->nextInFocusChain();
        while (control->focusPolicy() == Qt::NoFocus);
    }
}

TEST_F(DlgOptionsTest, isOkOnEnterInAnyInput)
{
    for (const char* const name : {"txtAcInfo", "txtVgfScale", "txtVgfThicks"}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            plot().properties().setVthicks(7);
            dialog->show();
            typeAll("", "", "4|5|6");
            auto& input = partOf<QWidget>(*dialog, name);
            input.setFocus();
            test::press(input, key);
            EXPECT_FALSE(dialog->isVisible()) << name;
            EXPECT_EQ(plot().properties().vthicks(), 4) << name;
        }
    }
}

TEST_F(DlgOptionsTest, isCancelledByEscapeByClosingAndOnTheButton)
{
    const auto returnOn = [](QPushButton& button) {
        button.setFocus();
        test::press(button, Qt::Key_Return);
    };
    for (const int way : {0, 1, 2, 3}) {
        dialog->show();
        typeAll("gone.inp", "0|1|0|-1|0|1", "4|5|6");
        if (way == 0)
            test::press(*dialog, Qt::Key_Escape);
        else if (way == 1)
            dialog->close();
        else if (way == 2)
            clickButton("btnCancel");
        else
            returnOn(partOf<QPushButton>(*dialog, "btnCancel"));
        EXPECT_FALSE(dialog->isVisible()) << way;
        EXPECT_EQ(test::textIn(*dialog, "txtAcInfo"), "gone.inp") << way;
        EXPECT_EQ(test::textIn(*dialog, "txtVgfScale"), "0|1|0|-1|0|1") << way;
    }
    EXPECT_EQ(plot().axes().bounds(), PlotAxes().bounds());
    EXPECT_EQ(plot().properties().vthicks(), PlotAxes().speed.ticks);
    EXPECT_EQ(document.airplane().Filename, "");
    EXPECT_EQ(mechanismsChanged, 0);
}
