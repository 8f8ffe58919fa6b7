// SPDX-License-Identifier: Apache-2.0
#include "stability/PlotStability.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/ModeBuilder.h"
#include "model/EVM.h"
#include "stability/StabilityModel.h"
#include "stability/VerdictModel.h"
#include "vgfplot/EvmPlot.h"

#include <gtest/gtest.h>

#include <string>

using namespace tarsil;
using test::addMode;

namespace {

/// Two evolutions: mode 1 of the first starts at 350 KEAS, mode 1 of the second at 310 with an end
/// at 330; its mode 2 is unstable from the first speed, and its mode 3 turns from static to
/// oscillatory between 300 and 400.
class PlotStabilityTest : public ::testing::Test
{
protected:
    PlotStabilityTest()
    {
        first.FileName = "first.ev2";
        second.FileName = "second.ev2";
        addMode(first, 1, {{300, -0.5F, 8}, {400, 0.5F, 10}});
        addMode(second, 1, {{300, -0.5F, 8}, {320, 0.5F, 10}, {340, -0.5F, 10}});
        addMode(second, 2, {{300, 0.5F, 8}, {400, 0.5F, 10}});
        addMode(second, 3, {{300, -0.5F, 0}, {400, 0.5F, 10}});
        settings.levels = {0};
    }

    PlotStability judge() const
    {
        return stabilityOfAll({&first, &second}, settings, airplane, Requirement());
    }

    static std::string text(const QAbstractItemModel& model, int row, StretchColumn column)
    {
        return model.index(row, static_cast<int>(column)).data().toString().toStdString();
    }

    EVM first;
    EVM second;
    StabilitySettings settings;
    AirplaneInfo airplane;
};

} // namespace

TEST_F(PlotStabilityTest, isAboutTheEvolutionsOfTheRowsEachOnce)
{
    EvmPlot plot;
    EXPECT_TRUE(evolutionsOf(plot).empty());
    for (AeMode* mode : {second.Modes[0].get(), first.Modes[0].get(), second.Modes[1].get()})
        plot.rows().add(newSeries(*mode, 0));
    EXPECT_EQ(evolutionsOf(plot), (std::vector<const EVM*> {&second, &first}));
}

TEST_F(PlotStabilityTest, sortsTheStretchesOfAllEvolutionsByTheirStart)
{
    StabilityModel model;
    model.setStretches(judge().stretches);
    ASSERT_EQ(model.rowCount(), 4);
    EXPECT_EQ(text(model, 0, StretchColumn::Start), "first speed");
    EXPECT_EQ(text(model, 0, StretchColumn::Course), "unstable throughout");
    EXPECT_EQ(text(model, 0, StretchColumn::Evolution), "second.ev2");
    EXPECT_EQ(text(model, 1, StretchColumn::Start).substr(0, 6), "310.00");
    EXPECT_EQ(text(model, 1, StretchColumn::End), "330.00");
    EXPECT_EQ(text(model, 1, StretchColumn::Peak), "0.5000");
    EXPECT_EQ(text(model, 1, StretchColumn::PeakSpeed), "320");
    EXPECT_EQ(text(model, 2, StretchColumn::Start), "350.00 +- 0.00");
    EXPECT_EQ(text(model, 2, StretchColumn::Frequency), "9.00");
    EXPECT_EQ(text(model, 3, StretchColumn::Start), "300 to 400") << "different roots";
    EXPECT_EQ(text(model, 3, StretchColumn::Confidence), "C");
    EXPECT_EQ(text(model, 3, StretchColumn::Frequency), "");
    EXPECT_EQ(model.stretch(4), nullptr);
    EXPECT_EQ(model.stretch(-1), nullptr);
}

TEST_F(PlotStabilityTest, putsAltitudesOutsideTheAtmosphereInBrackets)
{
    first.Param.Mach = 0.1F; // 350 KEAS at Mach 0.1 is far below sea level
    StabilityModel model;
    model.setStretches(stabilityOfAll({&first}, settings, airplane, {}).stretches);
    const std::string altitude = text(model, 0, StretchColumn::Altitude);
    EXPECT_EQ(altitude.substr(0, 2), "(-");
    EXPECT_EQ(text(model, 0, StretchColumn::Mach), "0.10");
}

TEST_F(PlotStabilityTest, coloursRowsAsTheSheetDoes)
{
    StabilityModel model;
    model.setStretches(judge().stretches);
    const auto ground = [&model](int row) { return model.index(row, 0).data(Qt::BackgroundRole); };
    EXPECT_EQ(ground(0), colorOf(CellStyle::Bad, Qt::BackgroundRole));
    EXPECT_FALSE(ground(1).isValid());
    EXPECT_EQ(ground(3), colorOf(CellStyle::Warning, Qt::BackgroundRole));
    EXPECT_NE(ground(0), ground(3));
}

TEST_F(PlotStabilityTest, saysALineForEachEvolutionAndLevel)
{
    settings.levels = {0, 0.6F};
    VerdictModel model;
    model.setEvolutions(judge().evolutions, settings.levels);
    const auto cell = [&model](int row, int column) {
        return model.index(row, column).data().toString().toStdString();
    };
    ASSERT_EQ(model.rowCount(), 2);
    ASSERT_EQ(model.columnCount(), 3);
    EXPECT_EQ(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).toString().toStdString(),
              "Lowest start, g = 0.6");
    EXPECT_EQ(cell(0, 0), "first.ev2");
    EXPECT_EQ(cell(0, 1), "350.00 +- 0.00 KEAS, 9.00 Hz, flutter, mode 1 (B)");
    EXPECT_EQ(cell(0, 2), "no instability up to 400 KEAS");
    EXPECT_EQ(cell(1, 1), "unstable from the first speed: modes 2");
    EXPECT_EQ(model.index(1, 1).data(Qt::BackgroundRole),
              colorOf(CellStyle::Bad, Qt::BackgroundRole));
}

TEST_F(PlotStabilityTest, hasAColumnForTheMarginWhereTheAirplaneHasEnvelopes)
{
    first.Param.Mach = 0.4F;
    airplane.FlutterEnvs.push_back({250, 200, 180, "0.40"});
    VerdictModel model;
    model.setEvolutions(judge().evolutions, settings.levels);
    ASSERT_EQ(model.columnCount(), 3);
    // The damping reaches 0.03 at 353 KEAS; 1.15 x 200 = 230.
    EXPECT_EQ(model.index(0, 1).data().toString().toStdString(),
              "pass: 123 KEAS above 1.15 x 200 = 230 KEAS at g = 0.03");
    EXPECT_EQ(model.index(1, 1).data().toString().toStdString(),
              "not judged: no flutter envelope for Mach number 0.00");
}

TEST_F(PlotStabilityTest, saysWhyAnEvolutionCannotBeTracked)
{
    addMode(first, 2, {{300, -0.5F, 12}, {400, -0.5F, 14}});
    settings.isTracked = true;
    VerdictModel model;
    model.setEvolutions(judge().evolutions, settings.levels);
    EXPECT_EQ(model.index(0, 1).data().toString().toStdString(),
              "cannot be tracked: its points have no eigenvalues");
}
