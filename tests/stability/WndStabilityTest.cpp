// SPDX-License-Identifier: Apache-2.0
#include "stability/WndStability.h"

#include "aircraft/AirplaneInfo.h"
#include "analysis/ModeBuilder.h"
#include "document/Document.h"
#include "support/ScriptedUserInterface.h"
#include "vgfplot/EvmPlot.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace tarsil;
using test::addMode;

namespace {

/// The window over an active plot without rows, and two evolutions of the document.
class WndStabilityTest : public ::testing::Test
{
protected:
    WndStabilityTest() : window(document, user)
    {
        OwnedEvolutions evolutions;
        evolutions.push_back(std::make_unique<EVM>());
        evolutions.push_back(std::make_unique<EVM>());
        first = evolutions[0].get();
        second = evolutions[1].get();
        first->FileName = "first.ev2";
        second->FileName = "second.ev2";
        addMode(*first, 1, {{300, -0.5F, 8}, {400, 0.5F, 10}});
        addMode(*second, 1, {{300, -0.5F, 8}, {320, 0.002F, 10}, {340, -0.5F, 10}});
        document.evolutions().add(std::move(evolutions));
        document.plots().activate(&document.plots().first());
        part<QLineEdit>("levelsInp").setText(QStringLiteral("0"));
        window.show();
    }

    template <typename Widget>
    Widget& part(const char* name)
    {
        return *window.findChild<Widget*>(QString::fromLatin1(name));
    }

    EvmPlot& plot() { return document.plots().first(); }

    void draw(EVM& evolution)
    {
        plot().rows().add(newSeries(*evolution.Modes[0], 0));
        QCoreApplication::processEvents();
    }

    int stretchCount() { return part<QTableView>("stretchGrid").model()->rowCount(); }
    int verdictCount() { return part<QTableView>("verdictGrid").model()->rowCount(); }

    Document document;
    test::ScriptedUserInterface user;
    wndStability window;
    EVM* first = nullptr;
    EVM* second = nullptr;
};

} // namespace

TEST_F(WndStabilityTest, followsTheRowsOfTheActivePlot)
{
    EXPECT_EQ(part<QLabel>("leftOutLabel").text().toStdString(), "The active plot has no rows.");
    draw(*first);
    EXPECT_EQ(verdictCount(), 1);
    EXPECT_EQ(stretchCount(), 1);
    draw(*second);
    EXPECT_EQ(verdictCount(), 2);
    EXPECT_EQ(stretchCount(), 2);
    document.plots().activate(&document.plots().add({}));
    EXPECT_EQ(verdictCount(), 0);
    document.plots().activate(&plot());
    EXPECT_EQ(verdictCount(), 2);
}

TEST_F(WndStabilityTest, letsGoOfEvolutionsThatAreRemoved)
{
    draw(*first);
    draw(*second);
    document.remove({second});
    QCoreApplication::processEvents();
    EXPECT_EQ(verdictCount(), 1);
    EXPECT_EQ(stretchCount(), 1);
}

TEST_F(WndStabilityTest, judgesAgainWithOtherSettings)
{
    addMode(*first, 2, {{300, -0.5F, 12}, {400, -0.5F, 14}});
    addMode(*second, 2, {{300, -0.5F, 12}, {320, -0.5F, 13}, {340, -0.5F, 14}});
    draw(*first);
    draw(*second);
    part<QLineEdit>("toleranceInp").setText(QStringLiteral("0.01"));
    EXPECT_EQ(stretchCount(), 1) << "0.002 is weak now";
    EXPECT_EQ(part<QLabel>("leftOutLabel").text().toStdString(),
              "0 noise, 1 weak stretches left out");
    part<QLineEdit>("levelsInp").setText(QStringLiteral("0, 0.1, 0.2"));
    EXPECT_EQ(stretchCount(), 3);
    part<QComboBox>("rootsCmb").setCurrentIndex(1);
    EXPECT_EQ(stretchCount(), 0) << "points without eigenvalues cannot be tracked";
    EXPECT_EQ(verdictCount(), 2);
}

TEST_F(WndStabilityTest, highlightsASettingThatIsNoNumberAndKeepsTheLast)
{
    draw(*first);
    QLineEdit& levels = part<QLineEdit>("levelsInp");
    const QString usual = levels.toolTip();
    levels.setText(QStringLiteral("0, high"));
    EXPECT_EQ(stretchCount(), 1);
    EXPECT_NE(levels.toolTip(), usual);
    levels.setText(QStringLiteral("0"));
    EXPECT_EQ(levels.toolTip(), usual);
    QLineEdit& tolerance = part<QLineEdit>("toleranceInp");
    const QString usualTolerance = tolerance.toolTip();
    tolerance.setText(QStringLiteral("-1"));
    EXPECT_NE(tolerance.toolTip(), usualTolerance);
    EXPECT_EQ(stretchCount(), 1);
    EXPECT_TRUE(user.messages.empty());
}

TEST_F(WndStabilityTest, pointsOutTheStretchThatIsChosen)
{
    draw(*first);
    std::vector<std::optional<PlotHighlight>> shown;
    QObject::connect(&window, &wndStability::pointedOut,
                     [&](const std::optional<PlotHighlight>& one) { shown.push_back(one); });
    std::vector<std::int16_t> modes;
    QObject::connect(&window, &wndStability::modeChosen, [&](const EVM& evolution, int mode) {
        EXPECT_EQ(&evolution, first);
        modes.push_back(static_cast<std::int16_t>(mode));
    });
    part<QTableView>("stretchGrid").selectRow(0);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].value().fromSpeed, 350);
    EXPECT_EQ(modes, std::vector<std::int16_t> {1});
    window.close();
    EXPECT_FALSE(shown.back());
}

TEST_F(WndStabilityTest, letsModesBeExchangedFromADoubtOn)
{
    // Two roots cross between 200 and 300: Im is 10, 20, 30 and 40, 31, 20.
    AeMode& other = addMode(*first, 2, {{100, -1, 4}, {200, -1, 3}, {300, -1, 2}});
    first->Modes[0]->copyFrom(other);
    first->Modes[0]->Id = 1;
    const float roots[2][3] = {{10, 20, 30}, {40, 31, 20}};
    for (std::size_t mode = 0; mode < 2; ++mode) {
        for (std::size_t i = 0; i < 3; ++i)
            first->Modes[mode]->Points[i].im = roots[mode][i];
    }
    draw(*first);
    const auto& doubts = part<QTableView>("doubtGrid");
    ASSERT_GT(doubts.model()->rowCount(), 0);
    EXPECT_FALSE(part<QPushButton>("exchangeBtn").isEnabled());
    std::vector<ModeExchange> wanted;
    QObject::connect(&window, &wndStability::exchangeWanted,
                     [&](const EVM&, const ModeExchange& one) { wanted.push_back(one); });
    part<QTableView>("doubtGrid").selectRow(0);
    part<QPushButton>("exchangeBtn").click();
    ASSERT_EQ(wanted.size(), 1U);
    EXPECT_EQ(wanted[0].firstMode + wanted[0].secondMode, 3);
    EXPECT_EQ(doubts.model()->index(0, 3).data().toFloat(), wanted[0].aboveSpeed);
}

TEST_F(WndStabilityTest, zoomsToAStretchAsAStepThatCanBeUndone)
{
    draw(*first);
    const PlotAxes before = plot().axes();
    QTableView& table = part<QTableView>("stretchGrid");
    Q_EMIT table.activated(table.model()->index(0, 0));
    EXPECT_GT(plot().axes().speed.min, 200);
    EXPECT_LT(plot().axes().speed.max, 500);
    document.history().undo();
    EXPECT_EQ(plot().axes(), before);
}

TEST_F(WndStabilityTest, drawsWhatTheAirplaneRequires)
{
    EXPECT_FALSE(part<QPushButton>("linesBtn").isEnabled());
    AirplaneInfo airplane;
    airplane.VdTag = "VD";
    airplane.FlutterEnvs.push_back({250, 200, 180, "0.40"});
    document.setAirplane(airplane);
    draw(*first);
    QTest::mouseClick(&part<QPushButton>("linesBtn"), Qt::LeftButton);
    EXPECT_EQ(user.messages.size(), 1U) << "no envelope for Mach number 0";
    document.evolutions().setParameters(*first, {"", "", 0.4F});
    part<QLineEdit>("factorInp").setText(QStringLiteral("1.2"));
    QTest::mouseClick(&part<QPushButton>("linesBtn"), Qt::LeftButton);
    ASSERT_EQ(plot().references().referenceSpeeds().size(), 1U);
    EXPECT_EQ(plot().references().referenceSpeeds()[0].Speed, 240);
    EXPECT_EQ(plot().references().referenceSpeeds()[0].Caption.toStdString(), "1.2 VD");
    ASSERT_EQ(plot().references().dampingLines().size(), 1U);
    EXPECT_EQ(plot().references().dampingLines()[0].Y1, 0.03F);
    document.history().undo();
    EXPECT_TRUE(plot().references().referenceSpeeds().empty());
    EXPECT_TRUE(plot().references().dampingLines().empty());
}

TEST_F(WndStabilityTest, drawsLimitSpeedAndCeilingWhenWanted)
{
    AirplaneInfo airplane;
    airplane.VLTag = "VMO";
    airplane.FlutterEnvs.push_back({250, 200, 180, "0.40"});
    document.setAirplane(airplane);
    document.evolutions().setParameters(*first, {"", "", 0.4F});
    draw(*first);
    part<QCheckBox>("envelopeChk").setChecked(true);
    QTest::mouseClick(&part<QPushButton>("linesBtn"), Qt::LeftButton);
    std::vector<std::pair<float, std::string>> speeds;
    for (const RefThick& one : plot().references().referenceSpeeds())
        speeds.emplace_back(one.Speed, one.Caption.toStdString());
    // 230 is 1.15 x 200.
    EXPECT_EQ(speeds,
              (std::vector<std::pair<float, std::string>> {
                  {180, "Ceiling"}, {230, "1.15 Vd"}, {250, "VMO"}}));
}
