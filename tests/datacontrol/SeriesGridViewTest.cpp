// SPDX-License-Identifier: Apache-2.0

// The grid of series with keys and mouse.

#include "WndDataFixture.h"

#include <QScrollBar>
#include <QTest>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

constexpr int evolutionColumn = static_cast<int>(SeriesColumn::Evolution);

class SeriesGridViewTest : public test::WndDataTest
{
protected:
    SeriesGridViewTest()
    {
        EVM& evolution = load("a.ev2", 4);
        for (std::size_t mode = 1; mode <= 4; ++mode)
            add(evolution, mode);
        data.resize(600, 500);
        data.show();
    }

    QPoint cellCenter(int row, SeriesColumn column)
    {
        return grid().visualRect(model().index(row, static_cast<int>(column))).center();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&grid(), static_cast<Qt::Key>(key), modifiers);
    }
};

} // namespace

TEST_F(SeriesGridViewTest, givesTheWidthsThatTheUserHasSet)
{
    EXPECT_EQ(grid().columnWidths(), QStringLiteral("36|0|44|52|44")) << "names are fitted";
    grid().setColumnWidth(1, 150);
    EXPECT_EQ(grid().columnWidths(), QStringLiteral("36|150|44|52|44"));
    grid().setColumnWidths(QStringLiteral("40|0|60|55|45"));
    EXPECT_EQ(grid().columnWidths(), QStringLiteral("40|150|60|55|45"));
    for (const char* damaged : {"", "1", "x|y|z|a|b", "-3|5|9999999|1|2"}) {
        grid().setColumnWidths(QString::fromLatin1(damaged));
        EXPECT_EQ(grid().columnWidths(), QStringLiteral("40|150|60|55|45")) << damaged;
    }
}

TEST_F(SeriesGridViewTest, reportsWhichRowsAreSelected)
{
    EXPECT_THAT(grid().selectedRows(), IsEmpty());
    EXPECT_FALSE(grid().isSelectedOnlyIn(3));
    select(1, 2, SeriesColumn::Mode);
    EXPECT_THAT(grid().selectedRows(), ElementsAre(1, 2));
    EXPECT_TRUE(grid().isSelectedOnlyIn(3));
    grid().selectionModel()->select(model().index(0, 5), QItemSelectionModel::Select);
    EXPECT_THAT(grid().selectedRows(), ElementsAre(0, 1, 2));
    EXPECT_FALSE(grid().isSelectedOnlyIn(3));
}

TEST_F(SeriesGridViewTest, removesRowsWithDelete)
{
    select(1, 2, SeriesColumn::Tag);
    press(Qt::Key_Delete);
    EXPECT_THAT(drawnModes(), ElementsAre(1, 4));
}

TEST_F(SeriesGridViewTest, raisesAndLowersModesWithPlusAndMinus)
{
    select(0, 2, SeriesColumn::Mode);
    press(Qt::Key_Plus);
    EXPECT_THAT(drawnModes(), ElementsAre(2, 3, 3, 4));
    press(Qt::Key_Minus);
    EXPECT_THAT(drawnModes(), ElementsAre(1, 2, 3, 4));
    select(0, 1, SeriesColumn::Legend);
    press(Qt::Key_Plus);
    EXPECT_THAT(drawnModes(), ElementsAre(1, 2, 3, 4)) << "elsewhere a plus is text";
}

TEST_F(SeriesGridViewTest, movesRowsWithAltAndTheArrows)
{
    select(1, 2, SeriesColumn::Tag);
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(drawnModes(), ElementsAre(2, 3, 1, 4));
    EXPECT_THAT(grid().selectedRows(), ElementsAre(0, 1)) << "they stay selected";
    press(Qt::Key_Up, Qt::AltModifier);
    EXPECT_THAT(drawnModes(), ElementsAre(2, 3, 1, 4)) << "already at the top";
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Down, Qt::AltModifier);
    EXPECT_THAT(drawnModes(), ElementsAre(1, 4, 2, 3));
}

TEST_F(SeriesGridViewTest, movesRowsToTheGapWhereTheyAreDropped)
{
    select(3, 1, SeriesColumn::Index);
    const auto drop = [this](QPoint position) {
        Q_EMIT grid().rowsDropped(grid().gapAt(position));
    };
    drop(cellCenter(0, SeriesColumn::Index) - QPoint(0, 4));
    EXPECT_THAT(drawnModes(), ElementsAre(4, 1, 2, 3));
    drop(cellCenter(1, SeriesColumn::Index) + QPoint(0, 4));
    EXPECT_THAT(drawnModes(), ElementsAre(1, 4, 2, 3));
    drop(QPoint(20, grid().viewport()->height() - 5)); // below the last row
    EXPECT_THAT(drawnModes(), ElementsAre(1, 2, 3, 4));
}

TEST_F(SeriesGridViewTest, dragsRowsByTheirFirstColumnOnly)
{
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cellCenter(1, SeriesColumn::Index));
    EXPECT_TRUE(grid().dragEnabled());
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cellCenter(1, SeriesColumn::Mode));
    EXPECT_FALSE(grid().dragEnabled());
}

TEST_F(SeriesGridViewTest, editsACellInPlace)
{
    select(2, 1, SeriesColumn::Legend);
    press(Qt::Key_F2);
    auto* const editor = test::openEditor(grid());
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, QStringLiteral("third-+"));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(series()[2].LegendText, QStringLiteral("third-+"));
    EXPECT_THAT(drawnModes(), ElementsAre(1, 2, 3, 4));
}

TEST_F(SeriesGridViewTest, keepsWhatIsBeingTypedWhenThePlotChanges)
{
    startTyping(1, SeriesColumn::Legend, "typed");
    plot().references().RemoveRef(); // like a menu command, which does not take the focus
    add(*evolutions().front(), 2);
    auto* const editor = test::openEditor(grid());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), QStringLiteral("typed"));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(series()[1].LegendText, QStringLiteral("typed"));
}

TEST_F(SeriesGridViewTest, showsAModeThatIsNotDrawnInASelectedCellToo)
{
    select(0, 1, SeriesColumn::Mode);
    const QRect cell = grid().visualRect(model().index(0, static_cast<int>(SeriesColumn::Mode)));
    // The left half of the cell, which has no digits.
    const QRect beside(cell.topLeft(), QSize(cell.width() / 2, cell.height()));
    const QImage before = grid().viewport()->grab(beside).toImage();
    press(Qt::Key_Minus);
    EXPECT_NE(grid().viewport()->grab(beside).toImage(), before);
    press(Qt::Key_Plus);
    EXPECT_EQ(grid().viewport()->grab(beside).toImage(), before);
}

TEST_F(SeriesGridViewTest, givesTheNamesTheWidthThatTheyNeed)
{
    const std::string name = "wing_clean_full_fuel_altitude_m040.ev2";
    const auto width = [this] { return grid().columnWidth(evolutionColumn); };
    const auto hasRoomFor = [this](const std::string& text) {
        const int needed = grid().fontMetrics().horizontalAdvance(QString::fromStdString(text));
        return grid().columnWidth(evolutionColumn) > needed;
    };
    const int narrow = width();
    EXPECT_TRUE(hasRoomFor("Modal Evolution"));
    add(load(name));
    EXPECT_TRUE(hasRoomFor(name));
    EXPECT_GT(width(), narrow);
    const int wide = width();
    add(load(std::string(200, 'w') + ".ev2"));
    EXPECT_GT(width(), wide);
    EXPECT_EQ(grid().textElideMode(), Qt::ElideMiddle);
    const QRect legend =
        grid().visualRect(model().index(0, static_cast<int>(SeriesColumn::Legend)));
    EXPECT_LE(legend.left() + 80, grid().viewport()->width()) << "the legend keeps some room";
    EXPECT_FALSE(grid().horizontalScrollBar()->isVisible());
    select(5, 1, SeriesColumn::Tag);
    click("cmdRemove");
    EXPECT_EQ(width(), wide) << "the long name is gone";
}

TEST_F(SeriesGridViewTest, leavesRoomForTheScrollBarOfManyRows)
{
    EVM& evolution = load(std::string(200, 'w') + ".ev2");
    for (int i = 0; i < 60; ++i)
        add(evolution);
    QApplication::processEvents();
    EXPECT_TRUE(grid().verticalScrollBar()->isVisible());
    EXPECT_FALSE(grid().horizontalScrollBar()->isVisible());
}

TEST_F(SeriesGridViewTest, keepsTheWidthThatTheUserGivesTheNames)
{
    grid().horizontalHeader()->resizeSection(evolutionColumn, 77);
    add(load("wing_clean_full_fuel_m040.ev2"));
    data.resize(900, 500);
    QApplication::processEvents();
    EXPECT_EQ(grid().columnWidth(evolutionColumn), 77);
}

TEST_F(SeriesGridViewTest, keepsTheSelectionWhenACurveIsAdded)
{
    select(1, 2, SeriesColumn::Mode);
    add(*evolutions().front(), 2);
    EXPECT_THAT(grid().selectedRows(), ElementsAre(1, 2));
}

TEST_F(SeriesGridViewTest, opensTheLineOfAllSelectedRowsByADoubleClickOnOne)
{
    std::vector<std::size_t> rows;
    grid().disconnect(SIGNAL(styleWanted()));
    QObject::connect(&grid(), &SeriesGridView::styleWanted, &grid(),
                     [&] { rows = grid().selectedRows(); });
    select(1, 2, SeriesColumn::Line);
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cellCenter(2, SeriesColumn::Line));
    QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, cellCenter(2, SeriesColumn::Line));
    EXPECT_THAT(rows, ElementsAre(1, 2));
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, cellCenter(3, SeriesColumn::Line));
    EXPECT_THAT(grid().selectedRows(), ElementsAre(3)) << "elsewhere a click selects anew";
}

TEST_F(SeriesGridViewTest, saysWhatToDoWhileItIsEmpty)
{
    const auto picture = [this] { return grid().viewport()->grab().toImage(); };
    plot().rows().clear();
    const QImage withText = picture();
    grid().setPlaceholder(QString());
    EXPECT_NE(withText, picture());
}
