// SPDX-License-Identifier: Apache-2.0

// The rows of a plot, with and without a curve.

#include "vgfplot/PlotRows.h"

#include "analysis/ModeBuilder.h"
#include "support/Errors.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <set>

using namespace tarsil;
using test::errorNumberOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

namespace {

/// A plot with a row for each of the five modes of one evolution, tagged 0 to 4.
class PlotRowsTest : public ::testing::Test
{
protected:
    PlotRowsTest()
    {
        fill(evolution, 5);
        fill(other, 2);
        for (const auto& mode : evolution.Modes)
            plot.rows().add(*mode);
    }

    static void fill(EVM& evolution, std::int16_t modes)
    {
        for (std::int16_t id = 1; id <= modes; ++id)
            test::addMode(evolution, id, {{100, -0.02F, 5}, {200, 0.01F, 6}});
    }

    PlotRows& rows() { return plot.rows(); }
    const PlotRow& row(std::size_t index) { return rows().at(index); }
    void setMode(std::size_t index, std::int32_t number) { rows().setMode(row(index).id, number); }
    std::vector<int> numbers()
    {
        std::vector<int> modes;
        for (const PlotRow& one : rows().all())
            modes.push_back(one.mode);
        return modes;
    }
    std::string tags()
    {
        std::string tags;
        for (const PlotRow& one : rows().all())
            tags += one.series.MarkerTag.toStdString();
        return tags;
    }
    /// The modes of the series.
    std::vector<int> drawn()
    {
        std::vector<int> ids;
        for (const Series& one : plot.SeriesCollection())
            ids.push_back(one.Mode->Id);
        return ids;
    }
    std::vector<RowId> ids()
    {
        std::vector<RowId> ids;
        for (const PlotRow& one : rows().all())
            ids.push_back(one.id);
        return ids;
    }

    EVM evolution;
    EVM other;
    EvmPlot plot;
};

} // namespace

TEST_F(PlotRowsTest, hideCurvesWithoutAChangeOfLookOrMode)
{
    const SeriesList before = plot.SeriesCollection();
    std::vector<std::size_t> changed;
    QObject::connect(&rows(), &PlotRows::rowChanged, &rows(),
                     [&changed](std::size_t index) { changed.push_back(index); });
    rows().setHidden({1, 3}, true);
    EXPECT_THAT(drawn(), ElementsAre(1, 3, 5));
    EXPECT_EQ(rows().curveCount(), 3U);
    EXPECT_THAT(rows().hidden(), ElementsAre(1, 3));
    EXPECT_THAT(rows().withoutMode(), IsEmpty());
    EXPECT_EQ(row(1).series, before[1]);
    rows().setHidden({1}, true);
    EXPECT_THAT(changed, ElementsAre(1, 3)) << "row 1 was hidden before";
    rows().setHidden({0, 1, 3}, false);
    EXPECT_EQ(plot.SeriesCollection(), before);
    EXPECT_EQ(rows().curveCount(), 5U);
}

TEST_F(PlotRowsTest, stayHiddenWhateverChangesThem)
{
    rows().setHidden({1}, true);
    setMode(1, 9);
    setMode(1, 2);
    rows().change(row(1).id, [](Series& look) { look.LineWidth = 3; });
    rows().move(1, 4);
    EXPECT_THAT(rows().hidden(), ElementsAre(4));
    EXPECT_THAT(drawn(), ElementsAre(1, 3, 4, 5));
    rows().remove({0});
    EXPECT_THAT(rows().hidden(), ElementsAre(3));
    EXPECT_EQ(rows().curveCount(), 3U);
}

TEST_F(PlotRowsTest, haveASeriesEachWhileTheirNumbersNameModes)
{
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 3, 4, 5));
    setMode(1, 5);
    EXPECT_THAT(drawn(), ElementsAre(1, 5, 3, 4, 5));
    EXPECT_THAT(rows().withoutMode(), IsEmpty());
}

TEST_F(PlotRowsTest, haveNoSeriesForANumberThatNamesNoMode)
{
    for (const int number : {0, -3, 6, 32767}) {
        setMode(1, number);
        EXPECT_EQ(row(1).mode, number);
        EXPECT_FALSE(row(1).hasCurve());
        EXPECT_TRUE(row(2).hasCurve());
        EXPECT_EQ(row(1).evolution, &evolution);
        EXPECT_EQ(row(1).series.Mode, nullptr);
        EXPECT_THAT(drawn(), ElementsAre(1, 3, 4, 5));
        EXPECT_EQ(rows().count(), 5U);
    }
    EXPECT_THAT(rows().withoutMode(), ElementsAre(1));
}

TEST_F(PlotRowsTest, getTheirCurveBackWithItsLookAtItsIndex)
{
    for (const std::size_t index : {0U, 2U, 3U})
        setMode(index, 0);
    EXPECT_THAT(drawn(), ElementsAre(2, 5));
    rows().change(row(2).id, [](Series& one) { one.ColorIndex = 7; });
    setMode(2, 4);
    EXPECT_THAT(drawn(), ElementsAre(2, 4, 5));
    EXPECT_EQ(plot.SeriesCollection()[1].ColorIndex, 7);
    EXPECT_EQ(plot.SeriesCollection()[1].MarkerTag, QStringLiteral("2"));
    setMode(0, 1);
    setMode(3, 3);
    EXPECT_THAT(drawn(), ElementsAre(1, 2, 4, 3, 5));
    EXPECT_EQ(tags(), "01234");
}

TEST_F(PlotRowsTest, countWithTheirLookWhetherTheyHaveACurveOrNot)
{
    setMode(4, 0);
    plot.rows().add(*other.Modes[0]);
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 3, 4, 0, 1));
    EXPECT_EQ(tags(), "012345") << "the row without a curve counts";
    EXPECT_EQ(plot.SeriesCollection().back().ColorIndex, BaseColors[5]);
}

TEST_F(PlotRowsTest, goTogetherWithTheirEvolution)
{
    plot.rows().add(*other.Modes[0]);
    plot.rows().add(*other.Modes[1]);
    setMode(1, 9);
    setMode(6, 9);
    EXPECT_EQ(rows().removeRowsOf({&evolution}), 5U);
    EXPECT_EQ(tags(), "56");
    EXPECT_THAT(numbers(), ElementsAre(1, 9));
    EXPECT_EQ(rows().removeRowsOf({&evolution}), 0U);
    rows().clear();
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(PlotRowsTest, areNotCopiedWithThePlot)
{
    setMode(1, 9);
    EvmPlot copy;
    copy.Clone(plot);
    EXPECT_EQ(copy.rows().count(), 0U);
}

TEST_F(PlotRowsTest, ofNoEvolutionStayAsTheyAre)
{
    rows().clear();
    rows().add(Series());
    EXPECT_EQ(row(0).mode, 0);
    EXPECT_EQ(row(0).evolution, nullptr);
    setMode(0, 0);
    EXPECT_TRUE(row(0).hasCurve());
}

TEST_F(PlotRowsTest, keepTheirModeWhenTheirLookIsAnother)
{
    Series look;
    look.LegendText = QStringLiteral("torsion");
    look.Mode = other.Modes[0].get();
    rows().change(row(1).id, look);
    EXPECT_EQ(row(1).series.Mode, evolution.Modes[1].get());
    EXPECT_EQ(row(1).series.LegendText, QStringLiteral("torsion"));
}

TEST_F(PlotRowsTest, keepTheirIdsWhereverTheyGo)
{
    const std::vector<RowId> before = ids();
    EXPECT_EQ(std::set<RowId>(before.begin(), before.end()).size(), 5U);
    rows().move(3, 0, 2);
    EXPECT_THAT(ids(), ElementsAre(before[3], before[4], before[0], before[1], before[2]));
    EXPECT_EQ(rows().indexOf(before[0]), 2U);
    rows().remove({0, 2});
    EXPECT_THAT(ids(), ElementsAre(before[4], before[1], before[2]));
    EXPECT_EQ(rows().indexOf(before[0]), std::nullopt);
    EXPECT_EQ(errorNumberOf([&] { rows().setMode(before[0], 1); }),
              ErrorNumber::SubscriptOutOfRange);
    const RowId added = plot.rows().add(*other.Modes[0]);
    EXPECT_THAT(before, Not(::testing::Contains(added))) << "an id is never given twice";
    EXPECT_EQ(rows().indexOf(added), 3U);
}

TEST_F(PlotRowsTest, areRestoredWithTheirIdsAndLooks)
{
    const PlotRows::Rows before = rows().all();
    rows().move(4, 1);
    rows().remove({0, 3});
    plot.rows().add(*other.Modes[0]);
    setMode(1, 99);
    rows().change(row(0).id, [](Series& one) { one.LineWidth = 7; });
    const PlotRows::Rows after = rows().all();
    rows().restore(before);
    EXPECT_EQ(rows().all(), before);
    rows().restore(after);
    EXPECT_EQ(rows().all(), after);
    rows().restore({});
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(PlotRowsTest, areRestoredWithTheFewestMoves)
{
    const PlotRows::Rows before = rows().all();
    rows().move(0, 2, 3); // 3 4 0 1 2
    int moves = 0;
    QObject::connect(&rows(), &PlotRows::rowsMoved, [&moves] { ++moves; });
    rows().restore(before);
    EXPECT_EQ(rows().all(), before);
    EXPECT_EQ(moves, 1);
}

TEST_F(PlotRowsTest, sayWhatHappensToThem)
{
    std::string events;
    const auto note = [&events](const char* event) {
        return [&events, event](std::size_t first, std::size_t count) {
            events += event + std::to_string(first) + "," + std::to_string(count) + " ";
        };
    };
    QObject::connect(&rows(), &PlotRows::rowsAboutToBeAdded, note("?+"));
    QObject::connect(&rows(), &PlotRows::rowsAdded, note("+"));
    QObject::connect(&rows(), &PlotRows::rowsAboutToBeRemoved, note("?-"));
    QObject::connect(&rows(), &PlotRows::rowsRemoved, note("-"));
    QObject::connect(&rows(), &PlotRows::rowsAboutToBeMoved, note("?m"));
    QObject::connect(&rows(), &PlotRows::rowsMoved,
                     [&](std::size_t first, std::size_t count, std::size_t to) {
                         note("m")(first, count);
                         events += "to " + std::to_string(to) + " ";
                     });
    QObject::connect(&rows(), &PlotRows::rowChanged, [&](std::size_t index, RowId id) {
        EXPECT_EQ(id, row(index).id);
        events += "c" + std::to_string(index) + " ";
    });
    rows().add({newSeries(*other.Modes[0], 5), newSeries(*other.Modes[1], 6)});
    rows().remove({0, 1, 3});
    rows().move(2, 0);
    setMode(1, 2);
    setMode(1, 2); // again
    rows().change(row(1).id, [](Series&) {}); // changes nothing
    rows().move(1, 1);
    EXPECT_EQ(events, "?+5,2 +5,2 ?-3,1 -3,1 ?-0,2 -0,2 ?m2,1 m2,1 to 0 c1 ");
}

TEST_F(PlotRowsTest, areUnchangedAndSilentAfterAnError)
{
    const PlotRows::Rows before = rows().all();
    int signals = 0;
    QObject::connect(&rows(), &PlotRows::rowsAboutToBeMoved, [&signals] { ++signals; });
    EXPECT_EQ(errorNumberOf([&] { rows().move(3, 0, 3); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { rows().move(0, 5); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { rows().change(RowId {99}, Series()); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(rows().all(), before);
    EXPECT_EQ(signals, 0);
}

/// Compares every operation with that of a plain list of rows.
TEST_F(PlotRowsTest, areAListUnderAnyOperations)
{
    struct Plain
    {
        std::string tag;
        int number;
    };
    std::mt19937 random(20261121);
    const auto upTo = [&random](std::size_t end) { return random() % end; };
    std::vector<Plain> plain;
    for (int i = 0; i < 5; ++i)
        plain.push_back({std::to_string(i), i + 1});
    for (int step = 0; step < 5000; ++step) {
        const std::size_t from = plain.empty() ? 0 : upTo(plain.size());
        const std::size_t to = plain.empty() ? 0 : upTo(plain.size());
        const auto operation = plain.empty() ? 0 : upTo(8);
        if (operation == 0 && plain.size() < 12) {
            rows().change(plot.rows().add(*evolution.Modes[0]),
                          [step](Series& one) { one.MarkerTag = QString::number(step); });
            plain.push_back({std::to_string(step), 1});
        } else if (operation == 1) {
            rows().remove({from});
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(from));
        } else if (operation <= 4 && !plain.empty()) {
            plot.SerieMove(from + 1, to + 1);
            const Plain moved = plain[from];
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(from));
            plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(to), moved);
        } else if (!plain.empty()) {
            plain[from].number = static_cast<int>(upTo(8)); // 0, 6 and 7 do not exist
            setMode(from, plain[from].number);
        }
        ASSERT_EQ(rows().count(), plain.size());
        std::vector<int> modes;
        for (std::size_t i = 0; i < plain.size(); ++i) {
            const bool namesMode = plain[i].number >= 1 && plain[i].number <= 5;
            ASSERT_EQ(row(i).series.MarkerTag.toStdString(), plain[i].tag) << step;
            ASSERT_EQ(row(i).mode, plain[i].number) << step;
            ASSERT_EQ(row(i).hasCurve(), namesMode) << step;
            if (namesMode)
                modes.push_back(plain[i].number);
        }
        ASSERT_EQ(drawn(), modes) << step;
        ASSERT_EQ(rows().curveCount(), modes.size()) << step;
    }
}
