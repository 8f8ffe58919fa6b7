// SPDX-License-Identifier: Apache-2.0

// The form of the dialog of the plot properties: names, captions and positions of its widgets.

#include "plotwindow/DlgPlotProp.h"

#include "plotwindow/PlotPropInputs.h"
#include "support/FormParts.h"
#include "support/ScriptedUserInterface.h"

#include <QLabel>

#include <gtest/gtest.h>

#include <vector>

using namespace tarsil;
using test::inputNames;
using test::partOf;
using test::TextsByName;

namespace {

class DlgPlotPropForm : public ::testing::Test
{
protected:
    DlgPlotPropForm() : dialog(plot, user) { dialog.show(); }

    EvmPlot plot;
    test::ScriptedUserInterface user;
    dlgPlotProp dialog;
};

} // namespace

TEST_F(DlgPlotPropForm, hasItsControlsUnderTheirNamesWithTheirCaptions)
{
    EXPECT_EQ(dialog.windowTitle().toStdString(), "Plot Properties");
    EXPECT_EQ(dialog.objectName().toStdString(), "dlgPlotProp");
    EXPECT_TRUE(dialog.isModal());
    const TextsByName captions = {{"Label4", "Vel. Axis"},    {"Label1", "Damping Axis"},
                                  {"Label3", "Freq. Axis"},   {"Label6", "Min. Scale :"},
                                  {"Label5", "Max. Scale :"}, {"Label7", "N. of Thicks :"},
                                  {"Label2", "Label:"}};
    for (const auto& [name, caption] : captions)
        EXPECT_EQ(partOf<QLabel>(dialog, name).text().toStdString(), caption);
    EXPECT_EQ(partOf<QPushButton>(dialog, "OKButton").text().toStdString(), "OK");
    EXPECT_EQ(partOf<QPushButton>(dialog, "CancelButton").text().toStdString(), "Cancel");
}

TEST_F(DlgPlotPropForm, givesAScreenReaderRowAndColumnOfEveryInput)
{
    const TextsByName names = {
        {"inpVmin", "Min. Scale Vel. Axis"},          {"inpVmax", "Max. Scale Vel. Axis"},
        {"inpVnthicks", "N. of Thicks Vel. Axis"},    {"inpVlabel", "Label Vel. Axis"},
        {"inpGmin", "Min. Scale Damping Axis"},       {"inpGmax", "Max. Scale Damping Axis"},
        {"inpGnthicks", "N. of Thicks Damping Axis"}, {"inpGlabel", "Label Damping Axis"},
        {"inpFmin", "Min. Scale Freq. Axis"},         {"inpFmax", "Max. Scale Freq. Axis"},
        {"inpFnthicks", "N. of Thicks Freq. Axis"},   {"inpFlabel", "Label Freq. Axis"}};
    for (const auto& [input, name] : names)
        EXPECT_EQ(test::accessibleName(partOf<QLineEdit>(dialog, input)), name);
}

TEST_F(DlgPlotPropForm, hasItsInputsInItsLabelsRowsAndColumns)
{
    const auto place = [this](const std::string& name) {
        return partOf<QWidget>(dialog, name).geometry().center();
    };
    const TextsByName columns = {{"V", "Label4"}, {"G", "Label1"}, {"F", "Label3"}};
    const TextsByName rows = {
        {"min", "Label6"}, {"max", "Label5"}, {"nthicks", "Label7"}, {"label", "Label2"}};
    for (const auto& [axis, columnLabel] : columns) {
        for (const auto& [quantity, rowLabel] : rows) {
            const QPoint input = place("inp" + axis + quantity);
            EXPECT_NEAR(input.x(), place(columnLabel).x(), 1) << axis << quantity;
            EXPECT_NEAR(input.y(), place(rowLabel).y(), 1) << axis << quantity;
        }
    }
}

TEST_F(DlgPlotPropForm, goesFromInputToInputDownEachAxis)
{
    const QWidget* control = &partOf<QWidget>(dialog, inputNames[0]);
    for (const std::string& name : inputNames) {
        EXPECT_EQ(control->objectName().toStdString(), name);
        do
            control = control->nextInFocusChain();
        while (control->focusPolicy() == Qt::NoFocus);
    }
    EXPECT_EQ(control->objectName().toStdString(), "OKButton");
}

TEST_F(DlgPlotPropForm, namesTheFirstInputOfARowOrColumnAsItsLabelsBuddy)
{
    const TextsByName buddies = {{"Label4", "inpVmin"},  {"Label1", "inpGmin"},
                                 {"Label3", "inpFmin"},  {"Label6", "inpVmin"},
                                 {"Label5", "inpVmax"},  {"Label7", "inpVnthicks"},
                                 {"Label2", "inpVlabel"}};
    for (const auto& [label, input] : buddies)
        EXPECT_EQ(partOf<QLabel>(dialog, label).buddy(), &partOf<QWidget>(dialog, input)) << label;
}
