// SPDX-License-Identifier: Apache-2.0

// The group of the legend, alone.

#include "DataPanelFixture.h"

#include "datacontrol/LegendPanel.h"
#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesGridModel.h"
#include "datacontrol/SeriesGridView.h"

#include <gmock/gmock.h>

using namespace tarsil;
using test::warning;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

class LegendPanelTest : public test::DataPanelTest
{
protected:
    LegendPanelTest()
    {
        model.setPlot(&plot());
        grid.setModel(&model);
        EVM& evolution = load("a.ev2");
        add(evolution, 1);
        add(evolution, 2);
        history.note(QStringLiteral("rows"));
    }

    void click(const char* button) { test::click(panel, button); }
    std::vector<std::string> legends()
    {
        std::vector<std::string> texts;
        for (const Series& one : series())
            texts.push_back(one.LegendText.toStdString());
        return texts;
    }

    SeriesGridModel model {history};
    SeriesGridView grid;
    MarkerPanel markers {commands};
    LegendPanel panel {commands, markers, grid};
};

} // namespace

TEST_F(LegendPanelTest, fillsAllRowsOrTheSelectedOnes)
{
    grid.selectRows({1}, 0);
    click("btnFilltLeg"); // the default is the file name
    EXPECT_THAT(legends(), ElementsAre("", "a.ev2"));
    grid.clearSelection();
    click("btnFilltLeg");
    EXPECT_THAT(legends(), ElementsAre("a.ev2", "a.ev2"));
    EXPECT_EQ(history.steps().undoText(), QStringLiteral("Fill Legend"));
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(LegendPanelTest, reportsAnEntryThatDoesNotExistOnce)
{
    test::type(panel, "txtLegIdx", "7");
    click("btnFilltLeg");
    EXPECT_THAT(user.messages, ElementsAre(warning("There is not 7\u00AA legend entry")));
}

TEST_F(LegendPanelTest, refusesAnIndexThatIsNoNumberAndChangesNothing)
{
    const int steps = history.steps().count();
    test::type(panel, "txtLegIdx", "first");
    click("btnFilltLeg");
    ASSERT_THAT(user.messages, SizeIs(1));
    EXPECT_THAT(user.messages[0].text, HasSubstr("Error # 13"));
    EXPECT_THAT(user.messages[0].text, HasSubstr("Legend index"));
    EXPECT_EQ(history.steps().count(), steps);
}

TEST_F(LegendPanelTest, writesTheLegendWithTheMarkersOfThePanel)
{
    click("btnFilltLeg");
    test::type(panel, "txtLegFontSize", "12");
    click("btnPlotLeg");
    EXPECT_EQ(plot().Legend().Text().toStdString(), "[0] a.ev2\r\n[1] a.ev2");
    EXPECT_EQ(history.steps().undoText(), QStringLiteral("Plot Legend"));
    test::type(markers, "mksizeInp", "x");
    click("btnPlotLeg");
    ASSERT_THAT(user.messages, SizeIs(1));
    EXPECT_THAT(user.messages[0].text, HasSubstr("Size"));
}

TEST_F(LegendPanelTest, refusesAFontOutsideItsLimits)
{
    test::type(panel, "txtLegFontSize", "401");
    click("btnPlotLeg");
    ASSERT_THAT(user.messages, SizeIs(1));
    EXPECT_THAT(user.messages[0].text, HasSubstr("it must be from 1 to 400"));
    EXPECT_TRUE(plot().Legend().Text().isEmpty());
}

TEST_F(LegendPanelTest, asksForAPlot)
{
    model.setPlot(nullptr);
    plots.ActivatePlot(nullptr);
    click("btnFilltLeg");
    click("btnPlotLeg");
    EXPECT_THAT(user.messages,
                ElementsAre(warning("Please select activate a plot."),
                            warning("Please select activate a plot.")));
}
