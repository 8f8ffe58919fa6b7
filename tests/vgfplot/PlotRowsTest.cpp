// The rows of a plot: those with a series, and those whose number names no mode.

#include "vgfplot/PlotRows.h"

#include "analysis/ModeBuilder.h"
#include "vgfplot/EvmPlot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
            plot.addSeries(*mode);
    }

    static void fill(EVM& evolution, std::int16_t modes)
    {
        for (std::int16_t id = 1; id <= modes; ++id)
            test::addMode(evolution, id, {{100, -0.02F, 5}, {200, 0.01F, 6}});
    }

    PlotRows& rows() { return plot.rows(); }
    std::vector<int> numbers()
    {
        std::vector<int> modes;
        for (std::size_t row = 0; row < rows().count(); ++row)
            modes.push_back(rows().mode(row));
        return modes;
    }
    std::string tags()
    {
        std::string tags;
        for (std::size_t row = 0; row < rows().count(); ++row)
            tags += rows().look(row).MarkerTag.toStdString();
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

    EVM evolution;
    EVM other;
    EvmPlot plot;
};

} // namespace

TEST_F(PlotRowsTest, haveASeriesEachWhileTheirNumbersNameModes)
{
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 3, 4, 5));
    rows().setMode(1, 5);
    EXPECT_THAT(drawn(), ElementsAre(1, 5, 3, 4, 5));
    EXPECT_THAT(rows().withoutSeries(), IsEmpty());
}

TEST_F(PlotRowsTest, haveNoSeriesForANumberThatNamesNoMode)
{
    for (const int number : {0, -3, 6, 32767}) {
        rows().setMode(1, number);
        EXPECT_EQ(rows().mode(1), number);
        EXPECT_FALSE(rows().hasSeries(1));
        EXPECT_TRUE(rows().hasSeries(2));
        EXPECT_EQ(rows().evolution(1), &evolution);
        EXPECT_EQ(rows().look(1).Mode, nullptr);
        EXPECT_THAT(drawn(), ElementsAre(1, 3, 4, 5));
        EXPECT_EQ(rows().count(), 5U);
    }
    EXPECT_THAT(rows().withoutSeries(), ElementsAre(1));
}

TEST_F(PlotRowsTest, getTheirCurveBackWithItsLookInItsPlace)
{
    for (const std::size_t row : {0U, 2U, 3U})
        rows().setMode(row, 0);
    EXPECT_THAT(drawn(), ElementsAre(2, 5));
    rows().look(2).ColorIndex = 7;
    rows().setMode(2, 4);
    EXPECT_THAT(drawn(), ElementsAre(2, 4, 5));
    EXPECT_EQ(plot.SeriesCollection()[1].ColorIndex, 7);
    EXPECT_EQ(plot.SeriesCollection()[1].MarkerTag, QStringLiteral("2"));
    rows().setMode(0, 1);
    rows().setMode(3, 3);
    EXPECT_THAT(drawn(), ElementsAre(1, 2, 4, 3, 5));
    EXPECT_EQ(tags(), "01234");
}

TEST_F(PlotRowsTest, keepTheirPlacesWhenSeriesAreAddedAndTaken)
{
    rows().setMode(4, 0);
    plot.addSeries(*other.Modes[0]);
    EXPECT_THAT(numbers(), ElementsAre(1, 2, 3, 4, 0, 1));
    EXPECT_EQ(tags(), "012345") << "the row without a curve counts";
    EXPECT_EQ(plot.SeriesCollection().back().ColorIndex, BaseColors[5]);
    plot.SeriesCollection().clear();
    EXPECT_THAT(numbers(), ElementsAre(0));
    EXPECT_FALSE(rows().hasSeries(0));
}

TEST_F(PlotRowsTest, goTogetherWithTheirEvolution)
{
    plot.addSeries(*other.Modes[0]);
    plot.addSeries(*other.Modes[1]);
    rows().setMode(1, 9);
    rows().setMode(6, 9);
    EXPECT_EQ(rows().removeRowsOf(evolution), 5U);
    EXPECT_EQ(tags(), "56");
    EXPECT_THAT(numbers(), ElementsAre(1, 9));
    EXPECT_EQ(rows().removeRowsOf(evolution), 0U);
    rows().clear();
    EXPECT_EQ(rows().count(), 0U);
}

TEST_F(PlotRowsTest, areNotCopiedWithThePlot)
{
    rows().setMode(1, 9);
    EvmPlot copy;
    copy.Clone(plot);
    EXPECT_EQ(copy.rows().count(), 0U);
}

TEST_F(PlotRowsTest, ofNoEvolutionStayAsTheyAre)
{
    rows().clear();
    plot.SeriesCollection().emplace_back();
    EXPECT_EQ(rows().mode(0), 0);
    EXPECT_EQ(rows().evolution(0), nullptr);
    rows().setMode(0, 0);
    EXPECT_TRUE(rows().hasSeries(0));
}

/// Every operation beside a plain list of rows that does the same.
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
            plot.addSeries(*evolution.Modes[0]).MarkerTag = QString::number(step);
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
            plain[from].number = static_cast<int>(upTo(8)); // 0, 6 and 7 name no mode
            rows().setMode(from, plain[from].number);
        }
        ASSERT_EQ(rows().count(), plain.size());
        std::vector<int> modes;
        for (std::size_t row = 0; row < plain.size(); ++row) {
            const bool namesMode = plain[row].number >= 1 && plain[row].number <= 5;
            ASSERT_EQ(rows().look(row).MarkerTag.toStdString(), plain[row].tag) << step;
            ASSERT_EQ(rows().mode(row), plain[row].number) << step;
            ASSERT_EQ(rows().hasSeries(row), namesMode) << step;
            if (namesMode)
                modes.push_back(plain[row].number);
        }
        ASSERT_EQ(drawn(), modes) << step;
    }
}
