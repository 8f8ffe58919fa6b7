// SPDX-License-Identifier: Apache-2.0

// The mouse and the keys in the plot of the main window: with the grid, the pop-ups and undo.

#include "WndMainFixture.h"

#include "datacontrol/SeriesGridView.h"
#include "vgfplot/PlotReading.h"

#include <QMouseEvent>
#include <QWheelEvent>

#include <gmock/gmock.h>

using namespace tarsil;
using test::sample;
using ::testing::ElementsAre;

namespace {

class PlotMouse : public test::WndMainTest
{
protected:
    PlotMouse() { load({sample("goland_clean_m040.ev2")}); }

    EvmPlotView& view() { return *window.evolPlot().viewOf(plot()); }
    SeriesGridView& grid() { return *window.findChild<SeriesGridView*>(); }

    void mouse(QEvent::Type type, QPoint position, Qt::MouseButton button)
    {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, position, view().mapToGlobal(position),
                          type == QEvent::MouseMove ? Qt::NoButton : button, held, Qt::NoModifier);
        QApplication::sendEvent(&view(), &event);
    }
    void click(QPoint position)
    {
        mouse(QEvent::MouseButtonPress, position, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, position, Qt::LeftButton);
    }
    void drag(QPoint from, QPoint to, Qt::MouseButton button)
    {
        mouse(QEvent::MouseButtonPress, from, button);
        mouse(QEvent::MouseMove, to, button);
        mouse(QEvent::MouseButtonRelease, to, button);
    }
    void turn(int notches, quint64 time)
    {
        const QPoint position = inCanvas();
        QWheelEvent event(position, view().mapToGlobal(position), {}, QPoint(0, 120 * notches),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        event.setTimestamp(time);
        QApplication::sendEvent(&view(), &event);
    }
    void press(Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&view(), &event);
    }

    QPoint inCanvas() { return plot().parts().vfPlot.geometry().center(); }

    /// A pixel on the V-f curve of a row.
    QPoint pixelOf(std::size_t row)
    {
        const Point& point = plot().SeriesCollection().at(row).Mode->Points.at(3);
        const ucPlot& canvas = plot().parts().vfPlot;
        return canvas.geometry().topLeft() + canvas.pixelOf(point.speed, point.f);
    }
    std::string lastStep() { return window.document().history().steps().undoText().toStdString(); }
};

} // namespace

TEST_F(PlotMouse, makesStepsThatAreUndone)
{
    const PlotAxes before = plot().axes();
    drag(inCanvas(), inCanvas() + QPoint(60, 50), Qt::LeftButton);
    EXPECT_EQ(lastStep(), "Zoom");
    const PlotAxes zoomed = plot().axes();
    EXPECT_NE(zoomed, before);
    drag(inCanvas(), inCanvas() + QPoint(-60, 0), Qt::MiddleButton);
    EXPECT_EQ(lastStep(), "Pan");
    turn(1, 10000);
    turn(1, 10200);
    turn(-1, 10400);
    EXPECT_EQ(lastStep(), "Zoom");
    EXPECT_EQ(window.document().history().steps().count(), 3);
    press(Qt::Key_Home);
    EXPECT_EQ(lastStep(), "Fit Axes");
    EXPECT_EQ(plot().axes(), before) << "fitted when the file was drawn";
    choose("mnuUndo");
    choose("mnuUndo");
    choose("mnuUndo");
    EXPECT_EQ(plot().axes(), zoomed);
    choose("mnuUndo");
    EXPECT_EQ(plot().axes(), before);
}

TEST_F(PlotMouse, dropsADragWhenACommandBegins)
{
    const PlotAxes before = plot().axes();
    mouse(QEvent::MouseButtonPress, inCanvas(), Qt::MiddleButton);
    mouse(QEvent::MouseMove, inCanvas() + QPoint(-80, 0), Qt::MiddleButton);
    ASSERT_NE(plot().axes(), before);
    choose("mnuClearRef");
    EXPECT_EQ(plot().axes(), before);
    EXPECT_FALSE(window.document().history().steps().canUndo());
}

TEST_F(PlotMouse, selectsCurveAndRowTogether)
{
    click(pixelOf(2));
    EXPECT_THAT(grid().selectedRows(), ElementsAre(2U));
    EXPECT_TRUE(view().hasSelectedCurve());
    grid().clearSelection();
    EXPECT_FALSE(view().hasSelectedCurve());
    grid().selectRows({1, 3}, 0);
    EXPECT_TRUE(view().hasSelectedCurve());
    window.document().plots().activate(&window.document().plots().add(QString()));
    window.document().plots().activate(&window.document().plots().first());
    EXPECT_FALSE(view().hasSelectedCurve()) << "like the grid";
}

TEST_F(PlotMouse, removesTheSelectedCurveByTheDeleteKeyAndBringsItBack)
{
    const std::size_t count = plot().rows().count();
    const RowId removed = plot().rows().at(2).id;
    click(pixelOf(2));
    press(Qt::Key_Delete);
    EXPECT_EQ(plot().rows().count(), count - 1);
    EXPECT_FALSE(plot().rows().indexOf(removed));
    EXPECT_EQ(lastStep(), "Remove Rows");
    EXPECT_TRUE(user.questions.empty());
    choose("mnuUndo");
    EXPECT_EQ(plot().rows().indexOf(removed), 2U);
}

TEST_F(PlotMouse, addsTheCommandsOfCurvesToThePopupOfThePlot)
{
    auto* const popup = window.findChild<QMenu*>(QStringLiteral("popCurve"));
    ASSERT_NE(popup, nullptr);
    QStringList captions;
    for (const QAction* entry : popup->actions())
        captions.append(entry->text());
    EXPECT_EQ(captions,
              QStringList({QStringLiteral("Format"), QStringLiteral("Tools"), QString(),
                           QStringLiteral("&Colour, Style, Width ..."), QStringLiteral("&Tag ..."),
                           QStringLiteral("Mode &Up"), QStringLiteral("Mode &Down"),
                           QStringLiteral("&Hide"), QStringLiteral("&Show"),
                           QStringLiteral("Show &All Hidden"), QStringLiteral("&Legend Text ..."),
                           QStringLiteral("&Remove\tDel")}));
    Q_EMIT window.evolPlot().plotMenuRequested({50, 50}, true);
    EXPECT_TRUE(popup->isVisible());
    popup->close();
    click(pixelOf(2));
    choose("curveHide");
    EXPECT_EQ(lastStep(), "Hide Curve");
}

TEST_F(PlotMouse, listsThePlotsInTheWindowMenu)
{
    auto* const menu = window.findChild<QMenu*>(QStringLiteral("WindowsMenu"));
    PlotList& plots = window.document().plots();
    EvmPlot& wing = plots.add(QStringLiteral("Wing & tail"));
    const auto entries = [menu] {
        Q_EMIT menu->aboutToShow();
        QStringList captions;
        for (const QAction* entry : menu->actions().mid(3))
            captions.append(entry->text() + (entry->isChecked() ? QStringLiteral("*") : QString()));
        return captions;
    };
    EXPECT_EQ(entries(),
              QStringList({QString(), QStringLiteral("Plot1*"), QStringLiteral("Wing && tail")}));
    menu->actions().back()->trigger();
    EXPECT_EQ(plots.active(), &wing);
    EXPECT_EQ(window.evolPlot().windowTitle(), QStringLiteral("V-g-f Plot - Wing & tail"));
    EXPECT_EQ(entries(),
              QStringList({QString(), QStringLiteral("Plot1"), QStringLiteral("Wing && tail*")}));
}
