// SPDX-License-Identifier: Apache-2.0

// The examples in samples/stability: what the flutter table and the window "Stability" make of
// each. If TARSIL_GUIDE names a folder, the pictures of the user's guide are taken on the way.

#include "app/WndMainFixture.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/FlutterSearch.h"
#include "model/EVM.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QTableView>
#include <QTreeWidget>

#include <gmock/gmock.h>

#include <algorithm>

using namespace tarsil;
using test::sample;
using test::WndMainTest;

namespace {

void keepForTheGuide(const char* name, const QImage& picture)
{
    const QString folder = qEnvironmentVariable("TARSIL_GUIDE");
    if (!folder.isEmpty()) {
        EXPECT_TRUE(picture.save(QDir(folder).filePath(QString::fromLatin1(name))));
    }
}

/// The lowest crossing of any mode, as the flutter table lists it.
double lowestCrossing(const EVM& evolution)
{
    double lowest = 1e9;
    for (const auto& mode : evolution.Modes) {
        FlutterPtsCalc(*mode, 0);
        for (const Point& point : mode->flutterPoints)
            lowest = std::min<double>(lowest, point.speed);
    }
    return lowest;
}

class StabilityExamples : public WndMainTest
{
protected:
    /// Loads an example, opens the window and selects a stretch at g = 0. Takes the picture.
    void show(const char* name, int row)
    {
        load({sample("stability/" + std::string(name) + ".ev2")});
        window.evolPlot().resize(760, 560);
        PlotAxes axes = plot().axes();
        axes.setBounds({100, 400, 0, 24, 0.2F, -0.2F});
        axes.setTicks({6, 4, 6});
        plot().setAxes(axes);
        choose("stability");
        dialog = window.findChild<QDialog*>(QStringLiteral("wndStability"));
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>(QStringLiteral("levelsInp"))->setText(QStringLiteral("0"));
        table("stretchGrid").selectRow(row);
        EvmPlotView& view = *window.evolPlot().viewOf(plot());
        view.resize(760, 520);
        keepForTheGuide((std::string("stability-") + name + ".png").c_str(), view.grab().toImage());
    }

    QTableView& table(const char* name)
    {
        return *dialog->findChild<QTableView*>(QString::fromLatin1(name));
    }

    std::string verdict() { return cell("verdictGrid", 0, 1); }

    std::string cell(const char* name, int row, int column)
    {
        return table(name).model()->index(row, column).data().toString().toStdString();
    }

    double lowestInTheTable() { return lowestCrossing(*window.document().evolutions().all()[0]); }

    QDialog* dialog = nullptr;
};

} // namespace

// Mode 3 has dampings of the order of 1e-9 with changing sign. Mode 2 has
// -0.00864 at 250 KEAS and 0.0006 at 262.5 KEAS, so that it crosses 0 at 250 + 12.5 x 0.00864 /
// 0.00924 = 261.69 KEAS.
TEST_F(StabilityExamples, countsNoiseAndShowsTheFlutterBesideIt)
{
    show("noise", 0);
    EXPECT_NEAR(lowestInTheTable(), 105.357, 0.001) << "a crossing of the noise";
    EXPECT_THAT(verdict(), ::testing::StartsWith("261.69 +- 0.14 KEAS, 10.65 Hz, flutter, mode 2"));
    EXPECT_EQ(table("stretchGrid").model()->rowCount(), 1);
}

TEST_F(StabilityExamples, tellsTheEndOfAHumpFromAStart)
{
    show("hump", 0);
    EXPECT_EQ(cell("stretchGrid", 0, 3), "hump");
    EXPECT_THAT(verdict(), ::testing::StartsWith("185.21 +- 0.23 KEAS"));
}

TEST_F(StabilityExamples, callsAStaticRootDivergence)
{
    show("divergence", 0);
    EXPECT_THAT(verdict(), ::testing::StartsWith("340.91 +- 0.30 KEAS, 0.00 Hz, divergence"));
}

TEST_F(StabilityExamples, followsARootWhereTwoLabelsSwap)
{
    show("swap", 1);
    EXPECT_EQ(table("stretchGrid").model()->rowCount(), 2) << "as printed two modes are unstable";
    dialog->findChild<QComboBox*>(QStringLiteral("rootsCmb"))->setCurrentIndex(1);
    EXPECT_EQ(table("stretchGrid").model()->rowCount(), 1) << "it is one root";
    EXPECT_THAT(verdict(), ::testing::StartsWith("211.11 +- 0.00 KEAS, 9.83 Hz, flutter, mode 2"));
}

TEST_F(StabilityExamples, givesOnlyTheIntervalOfAJump)
{
    show("jump", 0);
    EXPECT_NEAR(lowestInTheTable(), 219, 5) << "a line between two roots";
    EXPECT_EQ(verdict(), "between 212.5 and 225 KEAS, different roots, mode 1 (C)");
}

TEST_F(StabilityExamples, areComparedWithTheWingInTheTrendWindow)
{
    load();
    window.document().load({sample("goland_clean_m040.ev2"), sample("goland_clean_m050.ev2"),
                            sample("goland_clean_m060.ev2"), sample("goland_tipstore_m040.ev2"),
                            sample("goland_tipstore_m050.ev2"), sample("goland_tipstore_m060.ev2")},
                           user);
    AirplaneInfo airplane;
    airplane.Filename = sample("goland.inp");
    airplane.Create();
    window.document().setAirplane(airplane);
    auto& tree = *window.findChild<QTreeWidget*>(QStringLiteral("tvwEvolExplorer"));
    for (QTreeWidgetItem* node :
         tree.findItems(QStringLiteral("goland_"), Qt::MatchStartsWith | Qt::MatchRecursive))
        node->setCheckState(0, Qt::Checked);
    choose("flutterTrend");
    auto& trend = *window.findChild<QDialog*>(QStringLiteral("trendWindow"));
    trend.resize(1000, 760);
    QApplication::processEvents();
    const auto& points = *trend.findChild<QTableView*>(QStringLiteral("trendGrid"))->model();
    EXPECT_EQ(points.rowCount(), 12) << "six evolutions at two levels";
    EXPECT_EQ(points.index(0, 13).data().toString(), QStringLiteral("241.5")) << "1.15 x 210";
    keepForTheGuide("trend.png", trend.grab().toImage());
}
