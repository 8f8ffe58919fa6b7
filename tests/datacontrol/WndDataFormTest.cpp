// SPDX-License-Identifier: Apache-2.0

// The form of the Data Control window: names, captions and default texts of its widgets.

#include "WndDataFixture.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

#include <gmock/gmock.h>

#include <map>

using namespace tarsil;
using test::partOf;
using ::testing::ElementsAre;

namespace {

using Captions = std::map<std::string, std::string>;

class WndDataForm : public test::WndDataTest
{ };

} // namespace

TEST_F(WndDataForm, hasItsControlsUnderTheirNamesWithTheirCaptions)
{
    EXPECT_EQ(data.objectName().toStdString(), "wndData");
    EXPECT_EQ(data.windowTitle().toStdString(), "Data Control");
    for (const auto& [name, caption] : Captions {{"cmdDrawPlot", "Plot"},
                                                 {"btnFitFreq", "Fit Freq."},
                                                 {"cmdRemove", "Remove"},
                                                 {"btnResColor", "Reset Colors"},
                                                 {"SavePic", "Save Pic"},
                                                 {"btnAutoRef", "Auto Ref. Speed"},
                                                 {"btnMakHead", "Auto Header"},
                                                 {"btnFilltLeg", "Auto Fill Legend"},
                                                 {"btnPlotLeg", "Plot Legend"}})
        EXPECT_EQ(partOf<QPushButton>(data, name).text().toStdString(), caption);
    EXPECT_EQ(partOf<QPushButton>(data, "btnFitFreq").toolTip().toStdString(),
              "Fit Frequency Axis Scale Automatically");
    partOf<QPushButton>(data, "cmdIncMode");
    partOf<QPushButton>(data, "cmdDecMode");
    EXPECT_NE(partOf<QToolButton>(data, "btnSerieMove").menu(), nullptr);
}

TEST_F(WndDataForm, groupsItsOptions)
{
    for (const auto& [name, caption] : Captions {{"Frame3", "Title Options"},
                                                 {"mkoptFrm", "Marker Options"},
                                                 {"Frame1", "Legend Options"}})
        EXPECT_EQ(partOf<QGroupBox>(data, name).title().toStdString(), caption);
    for (const auto& [name, caption] : Captions {{"optFlutMecLong", "Long Name"},
                                                 {"optFlutMecShort", "Short Name"},
                                                 {"womkBtn", "None"},
                                                 {"aemodeBtn", "Aeroelastic Mode Id"},
                                                 {"tagBtn", "Tag"},
                                                 {"ithmpfBtn", "i-th MPF"}})
        EXPECT_EQ(partOf<QRadioButton>(data, name).text().toStdString(), caption);
    for (const auto& [frame, control] : Captions {{"Frame3", "txtTitle"},
                                                  {"Frame3", "cmbFlutMech"},
                                                  {"mkoptFrm", "mksizeInp"},
                                                  {"mkoptFrm", "mkspaceInp"},
                                                  {"mkoptFrm", "ithmpfInp"},
                                                  {"Frame1", "txtLegIdx"},
                                                  {"Frame1", "txtLegFontSize"}})
        partOf<QWidget>(partOf<QGroupBox>(data, frame), control);
}

TEST_F(WndDataForm, hasItsDefaultTexts)
{
    EXPECT_EQ(test::textIn(data, "txtLegIdx"), "-1:=file name, 0-n:=ev2 info");
    EXPECT_EQ(test::textIn(data, "mksizeInp"), "8");
    EXPECT_EQ(test::textIn(data, "mkspaceInp"), "10");
    EXPECT_EQ(test::textIn(data, "ithmpfInp"), "1");
    EXPECT_EQ(test::textIn(data, "txtLegFontSize"), "10");
    EXPECT_TRUE(partOf<QRadioButton>(data, "aemodeBtn").isChecked());
    EXPECT_TRUE(partOf<QRadioButton>(data, "optFlutMecLong").isChecked());
}

TEST_F(WndDataForm, labelsItsInputs)
{
    const Captions labels = {{"cmbFlutMech", "Subtitle:"},
                             {"mksizeInp", "Size:"},
                             {"mkspaceInp", "Points Spacing:"},
                             {"txtLegFontSize", "Font Size:"}};
    for (const QLabel* label : data.findChildren<QLabel*>()) {
        ASSERT_NE(label->buddy(), nullptr) << label->text().toStdString();
        EXPECT_EQ(label->text().toStdString(),
                  labels.at(label->buddy()->objectName().toStdString()));
    }
    EXPECT_EQ(data.findChildren<QLabel*>().size(), static_cast<qsizetype>(labels.size()));
    for (const auto& [name, caption] : labels)
        EXPECT_EQ(partOf<QWidget>(data, name).accessibleName().toStdString(), caption);
}

TEST_F(WndDataForm, listsTheMechanismsInTheirOrderAndChoosesNone)
{
    auto& list = partOf<QComboBox>(data, "cmbFlutMech");
    const auto entries = [&list] {
        test::Texts texts;
        for (int i = 0; i < list.count(); ++i)
            texts.push_back(list.itemText(i).toStdString());
        return texts;
    };
    EXPECT_THAT(entries(), ElementsAre("BT", "STORE"));
    EXPECT_EQ(list.currentIndex(), -1);
    list.setCurrentIndex(1);
    airplane.FlutterMechs.pop_back();
    document.setAirplane(airplane);
    EXPECT_THAT(entries(), ElementsAre("BT"));
    EXPECT_EQ(list.currentIndex(), -1);
}
