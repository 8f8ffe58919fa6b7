// SPDX-License-Identifier: Apache-2.0

// The group of header, reference speeds and subtitle, alone.

#include "DataPanelFixture.h"

#include "datacontrol/TitlePanel.h"

#include <QComboBox>
#include <QRadioButton>

#include <gmock/gmock.h>

using namespace tarsil;
using test::partOf;
using test::warning;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

class TitlePanelTest : public test::DataPanelTest
{
protected:
    void click(const char* button) { test::click(panel, button); }
    QComboBox& mechanisms() { return partOf<QComboBox>(panel, "cmbFlutMech"); }
    void choose(int mechanism)
    {
        mechanisms().setCurrentIndex(mechanism);
        Q_EMIT mechanisms().activated(mechanism);
    }
    std::string subtitle() { return plot().parts().box(TextBox::Mechanism).Text().toStdString(); }

    TitlePanel panel {commands};
};

} // namespace

TEST_F(TitlePanelTest, writesHeaderSpeedsAndSubtitleAsOneStepEach)
{
    setReference(load("a.ev2"));
    history.note(QStringLiteral("load"));
    const int steps = history.steps().count();
    test::type(panel, "txtTitle", "Symmetric");
    click("btnMakHead");
    click("btnAutoRef");
    choose(1);
    EXPECT_THAT(user.messages, IsEmpty());
    EXPECT_EQ(plot().Header().Text().toStdString(),
              "QRX-200 - Configuration CLEAN\r\nPK Method - Mach No. 0.78\r\nSymmetric");
    EXPECT_THAT(plot().references().referenceSpeeds(), SizeIs(3));
    EXPECT_EQ(subtitle(), "Pitch of the store");
    EXPECT_EQ(plot().axes().speed.min, 100);
    EXPECT_EQ(history.steps().count(), steps + 3);
    EXPECT_EQ(commits, 3) << "what is typed in the grid is committed first";
}

TEST_F(TitlePanelTest, usesTheShortNameOnceItIsChosen)
{
    choose(0);
    EXPECT_EQ(subtitle(), "Bending and torsion");
    partOf<QRadioButton>(panel, "optFlutMecShort").click();
    EXPECT_EQ(subtitle(), "BT");
}

TEST_F(TitlePanelTest, listsTheMechanismsOfTheAirplaneAndChoosesNone)
{
    EXPECT_EQ(mechanisms().count(), 2);
    EXPECT_EQ(mechanisms().currentIndex(), -1);
    choose(1);
    document.setAirplane(AirplaneInfo());
    EXPECT_EQ(mechanisms().count(), 0);
    partOf<QRadioButton>(panel, "optFlutMecShort").click();
    EXPECT_EQ(subtitle(), "Pitch of the store") << "no mechanism, no change";
}

TEST_F(TitlePanelTest, asksForAReferenceAndAPlot)
{
    click("btnMakHead");
    click("btnAutoRef");
    EXPECT_THAT(user.messages, Each(warning("Please select a reference modal evolution.")));
    EXPECT_THAT(user.messages, SizeIs(2));
    setReference(load("a.ev2"));
    plots.ActivatePlot(nullptr);
    user.messages.clear();
    click("btnMakHead");
    click("btnAutoRef");
    choose(0);
    EXPECT_THAT(user.messages, Each(warning("Please select activate a plot.")));
    EXPECT_THAT(user.messages, SizeIs(3));
}
