// SPDX-License-Identifier: Apache-2.0

// The keyboard and screen readers in the view of a plot. It is 800 x 600, so
//
//     column = 80 + V        row = 330 - 4 f        row = 330 - 1000 g

#include "analysis/ModeBuilder.h"
#include "plotwindow/EvmPlotViewFixture.h"
#include "plotwindow/PlotReadout.h"

#include <QAccessible>
#include <QLabel>
#include <QVBoxLayout>

#include <gmock/gmock.h>

#include <optional>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class PlotKeyboard : public test::EvmPlotViewTest
{
protected:
    PlotKeyboard()
    {
        new PlotReadout(plot, view); // owned by the view
        plot.SetScale(0, 600, 0, 63, 0, -0.252F);
        evolution.FileName = "a.ev2";
        QObject::connect(&view, &EvmPlotView::curvesSelected, &view,
                         [this](const Rows& rows) { selected = rows; });
    }

    void addCurves()
    {
        ids.push_back(plot.rows().add(
            test::addMode(evolution, 3, {{100, -0.1F, 10}, {200, -0.05F, 12}, {300, 0.02F, 14}})));
        ids.push_back(plot.rows().add(
            test::addMode(evolution, 4, {{90, -0.2F, 40}, {210, -0.2F, 42}, {500, -0.2F, 70}})));
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        test::EvmPlotViewTest::press(key, modifiers);
    }

    QLabel& readout() { return *view.findChild<QLabel*>(QStringLiteral("plotReadout")); }
    QAccessibleInterface& heard() { return *QAccessible::queryAccessibleInterface(&view); }

    EVM evolution;
    Rows ids;
    Rows selected;
};

} // namespace

TEST_F(PlotKeyboard, visitsTheTextBoxesByTheTabKey)
{
    EXPECT_EQ(view.selectedBox(), std::nullopt);
    for (const TextBox box : {TextBox::Header, TextBox::Legend, TextBox::Mechanism}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(view.selectedBox(), box);
        EXPECT_TRUE(view.hasFocus());
    }
    press(Qt::Key_Backtab);
    EXPECT_EQ(view.selectedBox(), TextBox::Legend);
    press(Qt::Key_Backtab);
    press(Qt::Key_Backtab);
    EXPECT_EQ(view.selectedBox(), std::nullopt);
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(PlotKeyboard, leavesThePlotAfterTheLastBoxAndBeforeTheFirst)
{
    QWidget frame;
    auto* const layout = new QVBoxLayout(&frame);
    auto* const before = new QTextEdit(&frame);
    auto* const after = new QTextEdit(&frame);
    layout->addWidget(before);
    layout->addWidget(&view);
    layout->addWidget(after);
    frame.show();
    frame.activateWindow();
    QWidget::setTabOrder(before, &view);
    QWidget::setTabOrder(&view, after);
    QApplication::processEvents();
    view.setFocus();
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Tab);
    EXPECT_TRUE(after->hasFocus());
    EXPECT_EQ(view.selectedBox(), std::nullopt);
    view.setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(view.selectedBox(), TextBox::Mechanism);
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Backtab);
    EXPECT_TRUE(before->hasFocus());
    layout->removeWidget(&view);
    view.setParent(nullptr);
}

TEST_F(PlotKeyboard, editsATextWithoutTheMouse)
{
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    press(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("the legend"));
    QKeyEvent commit(QEvent::KeyPress, Qt::Key_Return, Qt::ControlModifier);
    QApplication::sendEvent(editor(), &commit);
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("the legend"));
    EXPECT_EQ(view.selectedBox(), TextBox::Legend);
    press(Qt::Key_Return);
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("another"));
    test::EvmPlotViewTest::press(editor(), Qt::Key_Escape);
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("the legend"));
    press(Qt::Key_Tab);
    EXPECT_EQ(view.selectedBox(), TextBox::Mechanism);
}

TEST_F(PlotKeyboard, walksAlongACurveAndToTheNextOne)
{
    addCurves();
    press(Qt::Key_Right);
    EXPECT_THAT(selected, ElementsAre(ids[0]));
    EXPECT_TRUE(readout().isVisible());
    EXPECT_EQ(readout().text(),
              QStringLiteral("a.ev2, mode 3 [0]: V 100.0 KEAS, f 10.00 Hz, g -0.1000"));
    press(Qt::Key_Right);
    EXPECT_EQ(readout().text(),
              QStringLiteral("a.ev2, mode 3 [0]: V 200.0 KEAS, f 12.00 Hz, g -0.0500"));
    press(Qt::Key_Down);
    EXPECT_THAT(selected, ElementsAre(ids[1]));
    EXPECT_EQ(readout().text(),
              QStringLiteral("a.ev2, mode 4 [1]: V 210.0 KEAS, f 42.00 Hz, g -0.2000"))
        << "the point nearest in speed";
    press(Qt::Key_Down);
    EXPECT_THAT(selected, ElementsAre(ids[1])) << "the last curve";
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(view.curves().cursor()->speed, 90);
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(view.curves().cursor()->speed, 500) << "ten points, but not beyond the last";
    press(Qt::Key_Up);
    EXPECT_EQ(view.curves().cursor()->speed, 300);
    press(Qt::Key_Escape);
    EXPECT_THAT(selected, IsEmpty());
    EXPECT_FALSE(readout().isVisible());
}

TEST_F(PlotKeyboard, showsTheCursorOnTheScreenOnly)
{
    addCurves();
    plot.rows().setMode(ids[1], 0);
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    const QRect ring(280 - 10, 330 - 48 - 10, 20, 20);
    EXPECT_EQ(view.curves().cursorPixel(), QPoint(280, 330 - 48));
    EXPECT_NE(view.grab(ring).toImage().convertToFormat(QImage::Format_RGB32),
              plot.Image().copy(ring));
    EXPECT_FALSE(readout().geometry().contains(280, 330 - 48));
}

TEST_F(PlotKeyboard, startsOnTheSelectedCurveAtItsFirstVisiblePoint)
{
    addCurves();
    plot.SetScale(150, 600, 0, 63, 0, -0.252F);
    view.selectCurves({ids[1]});
    press(Qt::Key_Up);
    EXPECT_EQ(view.curves().cursor()->row, ids[1]);
    EXPECT_EQ(view.curves().cursor()->speed, 210);
    press(Qt::Key_Right);
    EXPECT_EQ(view.curves().cursorPixel().y(), 330 + 200)
        << "70 Hz are outside, the damping is not";
}

TEST_F(PlotKeyboard, losesTheCursorWithItsCurve)
{
    addCurves();
    press(Qt::Key_Right);
    plot.rows().remove({0});
    EXPECT_EQ(view.curves().cursor(), std::nullopt);
    view.grab();
    press(Qt::Key_Right);
    EXPECT_EQ(view.curves().cursor()->row, ids[1]);
    view.selectCurves({});
    EXPECT_EQ(view.curves().cursor(), std::nullopt);
}

TEST_F(PlotKeyboard, leavesTheArrowKeysToOthersWithoutCurves)
{
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    key.accept();
    QApplication::sendEvent(&view, &key);
    EXPECT_FALSE(key.isAccepted());
}

TEST_F(PlotKeyboard, hasItsTextsAndCurvesAsChildrenForAScreenReader)
{
    addCurves();
    plot.texts().setText(TextBox::Legend, QStringLiteral("the legend"));
    EXPECT_EQ(heard().role(), QAccessible::Graphic);
    ASSERT_GE(heard().childCount(), 5);
    const auto text = [this](int child, QAccessible::Text kind) {
        return heard().child(child)->text(kind).toStdString();
    };
    EXPECT_EQ(text(0, QAccessible::Name), "Header");
    EXPECT_EQ(text(1, QAccessible::Name), "Legend");
    EXPECT_EQ(text(1, QAccessible::Value), "the legend");
    EXPECT_EQ(text(2, QAccessible::Name), "Subtitle");
    EXPECT_EQ(text(3, QAccessible::Name), "a.ev2, mode 3 [0]");
    EXPECT_EQ(text(3, QAccessible::Description),
              "100 to 300 KEAS, 10 to 14 Hz, damping -0.1 to 0.02");
    EXPECT_EQ(text(3, QAccessible::Value), "");
    for (int i = 0; i < heard().childCount(); ++i) {
        EXPECT_EQ(heard().indexOfChild(heard().child(i)), i);
        EXPECT_EQ(heard().child(i)->parent()->object(), &view) << i;
    }
    EXPECT_EQ(heard().child(99), nullptr);
    EXPECT_EQ(heard().child(-1), nullptr);
}

TEST_F(PlotKeyboard, reportsTheBoxOrCurveThatHasTheKeyboard)
{
    addCurves();
    press(Qt::Key_Tab);
    press(Qt::Key_Tab);
    EXPECT_EQ(heard().focusChild(), heard().child(1));
    EXPECT_TRUE(heard().child(1)->state().focused);
    press(Qt::Key_Escape);
    press(Qt::Key_Right);
    EXPECT_EQ(heard().focusChild(), heard().child(3));
    EXPECT_TRUE(heard().child(3)->state().focused);
    EXPECT_TRUE(heard().child(3)->state().selected);
    EXPECT_FALSE(heard().child(4)->state().selected);
    EXPECT_EQ(heard().child(3)->text(QAccessible::Value),
              QStringLiteral("a.ev2, mode 3 [0]: V 100.0 KEAS, f 10.00 Hz, g -0.1000"));
}

TEST_F(PlotKeyboard, findsBoxesAndCurvesAtAPositionForAScreenReader)
{
    addCurves();
    const auto childAt = [this](QPoint position) {
        const QPoint global = view.mapToGlobal(position);
        return heard().childAt(global.x(), global.y());
    };
    EXPECT_EQ(childAt(legendCentre()), heard().child(1));
    EXPECT_EQ(childAt({80 + 150, 330 - 44}), heard().child(3));
    EXPECT_EQ(heard().child(1)->rect(),
              QRect(view.mapToGlobal(plot.Legend().geometry().topLeft()),
                    plot.Legend().geometry().size()));
}

TEST_F(PlotKeyboard, hasNoChildForACurveThatHasLeft)
{
    addCurves();
    QAccessibleInterface* const curve = heard().child(4);
    plot.rows().remove({1});
    EXPECT_FALSE(curve->isValid());
    EXPECT_EQ(curve->text(QAccessible::Name), QString());
    EXPECT_EQ(heard().indexOfChild(curve), -1);
}
