// SPDX-License-Identifier: Apache-2.0

// Undo and redo of changes of plots.

#include "document/UndoHistory.h"

#include "analysis/ModeBuilder.h"
#include "base/user/RunTimeError.h"
#include "document/Document.h"
#include "document/MdlData.h"
#include "document/PlotTitles.h"
#include "support/ChangeSeries.h"
#include "support/Errors.h"
#include "support/HeapInUse.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PlotRecords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

using namespace tarsil;
using test::changeSeries;
using test::errorNumberOf;

namespace {

/// What a workspace keeps of a plot, and its rows, of which it keeps those with a curve alone.
struct PlotSnapshot
{
    const EvmPlot* plot;
    PlotRecord record;
    PlotRows::Rows rows;

    bool operator==(const PlotSnapshot&) const = default;
};

/// What a workspace keeps of a document, and the addresses of evolutions and plots.
struct Snapshot
{
    WorkspaceRecord record;
    std::vector<const EVM*> evolutions;
    std::vector<PlotSnapshot> plots;

    bool operator==(const Snapshot&) const = default;
};

Snapshot snapshotOf(const Document& document)
{
    Snapshot snapshot {document.record(), {}, {}};
    for (const auto& evolution : document.evolutions().all())
        snapshot.evolutions.push_back(evolution.get());
    for (const EvmPlot* const plot : document.plots().all())
        snapshot.plots.push_back({plot, recordOf(*plot, snapshot.evolutions), plot->rows().all()});
    return snapshot;
}

/// Appends an evolution of five modes, the sixth of which its file declares only.
EVM& addEvolution(Document& document, const std::string& name)
{
    auto evolution = std::make_shared<EVM>();
    evolution->Folder = "/runs";
    evolution->FileName = name;
    evolution->na = 6;
    evolution->Param.legends.add("1", "clean wing");
    for (std::int16_t id = 1; id <= 5; ++id)
        test::addMode(*evolution, id, {{100, -0.02F, 5}, {600, 0.01F, 6}});
    document.evolutions().add({evolution});
    return *evolution;
}

/// A document of one evolution, and two plots with three rows each.
class UndoHistoryTest : public ::testing::Test
{
protected:
    UndoHistoryTest()
    {
        for (EvmPlot* const one : {&plot, &document.plots().add(QString())}) {
            one->resize({800, 600});
            for (std::size_t i = 0; i < 3; ++i)
                one->rows().add(*evolution.Modes[i], MarkerOptions());
        }
        history.clear();
    }

    Snapshot snapshot() const { return snapshotOf(document); }
    void change(const char* name, const UndoHistory::Change& how,
                UndoHistory::Joining joining = UndoHistory::Joining::No)
    {
        history.change(QString::fromLatin1(name), how, joining);
    }
    RowId id(std::size_t row) { return plot.rows().at(row).id; }

    Document document;
    EVM& evolution = addEvolution(document, "case.ev2");
    EvmPlot& plot = document.plots().first();
    UndoHistory& history = document.history();
};

/// What the document was after each step.
class StateList
{
public:
    explicit StateList(Snapshot first) { m_states.push_back(std::move(first)); }

    /// The present state, and the number of steps that lead to it.
    const Snapshot& now() const { return m_states[m_now]; }
    int index() const { return static_cast<int>(m_now); }

    void undo() { m_now -= m_now > 0 ? 1 : 0; }
    void redo() { m_now += m_now + 1 < m_states.size() ? 1 : 0; }

    /// Replaces the states that could be redone. A state like the present one is no step.
    void add(Snapshot state)
    {
        if (state == now())
            return;
        m_states.resize(++m_now);
        m_states.push_back(std::move(state));
    }

private:
    std::vector<Snapshot> m_states;
    std::size_t m_now = 0;
};

/// A user who runs random commands.
class RandomUser
{
public:
    RandomUser(Document& document, unsigned seed) : m_document(document), m_random(seed) { }

    std::size_t below(std::size_t end) { return m_random() % end; }

    /// Changes something in the document.
    void change()
    {
        EvmPlot& plot = *m_document.plots().all()[below(m_document.plots().all().size())];
        const std::size_t kind = below(4);
        if (kind == 0)
            changeLists(plot);
        else if (kind == 1)
            changePlot(plot);
        else
            changeRows(plot, someRows(plot));
    }

private:
    /// Adds and removes evolutions, plots and curves.
    void changeLists(EvmPlot& plot)
    {
        PlotList& plots = m_document.plots();
        EvolutionList& evolutions = m_document.evolutions();
        const OwnedEvolutions& all = evolutions.all();
        EVM* const any = all.empty() ? nullptr : all[below(all.size())].get();
        const std::array<std::function<void()>, 8> changes = {
            [&] {
                if (any != nullptr && plot.rows().count() < 12)
                    plot.rows().add(*any->Modes[below(5)]);
            },
            [&] {
                if (all.size() < 5)
                    addEvolution(m_document, text().toStdString());
            },
            [&] {
                if (any != nullptr)
                    m_document.remove({any});
            },
            [&] { evolutions.setReference(below(2) == 0 ? nullptr : any); },
            [&] {
                if (any != nullptr)
                    evolutions.setParameters(*any, {text().toStdString(), "", value()});
            },
            [&] {
                plots.activate(&plot);
                if (plots.all().size() < 5)
                    below(2) == 0 ? plots.add(text()) : plots.copyActive(text());
            },
            [&] {
                if (&plot != &plots.first())
                    plots.remove(plot);
            },
            [&] { m_document.setDescription(text()); }};
        changes[below(changes.size())]();
    }

    PlotRows::Indices someRows(const EvmPlot& plot)
    {
        PlotRows::Indices rows;
        for (std::size_t row = 0; row < plot.rows().count(); ++row) {
            if (below(3) == 0)
                rows.push_back(row);
        }
        return rows;
    }

    QString text() { return QString::number(below(1000)); }
    std::int32_t number() { return static_cast<std::int32_t>(below(8)); } // some do not exist
    float value() { return 0.25F * static_cast<float>(1 + below(400)); }

    void changeRows(EvmPlot& plot, const PlotRows::Indices& rows)
    {
        const std::array<std::function<void()>, 11> changes = {
            [&] { plot.rows().setHidden(rows, below(2) == 0); },
            [&] { mdlData::raiseModes(plot.rows(), rows); },
            [&] { mdlData::lowerModes(plot.rows(), rows); },
            [&] { plot.rows().remove(rows); },
            [&] { mdlData::moveRowsUp(plot, rows); },
            [&] { mdlData::moveRowsDown(plot, rows); },
            [&] { mdlData::moveRows(plot, rows, below(plot.rows().count() + 1)); },
            [&] { mdlData::fillLegends(plot.rows(), rows, number() - 1); },
            [&] { mdlData::resetColors(plot.rows(), CurvePalette::Standard); },
            [&] {
                const MarkerKind kind = markerTraits[below(markerTraits.size())].kind;
                mdlData::changeMarkers(plot.rows(), {}, {number(), number(), kind, 2});
            },
            [&] {
                for (const std::size_t row : rows)
                    changeRow(plot, row);
            }};
        changes[below(changes.size())]();
    }

    void changeRow(EvmPlot& plot, std::size_t row)
    {
        plot.rows().setMode(plot.rows().at(row).id, number());
        changeSeries(plot, row, [this](Series& one) {
            one.MarkerTag = text();
            one.LegendText = text();
            one.LineStyle = number();
            one.LineWidth = static_cast<std::int16_t>(number());
            mdlData::setColor(one, number());
        });
    }

    void changePlot(EvmPlot& plot)
    {
        const std::array<std::function<void()>, 10> changes = {
            [&] { plot.texts().setText(allTextBoxes[below(allTextBoxes.size())], text()); },
            [&] {
                plot.texts().move(allTextBoxes[below(allTextBoxes.size())], value() * 100,
                                  value() * 100);
            },
            [&] { plot.texts().setHeaderTop(value()); },
            [&] { writeLegend(plot, 8 + value()); },
            [&] { plot.properties().setCaption(text()); },
            [&] { plot.SetScale(0, 100 + value(), 0, value(), 0, -value()); },
            [&] { plot.fitFreq(); },
            [&] { plot.references().AddRef(value(), text()); },
            [&] {
                plot.references().setDampingLines({{value(), text()}, {value(), text()}});
            },
            [&] {
                plot.references().RemoveRef();
                plot.properties().setVthicks(static_cast<std::int16_t>(1 + below(9)));
                plot.properties().setVLabel(text());
            }};
        changes[below(changes.size())]();
    }

    Document& m_document;
    std::mt19937 m_random;
};

/// Whether a random change raises an error; one that `fails` does so after its changes.
bool changeRaisesError(Document& document, RandomUser& user, bool fails)
{
    const auto change = [&] {
        user.change();
        if (fails)
            throw RunTimeError(ErrorNumber::Overflow, "test", "on purpose");
    };
    return errorNumberOf([&] { document.history().change(QStringLiteral("any"), change); })
        .has_value();
}

} // namespace

TEST_F(UndoHistoryTest, undoesAndRedoesSteps)
{
    change("Raise Modes", [&] { mdlData::raiseModes(plot.rows(), {0, 2}); });
    change("Type Mode", [&] { plot.rows().setMode(id(1), 99); });
    EXPECT_EQ(history.steps().undoText(), QStringLiteral("Type Mode"));
    history.undo();
    history.undo();
    EXPECT_FALSE(history.steps().canUndo());
    EXPECT_EQ(plot.rows().at(0).mode, 1);
    EXPECT_EQ(history.steps().redoText(), QStringLiteral("Raise Modes"));
    history.undo(); // nothing left to undo
    history.redo();
    EXPECT_EQ(plot.rows().at(0).mode, 2);
    EXPECT_EQ(plot.rows().at(1).mode, 2);
    history.redo();
    EXPECT_FALSE(plot.rows().at(1).hasCurve());
    history.redo();
    EXPECT_FALSE(history.steps().canRedo());
}

TEST_F(UndoHistoryTest, putsRowsBackWithTheirIdsAndLooks)
{
    changeSeries(plot, 1, [](Series& one) { one.LineWidth = 7; });
    plot.rows().setMode(id(2), 42);
    const PlotRows::Rows before = plot.rows().all();
    change("Remove", [&] { plot.rows().remove({1, 2}); });
    history.undo();
    EXPECT_EQ(plot.rows().all(), before);
}

TEST_F(UndoHistoryTest, hidesAndShowsCurvesAgain)
{
    const QImage before = plot.Image().copy();
    change("Hide 2 Curves", [&] { plot.rows().setHidden({0, 2}, true); });
    const QImage hidden = plot.Image().copy();
    EXPECT_NE(hidden, before);
    history.undo();
    EXPECT_TRUE(plot.rows().hidden().empty());
    EXPECT_EQ(plot.Image(), before);
    history.redo();
    EXPECT_EQ(plot.rows().hidden(), (PlotRows::Indices {0, 2}));
    EXPECT_EQ(plot.Image(), hidden);
}

TEST_F(UndoHistoryTest, makesOneStepOfAllThatAChangeDoes)
{
    change("Fill Legend", [&] {
        mdlData::fillLegends(plot.rows(), {}, 0);
        change("within", [&] { plot.texts().setText(TextBox::Legend, QStringLiteral("legend")); });
    });
    EXPECT_EQ(history.steps().count(), 1);
    history.undo();
    EXPECT_EQ(plot.SeriesCollection()[2].LegendText, QString());
    EXPECT_TRUE(plot.Legend().isEmpty());
}

TEST_F(UndoHistoryTest, makesNoStepOfAChangeThatChangesNothing)
{
    change("Lower Modes", [] {});
    change("Reset Colors", [&] { mdlData::resetColors(plot.rows(), CurvePalette::Standard); });
    EXPECT_EQ(history.steps().count(), 0);
}

TEST_F(UndoHistoryTest, leavesNothingOfAChangeThatFails)
{
    change("Raise Modes", [&] { mdlData::raiseModes(plot.rows(), {0}); });
    history.undo();
    const auto before = snapshot();
    EXPECT_EQ(errorNumberOf([&] {
                  change("Move", [&] {
                      plot.rows().remove({0});
                      plot.references().AddRef(300, QStringLiteral("Vd"));
                      plot.texts().setText(TextBox::Header, QStringLiteral("header"));
                      plot.SerieMove(1, 9);
                  });
              }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(snapshot(), before);
    EXPECT_TRUE(history.steps().canRedo()) << "what was undone can still be made again";
    history.redo();
    EXPECT_EQ(plot.rows().at(0).mode, 2);
}

TEST_F(UndoHistoryTest, beginsAStepThatLaterChangesJoin)
{
    const auto zoom = [&](float speed, UndoHistory::Joining joining) {
        change(
            "Zoom", [&, speed] { plot.SetScale(0, speed, 0, 50, 0, -1); }, joining);
    };
    zoom(100, UndoHistory::Joining::Yes);
    zoom(200, UndoHistory::Joining::Begins);
    zoom(300, UndoHistory::Joining::Yes);
    EXPECT_EQ(history.steps().count(), 2);
    history.undo();
    EXPECT_EQ(plot.axes().speed.max, 100);
}

TEST_F(UndoHistoryTest, joinsChangesThatBelongTogether)
{
    const auto type = [&](int size) {
        change(
            "Marker Size",
            [&, size] { changeSeries(plot, 0, [size](Series& one) { one.MarkerSize = size; }); },
            UndoHistory::Joining::Yes);
    };
    type(1);
    type(12);
    EXPECT_EQ(history.steps().count(), 1);
    change("Remove", [&] { plot.rows().remove({2}); });
    type(13);
    EXPECT_EQ(history.steps().count(), 3) << "something else came between";
    history.undo();
    history.undo();
    EXPECT_EQ(plot.SeriesCollection()[0].MarkerSize, 12);
    history.undo();
    EXPECT_EQ(plot.SeriesCollection()[0].MarkerSize, 8);
    type(7);
    type(8); // as before
    EXPECT_EQ(history.steps().count(), 0);
}

TEST_F(UndoHistoryTest, makesStepsOfChangesThatAreMadePastIt)
{
    change("Raise Modes", [&] { mdlData::raiseModes(plot.rows(), {0}); });
    const auto raised = snapshot();
    plot.properties().setCaption(QStringLiteral("past the history"));
    const auto renamed = snapshot();
    history.undo();
    EXPECT_EQ(snapshot(), raised);
    history.redo();
    EXPECT_EQ(snapshot(), renamed);
    plot.references().AddRef(300, QStringLiteral("Vd"));
    change("Raise Modes", [&] { mdlData::raiseModes(plot.rows(), {1}); });
    EXPECT_EQ(history.steps().count(), 4);
    history.undo();
    history.undo();
    EXPECT_EQ(snapshot(), renamed);
    history.undo();
    plot.references().AddRef(400, QStringLiteral("VL")); // changes the plot outside the history
    history.redo();
    EXPECT_EQ(plot.references().referenceSpeeds().size(), 1U);
    EXPECT_FALSE(history.steps().canRedo());
    history.undo();
    EXPECT_EQ(snapshot(), raised);
}

TEST_F(UndoHistoryTest, goesOnWhenOnlyTheSizeOfThePlotIsAnother)
{
    change("Raise Modes", [&] { mdlData::raiseModes(plot.rows(), {0}); });
    plot.resize({1200, 500});
    history.undo();
    EXPECT_EQ(plot.rows().at(0).mode, 1);
}

TEST_F(UndoHistoryTest, bringsTheSamePictureBack)
{
    plot.references().AddDampLine(-0.02F, QStringLiteral("g"));
    const QImage before = plot.Image().copy();
    change("Everything", [&] {
        plot.SetScale(0, 300, 0, 9, 0, -0.1F); // the damping line keeps its ends
        mdlData::resetColors(plot.rows(), CurvePalette::Standard);
        plot.rows().remove({0});
        plot.texts().setText(TextBox::Legend, QStringLiteral("legend"));
        plot.texts().move(TextBox::Legend, 3000, 3000);
        plot.texts().setHeaderTop(900);
        plot.references().AddRef(200, QStringLiteral("Vd"));
    });
    const QImage after = plot.Image().copy();
    EXPECT_NE(after, before);
    history.undo();
    EXPECT_EQ(plot.Image(), before);
    history.redo();
    EXPECT_EQ(plot.Image(), after);
}

/// Ten thousand changes, some of which fail, beside a list of what the document was.
TEST_F(UndoHistoryTest, isExactUnderAnyChanges)
{
    for (const unsigned seed : {1U, 20261122U}) {
        history.clear();
        RandomUser user(document, seed);
        StateList states(snapshot());
        for (int i = 0; i < 5000; ++i) {
            const std::size_t action = user.below(6);
            if (action == 0) {
                history.undo();
                states.undo();
            } else if (action == 1) {
                history.redo();
                states.redo();
            } else {
                const bool fails = action == 2;
                ASSERT_EQ(changeRaisesError(document, user, fails), fails) << seed << " " << i;
                if (!fails)
                    states.add(snapshot());
            }
            ASSERT_EQ(snapshot(), states.now()) << seed << " " << i;
            ASSERT_EQ(history.steps().index(), states.index()) << seed << " " << i;
        }
    }
}

TEST_F(UndoHistoryTest, notesWhatACommandHasChanged)
{
    history.note(QStringLiteral("nothing"));
    EXPECT_EQ(history.steps().count(), 0);
    plot.references().AddRef(300, QStringLiteral("Vd"));
    history.note(QStringLiteral("Add Reference Speed"));
    change("Raise Modes", [&] {
        mdlData::raiseModes(plot.rows(), {0});
        history.note(QStringLiteral("within"));
        mdlData::raiseModes(plot.rows(), {1});
    });
    EXPECT_EQ(history.steps().count(), 2);
    EXPECT_EQ(history.steps().undoText(), QStringLiteral("Raise Modes"));
    history.undo();
    EXPECT_EQ(history.steps().undoText(), QStringLiteral("Add Reference Speed"));
    history.undo();
    EXPECT_TRUE(plot.references().referenceSpeeds().empty());
}

TEST_F(UndoHistoryTest, showsThePlotThatAStepChanged)
{
    document.plots().activate(&plot);
    change("Raise Modes", [&] { mdlData::raiseModes(plot.rows(), {0}); });
    EvmPlot& second = *document.plots().all()[1];
    document.plots().activate(&second);
    history.undo();
    EXPECT_EQ(document.plots().active(), &plot);
    document.plots().activate(&second);
    history.redo();
    EXPECT_EQ(document.plots().active(), &plot);
}

/// What a thousand steps need beside the evolutions.
TEST_F(UndoHistoryTest, sharesBetweenStepsWhatTheyDoNotChange)
{
    for (int i = 0; i < 497; ++i)
        plot.rows().add(*evolution.Modes[0]);
    history.clear();
    const std::size_t before = test::heapInUse();
    for (int i = 0; i < 1000; ++i) {
        change("Color", [&] {
            changeSeries(plot, static_cast<std::size_t>(i % 500),
                         [i](Series& one) { one.ColorIndex = i + 1; });
        });
    }
    EXPECT_EQ(history.steps().count(), 1000);
    EXPECT_LT(test::heapInUse() - before, 5U << 20U);
}
