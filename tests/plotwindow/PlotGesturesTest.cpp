// SPDX-License-Identifier: Apache-2.0

// Zooming, panning and editing of axes in the view of a plot. It is 800 x 600, so the canvases are
// columns 80 to 679 and rows 78 to 581, and the speed axis is row 330 (see PlotZoomTest).

#include "analysis/ModeBuilder.h"
#include "plotwindow/EvmPlotViewFixture.h"
#include "vgfplot/ScaleFit.h"

#include <QLineEdit>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class PlotGestures : public test::EvmPlotViewTest
{
protected:
    PlotGestures()
    {
        plot.rows().add(test::addMode(evolution, 1, {{100, -0.1F, 10}, {430, 0.05F, 21}}));
        plot.SetScale(100, 700, 0, 63, 0, -0.252F);
        before = plot.axes();
        listen();
    }

    void dragWith(Qt::MouseButton button, QPoint from, QPoint to)
    {
        mouse(QEvent::MouseButtonPress, from, button);
        mouse(QEvent::MouseMove, from + (to - from) / 2, button);
        mouse(QEvent::MouseMove, to, button);
        mouse(QEvent::MouseButtonRelease, to, button);
    }

    QLineEdit* field(const char* name)
    {
        for (QLineEdit* child : view.findChildren<QLineEdit*>(QString::fromLatin1(name))) {
            if (child->isVisible())
                return child;
        }
        return nullptr;
    }

    EVM evolution;
    PlotAxes before;
    const QPoint inUpperHalf {180, 130};
};

} // namespace

TEST_F(PlotGestures, zoomsIntoARubberBand)
{
    drag(inUpperHalf, {380, 230});
    EXPECT_EQ(plot.axes().speed.min, 200);
    EXPECT_EQ(plot.axes().speed.max, 400);
    EXPECT_EQ(plot.axes().frequency.max, 50);
    EXPECT_EQ(plot.axes().damping, before.damping);
    EXPECT_THAT(steps, ElementsAre("Zoom"));
}

TEST_F(PlotGestures, showsTheBandOnTheScreenOnlyWhileItIsDrawn)
{
    const QRect edge(180, 130, 200, 1);
    mouse(QEvent::MouseButtonPress, inUpperHalf);
    mouse(QEvent::MouseMove, {380, 230});
    EXPECT_TRUE(isInked(view.grab().toImage(), edge));
    EXPECT_FALSE(isInked(plot.Image(), edge));
    EXPECT_EQ(plot.axes(), before) << "until the button is released";
    press(Qt::Key_Escape);
    EXPECT_FALSE(isInked(view.grab().toImage(), edge));
    mouse(QEvent::MouseButtonRelease, {380, 230});
    EXPECT_EQ(plot.axes(), before);
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(PlotGestures, zoomsNothingByATremorOrFromOutside)
{
    drag(inUpperHalf, inUpperHalf + QPoint(QApplication::startDragDistance() - 1, 0));
    drag({20, 20}, {300, 300});
    EXPECT_EQ(plot.axes(), before);
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(PlotGestures, zoomsByTheWheelInOneStepForTurnsThatFollowEachOther)
{
    turn({380, 204}, 1, 1000);
    turn({380, 204}, 1, 1400);
    turn({380, 204}, 1, 2300);
    EXPECT_THAT(steps, ElementsAre("Zoom", "+Zoom", "+Zoom"));
    turn({380, 204}, 1, 3400);
    EXPECT_THAT(steps, ElementsAre("Zoom", "+Zoom", "+Zoom", "Zoom"));
    EXPECT_LT(plot.axes().speed.max - plot.axes().speed.min, 300) << "0.8 to the power of 4: 246";
    EXPECT_EQ(plot.axes().damping, before.damping);
}

TEST_F(PlotGestures, beginsAStepWhenTheAxesWereChangedMeanwhile)
{
    turn({380, 204}, 1, 1000);
    plot.setAxes(before);
    turn({380, 204}, 1, 1100);
    EXPECT_THAT(steps, ElementsAre("Zoom", "Zoom"));
}

TEST_F(PlotGestures, zoomsOneAxisByTheWheelWithAKey)
{
    turn({380, 204}, 2, 0, Qt::ControlModifier);
    EXPECT_EQ(plot.axes().frequency, before.frequency);
    EXPECT_NE(plot.axes().speed, before.speed);
    plot.setAxes(before);
    turn({380, 456}, 2, 0, Qt::ShiftModifier);
    EXPECT_EQ(plot.axes().speed, before.speed);
    EXPECT_NE(plot.axes().damping, before.damping);
}

TEST_F(PlotGestures, leavesTheWheelToOthersOutsideAndWhileATextIsEdited)
{
    turn({790, 590}, 1);
    doubleClick(legendCentre());
    turn({380, 204}, 1);
    EXPECT_EQ(plot.axes(), before);
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(PlotGestures, pansWithTheMiddleButtonInOneStep)
{
    mouse(QEvent::MouseButtonPress, {380, 204}, Qt::MiddleButton);
    mouse(QEvent::MouseMove, {340, 204}, Qt::MiddleButton);
    EXPECT_EQ(plot.axes().speed.min, 140) << "the picture follows";
    mouse(QEvent::MouseMove, {320, 204}, Qt::MiddleButton);
    EXPECT_EQ(plot.axes().speed.min, 160);
    EXPECT_THAT(steps, IsEmpty());
    mouse(QEvent::MouseButtonRelease, {320, 204}, Qt::MiddleButton);
    EXPECT_THAT(steps, ElementsAre("Pan"));
}

TEST_F(PlotGestures, returnsADraggedPlotOnEscapeAndBeforeACommand)
{
    for (const bool isKey : {true, false}) {
        mouse(QEvent::MouseButtonPress, {380, 204}, Qt::MiddleButton);
        mouse(QEvent::MouseMove, {340, 204}, Qt::MiddleButton);
        ASSERT_NE(plot.axes(), before);
        if (isKey)
            press(Qt::Key_Escape);
        else
            plot.commitEdits();
        EXPECT_EQ(plot.axes(), before);
        mouse(QEvent::MouseMove, {300, 204}, Qt::MiddleButton);
        mouse(QEvent::MouseButtonRelease, {300, 204}, Qt::MiddleButton);
        EXPECT_EQ(plot.axes(), before);
    }
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(PlotGestures, fitsAllAxesByHomeAndByADoubleClickBetweenTheCurves)
{
    const PlotAxes fitted = fitAxes(plot.SeriesCollection(), before);
    press(Qt::Key_Home);
    EXPECT_EQ(plot.axes(), fitted);
    EXPECT_EQ(plot.references().dampingLines().size(), 1U) << "at damping 0";
    plot.setAxes(before);
    doubleClick({600, 100});
    EXPECT_EQ(plot.axes(), fitted);
    EXPECT_THAT(steps, ElementsAre("Fit Axes", "Fit Axes"));
    plot.setAxes(before);
    // 100 KEAS and 10 Hz: 63 / 252 is 0.25 Hz in a row.
    doubleClick({80, 330 - 40});
    EXPECT_EQ(plot.axes(), before) << "on a curve";
}

TEST_F(PlotGestures, editsTheFieldsOfAnAxisInPlace)
{
    doubleClick({40, 200});
    ASSERT_NE(field("axisMin"), nullptr);
    EXPECT_TRUE(field("axisMin")->hasFocus());
    EXPECT_EQ(field("axisMin")->text(), QStringLiteral("0"));
    EXPECT_EQ(field("axisMax")->text(), QStringLiteral("63"));
    EXPECT_EQ(field("axisTicks")->text(), QStringLiteral("5"));
    field("axisMin")->setText(QStringLiteral("5"));
    field("axisMax")->setText(QStringLiteral("25"));
    field("axisTicks")->setText(QStringLiteral("4"));
    press(field("axisTicks"), Qt::Key_Return);
    EXPECT_EQ(field("axisMin"), nullptr);
    EXPECT_EQ(plot.axes().frequency, (AxisValues {"f(Hz)", 5, 25, 4}));
    EXPECT_EQ(plot.axes().speed, before.speed);
    EXPECT_THAT(steps, ElementsAre("Set Scale"));
}

TEST_F(PlotGestures, opensTheFieldsOfTheAxisThatWasClicked)
{
    doubleClick({300, 345});
    ASSERT_NE(field("axisMax"), nullptr);
    EXPECT_EQ(field("axisMax")->text(), QStringLiteral("700"));
    EXPECT_TRUE(view.rect().contains(field("axisMax")->parentWidget()->geometry()));
    press(field("axisMax"), Qt::Key_Escape);
    EXPECT_EQ(field("axisMax"), nullptr);
    doubleClick({40, 500});
    ASSERT_NE(field("axisMax"), nullptr);
    EXPECT_EQ(field("axisMax")->text(), QStringLiteral("-0.252"));
    EXPECT_TRUE(view.rect().contains(field("axisMax")->parentWidget()->geometry()));
}

TEST_F(PlotGestures, marksFieldsOfAnAxisThatAreNotAccepted)
{
    for (const auto& [name, text] :
         {std::pair("axisMin", "x"), std::pair("axisMax", "100"), std::pair("axisMax", ""),
          std::pair("axisTicks", "0"), std::pair("axisTicks", "40000")}) {
        SCOPED_TRACE(std::string(name) + " " + text);
        doubleClick({300, 345});
        ASSERT_NE(field(name), nullptr);
        EXPECT_EQ(field(name)->accessibleDescription(), QString());
        field(name)->setText(QString::fromLatin1(text));
        EXPECT_NE(field(name)->accessibleDescription(), QString());
        press(field(name), Qt::Key_Return);
        ASSERT_NE(field(name), nullptr) << "stays open";
        view.setFocus();
        EXPECT_EQ(field(name), nullptr);
        EXPECT_EQ(plot.axes(), before);
    }
    EXPECT_THAT(steps, IsEmpty());
}

TEST_F(PlotGestures, acceptsTheFieldsOfAnAxisWhenTheFocusGoesElsewhere)
{
    doubleClick({300, 345});
    ASSERT_NE(field("axisMax"), nullptr);
    field("axisMax")->setText(QStringLiteral("500"));
    view.setFocus();
    EXPECT_EQ(plot.axes().speed.max, 500);
    EXPECT_THAT(steps, ElementsAre("Set Scale"));
}

TEST_F(PlotGestures, marksOnlyTheFieldOfAnAxisThatIsNoNumber)
{
    doubleClick({300, 345});
    ASSERT_NE(field("axisMin"), nullptr);
    field("axisMin")->setText(QStringLiteral("low"));
    EXPECT_NE(field("axisMin")->accessibleDescription(), QString());
    EXPECT_EQ(field("axisMax")->accessibleDescription(), QString());
}

TEST_F(PlotGestures, keepsTheFieldsOfAnAxisInASmallerView)
{
    doubleClick({600, 345});
    ASSERT_NE(field("axisMax"), nullptr);
    const QRect opened = field("axisMax")->parentWidget()->geometry();
    view.resize(500, 300);
    EXPECT_TRUE(view.rect().contains(field("axisMax")->parentWidget()->geometry()));
    view.resize(800, 600);
    EXPECT_EQ(field("axisMax")->parentWidget()->geometry(), opened);
}
