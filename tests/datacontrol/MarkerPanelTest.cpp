// SPDX-License-Identifier: Apache-2.0

// The group of the marker options, alone.

#include "DataPanelFixture.h"

#include "datacontrol/MarkerPanel.h"
#include "support/Errors.h"

#include <QRadioButton>

#include <gmock/gmock.h>

using namespace tarsil;
using test::errorNumberOf;
using test::partOf;
using test::warning;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

namespace {

class MarkerPanelTest : public test::DataPanelTest
{
protected:
    void choose(const char* button) { partOf<QRadioButton>(panel, button).click(); }
    void type(const char* input, const char* text) { test::type(panel, input, text); }
    void leaveSpacing() { Q_EMIT partOf<QLineEdit>(panel, "mkspaceInp").editingFinished(); }
    std::string tip(const char* input)
    {
        return partOf<QLineEdit>(panel, input).toolTip().toStdString();
    }

    MarkerPanel panel {commands};
};

} // namespace

TEST_F(MarkerPanelTest, isAtFirstANumberOfTheModeAtEachTenthPoint)
{
    const MarkerOptions options = panel.options();
    EXPECT_EQ(options.kind, MarkerKind::ModeNumber);
    EXPECT_EQ(options.size, 8);
    EXPECT_EQ(options.spacing, 10);
    EXPECT_EQ(document.plots().newSeriesMarkers(), options);
}

TEST_F(MarkerPanelTest, marksAllRowsAndFutureOnesAsOneStepForEachNumber)
{
    EVM& evolution = load("a.ev2");
    add(evolution, 1);
    add(evolution, 2);
    history.note(QStringLiteral("rows"));
    const int steps = history.steps().count();
    type("mksizeInp", "1");
    type("mksizeInp", "12");
    for (const Series& one : series())
        EXPECT_EQ(one.MarkerSize, 12);
    EXPECT_EQ(document.plots().newSeriesMarkers()->size, 12);
    EXPECT_EQ(history.steps().count(), steps + 1);
    EXPECT_GT(commits, 0) << "what is typed in the grid is committed first";
}

TEST_F(MarkerPanelTest, changesOnlyTheOptionThatTheUserChanges)
{
    EVM& evolution = load("a.ev2");
    add(evolution, 1);
    add(evolution, 2);
    change(1, [](Series& look) { look.MarkerSize = 20; });
    type("mkspaceInp", "3");
    EXPECT_EQ(series()[0].MarkerSpacing, 3);
    EXPECT_EQ(series()[1].MarkerSpacing, 3);
    EXPECT_EQ(series()[1].MarkerSize, 20);
}

TEST_F(MarkerPanelTest, saysThatAnInvalidNumberIsIgnored)
{
    add(load("a.ev2"));
    type("mksizeInp", "x");
    EXPECT_EQ(series()[0].MarkerSize, 8);
    EXPECT_THAT(tip("mksizeInp"), HasSubstr("at least 1"));
    EXPECT_EQ(errorNumberOf([this] { panel.options(); }), ErrorNumber::TypeMismatch);
    type("mksizeInp", "9");
    EXPECT_EQ(tip("mksizeInp"), "Points");
    choose("ithmpfBtn");
    type("ithmpfInp", "6");
    EXPECT_THAT(tip("ithmpfInp"), HasSubstr("from 1 to 5"));
    EXPECT_EQ(errorNumberOf([this] { panel.options(); }), ErrorNumber::InvalidProcedureCall);
    choose("womkBtn");
    EXPECT_EQ(panel.options().kind, MarkerKind::None) << "the factor does not matter now";
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(MarkerPanelTest, restoresASpacingOfZeroWithAMessage)
{
    type("mkspaceInp", "4");
    type("mkspaceInp", "0");
    leaveSpacing();
    EXPECT_EQ(test::textIn(panel, "mkspaceInp"), "4");
    type("mkspaceInp", "many");
    leaveSpacing();
    EXPECT_EQ(test::textIn(panel, "mkspaceInp"), "many") << "drawing reports it";
    EXPECT_THAT(user.messages, ElementsAre(warning("The spacing must be greater then zero!")));
}

TEST_F(MarkerPanelTest, showsTheMarkersOfTheFirstRowWithoutChangingAnything)
{
    EVM& evolution = load("a.ev2");
    add(evolution, 1);
    add(evolution, 2);
    change(0, [](Series& look) {
        look.MarkerStyle = markerNumber(MarkerKind::ParticipationFactor);
        look.MarkerSize = 5;
        look.MarkerSpacing = 0; // without a spacing
        look.IthMpf = 3;
    });
    history.note(QStringLiteral("look"));
    const int steps = history.steps().count();
    panel.showFirstRow();
    EXPECT_TRUE(partOf<QRadioButton>(panel, "ithmpfBtn").isChecked());
    EXPECT_EQ(test::textIn(panel, "mksizeInp"), "5");
    EXPECT_EQ(test::textIn(panel, "mkspaceInp"), "10");
    EXPECT_EQ(test::textIn(panel, "ithmpfInp"), "3");
    EXPECT_EQ(series()[1].MarkerSize, 8);
    EXPECT_EQ(history.steps().count(), steps);
}

TEST_F(MarkerPanelTest, showsNothingOfAPlotWithoutRows)
{
    panel.showFirstRow();
    plots.ActivatePlot(nullptr);
    panel.showFirstRow();
    EXPECT_EQ(test::textIn(panel, "mksizeInp"), "8");
    type("mksizeInp", "7");
    EXPECT_EQ(document.plots().newSeriesMarkers()->size, 7) << "for curves that will be added";
}

TEST_F(MarkerPanelTest, drawsTheTagsAtOnceOrAsksForAPlot)
{
    add(load("a.ev2"));
    choose("tagBtn");
    EXPECT_EQ(series()[0].MarkerStyle, markerNumber(MarkerKind::Tag));
    plots.ActivatePlot(nullptr);
    choose("tagBtn");
    EXPECT_THAT(user.messages, ElementsAre(warning("Please select activate a plot.")));
}
