// SPDX-License-Identifier: Apache-2.0

// The series of the Data Control window: modes, order, colours and markers.

#include "WndDataFixture.h"

#include "datacontrol/DlgSeriesStyle.h"
#include "plot/Marker.h"
#include "surface/DeviceContext.h"

#include <QComboBox>
#include <QMenu>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolButton>

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>

using namespace tarsil;
using test::partOf;
using test::warning;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace {

class WndDataSeries : public test::WndDataTest
{
protected:
    /// Four rows: modes 1 to 3 of one evolution, mode 1 of another that has two.
    void addRows()
    {
        EVM& first = load("a.ev2");
        for (std::size_t mode = 1; mode <= 3; ++mode)
            add(first, mode);
        add(load("b.ev2", 2));
    }
    void choose(const char* marker) { partOf<QRadioButton>(data, marker).click(); }
    test::Texts modes() { return column(SeriesColumn::Mode); }
    /// Runs an action in the editor of the line and closes it.
    static void inLineEditor(const std::function<void(dlgSeriesStyle&)>& action,
                             QDialog::DialogCode end)
    {
        QTimer::singleShot(0, [=] {
            auto* const dialog = qobject_cast<dlgSeriesStyle*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            action(*dialog);
            dialog->done(end);
        });
    }
};

} // namespace

TEST_F(WndDataSeries, showsTheSeriesOfTheActivePlot)
{
    EXPECT_EQ(model().rowCount(), 0);
    addRows();
    EXPECT_THAT(column(SeriesColumn::Evolution), ElementsAre("a.ev2", "a.ev2", "a.ev2", "b.ev2"));
    EXPECT_THAT(modes(), ElementsAre("1", "2", "3", "1"));
    EvmPlot& second = plots.AddPlot({});
    plots.ActivatePlot(&second);
    EXPECT_EQ(model().rowCount(), 0);
    plots.RemovePlot(&second);
    EXPECT_EQ(model().rowCount(), 4);
}

TEST_F(WndDataSeries, givesAddedCurvesTheMarkersOfTheInputs)
{
    test::type(data, "mksizeInp", "12");
    choose("tagBtn");
    addRows();
    EXPECT_EQ(series().front().MarkerStyle, markerNumber(MarkerKind::Tag));
    EXPECT_EQ(series().front().MarkerSize, 12);
    EXPECT_EQ(series().front().MarkerSpacing, 10);
    EXPECT_EQ(series()[1].MarkerForegroundColor, BaseColors[1]);
}

TEST_F(WndDataSeries, givesAddedCurvesPlainMarkersWhileTheOptionsAreWrong)
{
    addRows();
    test::type(data, "mksizeInp", "big");
    add(load("c.ev2"));
    EXPECT_EQ(series().back().MarkerStyle, markerNumber(MarkerKind::ModeNumber));
    EXPECT_THAT(user.messages, IsEmpty());
    click("cmdDrawPlot");
    EXPECT_EQ(user.messages.size(), 1U);
}

TEST_F(WndDataSeries, raisesTheModesOfTheSelectedRowsUpToTheLast)
{
    addRows();
    select(1, 3, SeriesColumn::Mode);
    click("cmdIncMode");
    EXPECT_THAT(modes(), ElementsAre("1", "3", "3", "2"));
    EXPECT_THAT(drawnModes(), ElementsAre(1, 3, 3, 2));
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(WndDataSeries, lowersTheModesOfTheSelectedRowsAndReportsAMissingOne)
{
    addRows();
    select(0, 2, SeriesColumn::Mode);
    click("cmdDecMode");
    EXPECT_THAT(modes(), ElementsAre("0", "1", "3", "1"));
    EXPECT_THAT(drawnModes(), ElementsAre(1, 3, 1)) << "mode 0 has no curve";
    EXPECT_THAT(user.messages, ElementsAre(warning("There is no mode 0 in modal evolution a.ev2")));
    select(0, 1, SeriesColumn::Mode);
    click("cmdDecMode");
    EXPECT_EQ(modes().front(), "0") << "it goes no lower";
    click("cmdIncMode");
    EXPECT_THAT(drawnModes(), ElementsAre(1, 1, 3, 1)) << "its curve is back";
    EXPECT_EQ(series().front().MarkerTag, QStringLiteral("0"));
}

TEST_F(WndDataSeries, refusesToChangeModesWithoutASelectionInTheirColumn)
{
    addRows();
    click("cmdIncMode");
    select(0, 2, SeriesColumn::Legend);
    click("cmdIncMode");
    click("cmdDecMode");
    EXPECT_THAT(user.messages,
                ElementsAre(warning("Please select cells in \"Mode\" column."),
                            warning("Please select cells in \"Mode\" column."),
                            warning("You must first select cells in mode column!")));
    EXPECT_THAT(modes(), ElementsAre("1", "2", "3", "1"));
}

TEST_F(WndDataSeries, raisesNoModeBeyondWhatTheEvolutionDeclares)
{
    EVM& cut = load("cut.ev2", 2);
    cut.na = 3; // the file declares one mode more than it has
    add(cut, 2);
    select(0, 1, SeriesColumn::Mode);
    click("cmdIncMode");
    click("cmdIncMode");
    EXPECT_THAT(modes(), ElementsAre("3"));
    EXPECT_THAT(drawnModes(), IsEmpty());
    EXPECT_EQ(user.messages.back(), warning("There is no mode 3 in modal evolution cut.ev2"));
}

TEST_F(WndDataSeries, drawsAModeThatIsTyped)
{
    addRows();
    EXPECT_TRUE(type(0, SeriesColumn::Mode, "3"));
    EXPECT_THAT(drawnModes(), ElementsAre(3, 2, 3, 1));
    EXPECT_TRUE(type(3, SeriesColumn::Mode, "9"));
    EXPECT_THAT(user.messages, ElementsAre(warning("There is no mode 9 in modal evolution b.ev2")));
    EXPECT_THAT(drawnModes(), ElementsAre(3, 2, 3));
    EXPECT_FALSE(type(1, SeriesColumn::Mode, "x"));
    EXPECT_THAT(user.messages.back().text,
                StartsWith("Error # 13 was generated by wndData in Module wndData\r"));
}

TEST_F(WndDataSeries, removesTheSelectedRowsAndTheOnlyOne)
{
    addRows();
    select(1, 1, SeriesColumn::Evolution);
    click("cmdRemove");
    EXPECT_THAT(drawnModes(), ElementsAre(1, 3, 1));
    EXPECT_THAT(grid().selectedRows(), ElementsAre(1)) << "the row after it";
    select(0, 2, SeriesColumn::Evolution);
    click("cmdRemove");
    EXPECT_THAT(column(SeriesColumn::Evolution), ElementsAre("b.ev2"));
    grid().selectionModel()->clear();
    click("cmdRemove");
    EXPECT_EQ(model().rowCount(), 0);
    EXPECT_EQ(model().columnCount(), 6) << "the headings stay";
    EXPECT_THAT(series(), IsEmpty());
    click("cmdRemove");
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(WndDataSeries, movesTheSelectedRowsUpAndElsewhere)
{
    addRows();
    select(2, 2, SeriesColumn::Tag);
    partOf<QToolButton>(data, "btnSerieMove").click();
    EXPECT_THAT(column(SeriesColumn::Tag), ElementsAre("0", "2", "3", "1"));
    const QList<QAction*> actions = partOf<QToolButton>(data, "btnSerieMove").menu()->actions();
    actions.at(3)->trigger();
    EXPECT_THAT(column(SeriesColumn::Tag), ElementsAre("0", "1", "2", "3"));
    actions.at(2)->trigger();
    EXPECT_THAT(column(SeriesColumn::Tag), ElementsAre("2", "3", "0", "1"));
    actions.at(1)->trigger();
    EXPECT_THAT(column(SeriesColumn::Tag), ElementsAre("0", "2", "3", "1"));
}

TEST_F(WndDataSeries, keepsSelectionAndCurrentCellWithTheirRows)
{
    addRows();
    grid().setCurrentIndex(model().index(2, static_cast<int>(SeriesColumn::Legend)));
    grid().selectionModel()->select(model().index(3, static_cast<int>(SeriesColumn::Tag)),
                                    QItemSelectionModel::Select);
    const auto selected = [this] {
        test::Texts cells;
        for (const QModelIndex& one : grid().selectionModel()->selectedIndexes())
            cells.push_back(cell(one.row(), SeriesColumn::Tag) + "/"
                            + std::to_string(one.column()));
        std::sort(cells.begin(), cells.end());
        return cells;
    };
    const auto hasMoved = [&](int currentRow) {
        EXPECT_THAT(selected(), ElementsAre("2/5", "3/2"));
        EXPECT_EQ(grid().currentIndex().row(), currentRow);
        EXPECT_EQ(grid().currentIndex().column(), static_cast<int>(SeriesColumn::Legend));
    };
    partOf<QToolButton>(data, "btnSerieMove").click();
    hasMoved(1);
    plot().rows().remove({0}); // from outside the window
    hasMoved(0);
    click("cmdDrawPlot");
    hasMoved(0);
}

TEST_F(WndDataSeries, writesWhatIsBeingTypedBeforeACommand)
{
    addRows();
    data.show();
    startTyping(0, SeriesColumn::Legend, "typed");
    partOf<QToolButton>(data, "btnSerieMove").click();
    EXPECT_EQ(series()[0].LegendText, QStringLiteral("typed"));
    startTyping(1, SeriesColumn::Mode, "3");
    partOf<QToolButton>(data, "btnSerieMove").menu()->actions().at(3)->trigger();
    EXPECT_THAT(drawnModes(), ElementsAre(1, 3, 1, 3)) << "the row is the last one now";
    startTyping(0, SeriesColumn::Tag, "T");
    data.commitEdits();
    EXPECT_EQ(series()[0].MarkerTag, QStringLiteral("T"));
}

TEST_F(WndDataSeries, writesWhatIsBeingTypedIntoThePlotThatWasActive)
{
    addRows();
    data.show();
    EvmPlot& first = plot();
    EvmPlot& second = plots.AddPlot({});
    startTyping(0, SeriesColumn::Mode, "2");
    plots.ActivatePlot(&second);
    EXPECT_EQ(first.SeriesCollection().front().Mode->Id, 2);
    EXPECT_TRUE(second.SeriesCollection().empty());
}

TEST_F(WndDataSeries, givesTheSeriesTheirColoursAgain)
{
    addRows();
    change(2, [](Series& one) { one.ColorIndex = 5; });
    click("btnResColor");
    EXPECT_EQ(series()[2].ColorIndex, BaseColors[2]);
}

TEST_F(WndDataSeries, storesTheMarkerOptionsIntoEveryRow)
{
    addRows();
    test::type(data, "mksizeInp", "9.5");
    test::type(data, "mkspaceInp", "4");
    test::type(data, "ithmpfInp", "3");
    choose("ithmpfBtn");
    for (const Series& one : series()) {
        EXPECT_EQ(one.MarkerStyle, markerNumber(MarkerKind::ParticipationFactor));
        EXPECT_EQ(one.MarkerSize, 10); // half a point rounds to even
        EXPECT_EQ(one.MarkerSpacing, 4);
        EXPECT_EQ(one.IthMpf, 3);
    }
    choose("womkBtn");
    EXPECT_EQ(series().back().MarkerStyle, markerNumber(MarkerKind::None));
    EXPECT_EQ(series().back().IthMpf, 3) << "kept for the next time";
    test::type(data, "ithmpfInp", "");
    click("cmdDrawPlot");
    EXPECT_THAT(user.messages, IsEmpty()) << "it is no marker now";
}

TEST_F(WndDataSeries, drawsThePlotAgainWhenTagsAreChosen)
{
    addRows();
    plot().SetScale(0, 300, 0, 50, 0, -0.25F);
    test::type(data, "mkspaceInp", "1");
    const QImage before = plot().Image();
    choose("tagBtn");
    EXPECT_EQ(series().front().MarkerStyle, markerNumber(MarkerKind::Tag));
    EXPECT_NE(plot().Image(), before);
    click("cmdDrawPlot");
    const QImage plotted = plot().Image();
    choose("tagBtn"); // again
    EXPECT_EQ(plot().Image(), plotted);
}

TEST_F(WndDataSeries, changesOnlyTheMarkerOptionThatTheUserChanges)
{
    addRows();
    change(1, [](Series& one) {
        one.MarkerSpacing = 3;
        one.MarkerStyle = markerNumber(MarkerKind::None);
    });
    test::type(data, "mksizeInp", "12");
    EXPECT_EQ(series()[1].MarkerSize, 12);
    EXPECT_EQ(series()[1].MarkerSpacing, 3) << "rows of a workspace may differ";
    EXPECT_EQ(series()[1].MarkerStyle, markerNumber(MarkerKind::None));
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(WndDataSeries, highlightsAMarkerOptionThatIsNoNumberAndUsesTheOthers)
{
    addRows();
    auto& size = partOf<QLineEdit>(data, "mksizeInp");
    const QString usual = size.toolTip();
    const auto isMarked = [&] {
        const bool isShown = size.actions().front()->isVisible();
        EXPECT_EQ(size.accessibleDescription().isEmpty(), !isShown);
        EXPECT_EQ(size.toolTip() == usual, !isShown);
        return isShown;
    };
    for (const char* text : {"big", "", "-5", "0", "1e10"}) {
        test::type(data, "mksizeInp", text);
        EXPECT_TRUE(isMarked()) << text;
        EXPECT_EQ(series().front().MarkerSize, 8) << text;
    }
    choose("tagBtn");
    EXPECT_EQ(series().front().MarkerStyle, markerNumber(MarkerKind::Tag));
    test::type(data, "mksizeInp", "11");
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(series().front().MarkerSize, 11);
    EXPECT_THAT(user.messages, IsEmpty());
}

TEST_F(WndDataSeries, highlightsTheIndexOfAFactorOnlyWhereItIsTheMarker)
{
    addRows();
    const QAction& sign = *partOf<QLineEdit>(data, "ithmpfInp").actions().front();
    test::type(data, "ithmpfInp", "6");
    EXPECT_FALSE(sign.isVisible());
    choose("ithmpfBtn");
    EXPECT_TRUE(sign.isVisible());
    EXPECT_EQ(series().front().IthMpf, 1);
    test::type(data, "ithmpfInp", "5");
    EXPECT_FALSE(sign.isVisible());
    EXPECT_EQ(series().front().IthMpf, 5);
}

TEST_F(WndDataSeries, changesNoMarkerOfAPlotThatBecomesActive)
{
    addRows();
    EvmPlot& opened = plots.AddPlot({});
    for (const int spacing : {3, 4})
        opened.rows().change(opened.rows().add(*evolutions().front()->Modes[0]),
                             [spacing](Series& one) { one.MarkerSpacing = spacing; });
    plots.ActivatePlot(&opened);
    EXPECT_EQ(test::textIn(data, "mkspaceInp"), "3");
    EXPECT_EQ(series().back().MarkerSpacing, 4);
}

TEST_F(WndDataSeries, namesAllModesThatAreNotThereInOneBox)
{
    addRows();
    EXPECT_TRUE(type(3, SeriesColumn::Mode, "3"));
    user.messages.clear();
    select(0, 4, SeriesColumn::Mode);
    for (int i = 0; i < 2; ++i)
        click("cmdDecMode");
    const auto two = warning("There is no mode 0 in modal evolution a.ev2\n"
                             "There is no mode 0 in modal evolution a.ev2");
    EXPECT_EQ(user.messages.back(), two);
    click("cmdDrawPlot");
    EXPECT_EQ(user.messages.back(), two);
    EXPECT_THAT(drawnModes(), ElementsAre(1, 1));
    EXPECT_THAT(modes(), ElementsAre("0", "0", "1", "1"));
}

TEST_F(WndDataSeries, drawsATypedModeAlsoWhileAMarkerOptionIsWrong)
{
    addRows();
    test::type(data, "mksizeInp", "big");
    EXPECT_TRUE(type(0, SeriesColumn::Mode, "9"));
    EXPECT_THAT(drawnModes(), ElementsAre(2, 3, 1));
    EXPECT_THAT(user.messages, ElementsAre(warning("There is no mode 9 in modal evolution a.ev2")));
}

TEST_F(WndDataSeries, keepsRowsWithoutACurveThroughTheOtherCommands)
{
    addRows();
    EXPECT_TRUE(type(1, SeriesColumn::Mode, "0"));
    user.messages.clear();
    select(1, 1, SeriesColumn::Mode);
    partOf<QToolButton>(data, "btnSerieMove").click();
    EXPECT_THAT(modes(), ElementsAre("0", "1", "3", "1"));
    EXPECT_THAT(grid().selectedRows(), ElementsAre(0));
    click("btnFilltLeg"); // the file name, in this row only
    click("btnPlotLeg");
    EXPECT_EQ(cell(0, SeriesColumn::Legend), "a.ev2");
    EXPECT_EQ(plot().Legend().Text(), QString()) << "a legend has lines for curves";
    EvmPlot& first = plot();
    plots.ActivatePlot(&plots.AddPlot({}));
    EXPECT_EQ(model().rowCount(), 0);
    plots.ActivatePlot(&first);
    EXPECT_THAT(modes(), ElementsAre("0", "1", "3", "1"));
    select(0, 2, SeriesColumn::Mode);
    click("cmdRemove");
    EXPECT_THAT(drawnModes(), ElementsAre(3, 1));
    EXPECT_THAT(modes(), ElementsAre("3", "1"));
}

TEST_F(WndDataSeries, reportsAMarkerOptionThatIsNoNumberAndChangesNothing)
{
    addRows();
    test::type(data, "mksizeInp", "big");
    select(0, 1, SeriesColumn::Mode);
    click("cmdIncMode");
    ASSERT_EQ(user.messages.size(), 1U);
    EXPECT_THAT(user.messages[0].text,
                StartsWith("Error # 13 was generated by wndData in Module wndData\r"));
    EXPECT_THAT(modes(), ElementsAre("1", "2", "3", "1"));
}

TEST_F(WndDataSeries, reportsMarkerOptionsThatCannotBe)
{
    addRows();
    const auto reports = [&](const char* input, const char* text, const char* report) {
        const std::string before = test::textIn(data, input);
        test::type(data, input, text);
        click("cmdDrawPlot");
        EXPECT_THAT(user.messages.back().text, StartsWith(report)) << input << " " << text;
        test::type(data, input, before);
    };
    const char* const error5 = "Error # 5 was generated by wndData in Module wndData\r";
    reports("mksizeInp", "-5", error5);
    reports("mkspaceInp", "0", error5);
    reports("mkspaceInp", "1e10", "Error # 6 was generated by wndData");
    choose("ithmpfBtn");
    reports("ithmpfInp", "6", error5); // a point has five factors
    reports("ithmpfInp", "0", error5);
    EXPECT_EQ(series().front().MarkerSize, 8) << "nothing was stored";
    EXPECT_EQ(series().front().IthMpf, 1);
    test::type(data, "ithmpfInp", "6");
    click("cmdDrawPlot");
    EXPECT_THAT(user.messages.back().text, EndsWith("6 is not from 1 to 5"));
    test::type(data, "mksizeInp", "0");
    click("cmdDrawPlot");
    EXPECT_THAT(user.messages.back().text, EndsWith("Size: 0 is less than 1"));
}

TEST_F(WndDataSeries, acceptsTheSpacingOfAFileThatDrawsNearlyNoMarkers)
{
    EVM& evolution = load("a.ev2");
    EvmPlot& opened = plots.AddPlot({});
    opened.rows().change(opened.rows().add(*evolution.Modes[0]),
                         [](Series& one) { one.MarkerSpacing = 100000; });
    plots.ActivatePlot(&opened);
    EXPECT_TRUE(type(0, SeriesColumn::Mode, "2"));
    EXPECT_THAT(user.messages, IsEmpty());
    EXPECT_EQ(series().front().MarkerSpacing, 100000);
}

TEST_F(WndDataSeries, refusesASpacingThatIsNotPositive)
{
    for (const char* spacing : {"0", "-3", "0.5", "-1e99"}) { // 0.5 rounds to even
        test::type(data, "mkspaceInp", "7");
        Q_EMIT partOf<QLineEdit>(data, "mkspaceInp").editingFinished();
        test::type(data, "mkspaceInp", spacing);
        Q_EMIT partOf<QLineEdit>(data, "mkspaceInp")
            .editingFinished(); // as when the focus leaves it
        ASSERT_EQ(user.messages.size(), 1U);
        EXPECT_EQ(user.messages[0], warning("The spacing must be greater then zero!"));
        EXPECT_EQ(test::textIn(data, "mkspaceInp"), "7");
        user.messages.clear();
    }
}

TEST_F(WndDataSeries, showsTheMarkersOfThePlotThatBecomesActive)
{
    EVM& evolution = load("a.ev2");
    EvmPlot& opened = plots.AddPlot({});
    opened.rows().change(opened.rows().add(*evolution.Modes[0]), [](Series& one) {
        one.MarkerStyle = markerNumber(MarkerKind::ParticipationFactor);
        one.MarkerSize = 14;
        one.MarkerSpacing = 3;
        one.IthMpf = 2;
    });
    plots.ActivatePlot(&opened);
    EXPECT_EQ(test::textIn(data, "mksizeInp"), "14");
    EXPECT_EQ(test::textIn(data, "mkspaceInp"), "3");
    EXPECT_EQ(test::textIn(data, "ithmpfInp"), "2");
    EXPECT_TRUE(partOf<QRadioButton>(data, "ithmpfBtn").isChecked());
}

TEST_F(WndDataSeries, changesTheLineOfTheSelectedRows)
{
    addRows();
    change(1, [](Series& one) { one.MarkerForegroundColor = one.ColorIndex; });
    select(1, 2, SeriesColumn::Line);
    inLineEditor(
        [](dlgSeriesStyle& dialog) {
            EXPECT_EQ(dialog.look().color, BaseColors[1]);
            dialog.setColor(rgb(1, 2, 3));
            partOf<QComboBox>(dialog, "cmbStyle").setCurrentIndex(penstyle::dot);
            partOf<QSpinBox>(dialog, "inpWidth").setValue(2);
        },
        QDialog::Accepted);
    Q_EMIT grid().styleWanted();
    for (const std::size_t row : {1U, 2U}) {
        EXPECT_EQ(series()[row].ColorIndex, rgb(1, 2, 3));
        EXPECT_EQ(series()[row].MarkerForegroundColor, rgb(1, 2, 3));
        EXPECT_EQ(series()[row].LineStyle, penstyle::dot);
        EXPECT_EQ(series()[row].LineWidth, 2);
    }
    EXPECT_EQ(series()[0].ColorIndex, BaseColors[0]);
}

TEST_F(WndDataSeries, changesOnlyWhatTheUserChangedInTheOtherRows)
{
    addRows();
    change(2, [](Series& one) {
        one.LineStyle = penstyle::dot;
        one.LineWidth = 3;
    });
    select(1, 2, SeriesColumn::Line);
    inLineEditor([](dlgSeriesStyle& dialog) { dialog.setColor(7); }, QDialog::Accepted);
    Q_EMIT grid().styleWanted();
    EXPECT_EQ(series()[2].ColorIndex, 7);
    EXPECT_EQ(series()[2].LineStyle, penstyle::dot);
    EXPECT_EQ(series()[2].LineWidth, 3);
}

TEST_F(WndDataSeries, leavesTheLineAloneWhenTheEditorIsCancelledOrChangesNothing)
{
    addRows();
    select(1, 2, SeriesColumn::Line);
    inLineEditor([](dlgSeriesStyle& dialog) { dialog.setColor(7); }, QDialog::Rejected);
    Q_EMIT grid().styleWanted();
    inLineEditor([](dlgSeriesStyle&) {}, QDialog::Accepted);
    Q_EMIT grid().styleWanted();
    EXPECT_EQ(series()[1].ColorIndex, BaseColors[1]);
    EXPECT_EQ(series()[2].ColorIndex, BaseColors[2]) << "the second row keeps its own";
}

TEST_F(WndDataSeries, asksForAPlotWhenNoneIsActive)
{
    plots.ActivatePlot(nullptr);
    for (const char* button : {"cmdDrawPlot", "btnFitFreq", "btnResColor", "SavePic", "btnPlotLeg"})
        click(button);
    partOf<QToolButton>(data, "btnSerieMove").click(); // nothing to move
    click("cmdRemove");
    EXPECT_EQ(user.messages.size(), 5U);
    for (const auto& message : user.messages)
        EXPECT_EQ(message, warning("Please select activate a plot."));
}
