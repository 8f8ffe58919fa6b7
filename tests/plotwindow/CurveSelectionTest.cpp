// SPDX-License-Identifier: Apache-2.0

// Selecting curves in the view of a plot by the mouse. It is 800 x 600, so
//
//     column = 80 + V        row = 330 - 4 f        row = 330 - 1000 g

#include "analysis/ModeBuilder.h"
#include "plotwindow/EvmPlotViewFixture.h"

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class CurveSelectionTest : public test::EvmPlotViewTest
{
protected:
    CurveSelectionTest()
    {
        plot.SetScale(0, 600, 0, 63, 0, -0.252F);
        for (const float frequency : {10.0F, 20.0F, 40.0F})
            ids.push_back(
                plot.rows().add(test::addMode(evolution, static_cast<std::int16_t>(frequency / 10),
                                              {{100, -0.1F, frequency}, {300, -0.1F, frequency}})));
        QObject::connect(&view, &EvmPlotView::curvesSelected, &view,
                         [this](const Rows& rows) { selected.push_back(rows); });
        QObject::connect(&view, &EvmPlotView::removeWanted, &view, [this] { ++removals; });
    }

    void click(QPoint position, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, position, view.mapToGlobal(position), Qt::LeftButton,
                              type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                              modifiers);
            QApplication::sendEvent(&view, &event);
        }
    }

    /// The inked pixels of a column of the screen between two rows.
    int inkIn(int column, int top, int bottom)
    {
        const QImage screen = view.grab().toImage();
        int count = 0;
        for (int row = top; row <= bottom; ++row)
            count += screen.pixelColor(column, row) != Qt::white ? 1 : 0;
        return count;
    }

    EVM evolution;
    Rows ids;
    std::vector<Rows> selected;
    int removals = 0;
};

} // namespace

TEST_F(CurveSelectionTest, selectsTheCurveThatIsClicked)
{
    click({280, 330 - 4 * 20 + 3});
    click({280, 330 - 4 * 40});
    EXPECT_THAT(selected, ElementsAre(Rows {ids[1]}, Rows {ids[2]}));
    click({500, 200}); // far from all curves
    EXPECT_THAT(selected.back(), IsEmpty());
}

TEST_F(CurveSelectionTest, selectsSeveralCurvesWithTheControlKey)
{
    click({280, 330 - 4 * 20});
    click({280, 330 - 4 * 40}, Qt::ControlModifier);
    EXPECT_THAT(selected.back(), ElementsAre(ids[1], ids[2]));
    click({280, 330 - 4 * 20}, Qt::ControlModifier);
    EXPECT_THAT(selected.back(), ElementsAre(ids[2]));
}

TEST_F(CurveSelectionTest, drawsBothCurvesOfASelectedRowStrongerOnTheScreenOnly)
{
    const int upper = inkIn(280, 330 - 4 * 20 - 8, 330 - 4 * 20 + 8);
    const int lower = inkIn(280, 430 - 8, 430 + 8);
    const QImage before = plot.Image().copy();
    view.selectCurves({ids[1]});
    EXPECT_GE(inkIn(280, 330 - 4 * 20 - 8, 330 - 4 * 20 + 8), upper + 2);
    EXPECT_GE(inkIn(280, 430 - 8, 430 + 8), lower + 2);
    EXPECT_EQ(plot.Image(), before);
    view.selectCurves({});
    EXPECT_EQ(inkIn(280, 330 - 4 * 20 - 8, 330 - 4 * 20 + 8), upper);
    EXPECT_THAT(selected, IsEmpty()) << "the caller knows";
}

TEST_F(CurveSelectionTest, keepsTheSelectedCurvesInsideTheirCanvases)
{
    plot.SetScale(150, 250, 0, 63, 0, -0.252F);
    view.selectCurves({ids[1]});
    EXPECT_EQ(inkIn(76, 330 - 4 * 20 - 2, 330 - 4 * 20 + 2), 0);
}

TEST_F(CurveSelectionTest, survivesSelectedRowsThatLoseTheirCurveOrLeave)
{
    view.selectCurves(ids);
    plot.rows().setMode(ids[0], 9);
    plot.rows().remove({1});
    view.grab();
    plot.SetScale(0, 0, 0, 63, 0, -0.252F);
    view.grab();
    press(Qt::Key_Delete);
    EXPECT_EQ(removals, 1);
}

TEST_F(CurveSelectionTest, asksForTheRemovalOfSelectedCurvesByTheDeleteKey)
{
    press(Qt::Key_Delete);
    EXPECT_EQ(removals, 0);
    click({280, 330 - 4 * 20});
    press(Qt::Key_Delete);
    EXPECT_EQ(removals, 1);
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("ab"));
    editor()->moveCursor(QTextCursor::Start);
    press(editor(), Qt::Key_Delete);
    EXPECT_EQ(editor()->toPlainText(), QStringLiteral("b"));
    EXPECT_EQ(removals, 1);
}

TEST_F(CurveSelectionTest, selectsTheCurveThatTheRightButtonPoints)
{
    EXPECT_FALSE(openMenu({280, 330 - 4 * 20}));
    EXPECT_THAT(selected, ElementsAre(Rows {ids[1]}));
    EXPECT_TRUE(view.hasSelectedCurve());
    view.selectCurves(ids);
    openMenu({280, 330 - 4 * 20});
    EXPECT_EQ(selected.size(), 1U) << "it is one of several";
    openMenu({500, 200});
    EXPECT_EQ(selected.size(), 1U);
}
