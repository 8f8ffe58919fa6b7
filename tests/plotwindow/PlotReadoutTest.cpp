// SPDX-License-Identifier: Apache-2.0

// The box with the values at the pointer. The view is 800 x 600, so the canvases are columns 80 to
// 679 and rows 78 to 581, and the speed axis is row 330 (see PlotReadingTest).

#include "plotwindow/PlotReadout.h"

#include "analysis/ModeBuilder.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTextEdit>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

/// Counts the events of a type that a widget receives.
class EventCounter : public QObject
{
public:
    EventCounter(QWidget& widget, QEvent::Type type) : m_type(type)
    {
        widget.installEventFilter(this);
    }

    int count() const { return m_count; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_count += event->type() == m_type ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }

private:
    QEvent::Type m_type;
    int m_count = 0;
};

class PlotReadoutTest : public ::testing::Test
{
protected:
    PlotReadoutTest() : view(plot)
    {
        new PlotReadout(plot, view); // owned by the view
        view.resize(800, 600);
        view.show();
        QApplication::processEvents();
        plot.SetScale(0, 600, 0, 63, 0, -0.252F);
        QApplication::processEvents();
    }

    void mouse(QEvent::Type type, QPoint position, Qt::MouseButton button, Qt::MouseButtons held)
    {
        QMouseEvent event(type, position, view.mapToGlobal(position), button, held, Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
    }
    void moveTo(QPoint position, Qt::MouseButtons held = Qt::NoButton)
    {
        mouse(QEvent::MouseMove, position, Qt::NoButton, held);
    }
    void press(QPoint position, Qt::MouseButton button)
    {
        mouse(QEvent::MouseButtonPress, position, button, button);
    }
    void release(QPoint position, Qt::MouseButton button)
    {
        mouse(QEvent::MouseButtonRelease, position, button, Qt::NoButton);
    }
    void send(QEvent::Type type)
    {
        QEvent event(type);
        QApplication::sendEvent(&view, &event);
    }
    void openLegendEditor()
    {
        const QPoint position = plot.Legend().geometry().center();
        press(position, Qt::LeftButton);
        release(position, Qt::LeftButton);
        mouse(QEvent::MouseButtonDblClick, position, Qt::LeftButton, Qt::LeftButton);
        release(position, Qt::LeftButton);
    }

    QLabel& box() { return *view.findChild<QLabel*>(QStringLiteral("plotReadout")); }
    bool isShown() { return box().isVisible(); }

    EVM evolution;
    EvmPlot plot;
    EvmPlotView view;
    const QPoint inCanvas {280, 270};
};

} // namespace

TEST_F(PlotReadoutTest, isHiddenAtFirst)
{
    EXPECT_FALSE(isShown());
}

TEST_F(PlotReadoutTest, showsTheValuesWhereThePointerMoves)
{
    moveTo({280, 270});
    EXPECT_TRUE(isShown());
    // (330 - 270) / 4 rows for each Hz = 15 Hz; a column is 1 KEAS.
    EXPECT_EQ(box().text(), QStringLiteral("V 200.0 KEAS   f 15.00 Hz"));
    moveTo({281, 430});
    EXPECT_TRUE(isShown());
    EXPECT_EQ(box().text(), QStringLiteral("V 201.0 KEAS   g -0.1000"));
}

TEST_F(PlotReadoutTest, showsTheNearestCurveInASecondLine)
{
    evolution.FileName = "a<b>&c.ev2";
    plot.rows().add(test::addMode(evolution, 2, {{100, -0.2F, 15}, {300, -0.2F, 15}}));
    moveTo({280, 270});
    EXPECT_EQ(box().text(),
              QStringLiteral("V 200.0 KEAS   f 15.00 Hz\n"
                             "a<b>&c.ev2, mode 2 [0]: V 200.0 KEAS, f 15.00 Hz, "
                             "g -0.2000"));
    EXPECT_EQ(box().textFormat(), Qt::PlainText);
    EXPECT_GE(box().height(), 2 * box().fontMetrics().height());
}

TEST_F(PlotReadoutTest, showsWhetherTheViewHasTheKeyboardOrNot)
{
    view.activateWindow();
    QApplication::processEvents();
    view.setFocus();
    ASSERT_TRUE(view.hasFocus());
    moveTo(inCanvas);
    EXPECT_TRUE(isShown());
    view.clearFocus();
    moveTo(inCanvas);
    EXPECT_TRUE(isShown());
}

TEST_F(PlotReadoutTest, showsWhenThePointerComesIn)
{
    QEnterEvent enter(inCanvas, inCanvas, view.mapToGlobal(inCanvas));
    QApplication::sendEvent(&view, &enter);
    EXPECT_TRUE(isShown());
}

TEST_F(PlotReadoutTest, staysWhileThePointerRestsOrMovesOn)
{
    moveTo(inCanvas);
    const EventCounter hidden(box(), QEvent::Hide);
    for (int step = 1; step <= 50; ++step) {
        moveTo(inCanvas + QPoint(step, step));
        QApplication::processEvents();
        ASSERT_TRUE(isShown()) << step;
    }
    EXPECT_EQ(hidden.count(), 0);
}

TEST_F(PlotReadoutTest, hidesOutsideTheCanvases)
{
    for (const QPoint position :
         {QPoint(79, 270), QPoint(680, 270), QPoint(280, 77), QPoint(280, 582)}) {
        moveTo(inCanvas);
        ASSERT_TRUE(isShown());
        moveTo(position);
        EXPECT_FALSE(isShown()) << position.x() << ',' << position.y();
    }
}

TEST_F(PlotReadoutTest, hidesWhenThePointerLeavesOrTheWindowGoes)
{
    for (const QEvent::Type type : {QEvent::Leave, QEvent::WindowDeactivate}) {
        moveTo(inCanvas);
        ASSERT_TRUE(isShown());
        send(type);
        EXPECT_FALSE(isShown()) << type;
    }
}

TEST_F(PlotReadoutTest, doesNotComeBackWithAViewThatIsShownAgain)
{
    moveTo(inCanvas);
    view.hide();
    view.show();
    QApplication::processEvents();
    EXPECT_FALSE(isShown());
}

TEST_F(PlotReadoutTest, hidesOnAnyButtonUntilItIsReleased)
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        moveTo(inCanvas);
        ASSERT_TRUE(isShown());
        press(inCanvas, button);
        EXPECT_FALSE(isShown()) << button;
        moveTo(inCanvas + QPoint(1, 0), button);
        EXPECT_FALSE(isShown()) << button;
        release(inCanvas, button);
        EXPECT_TRUE(isShown()) << button;
    }
}

TEST_F(PlotReadoutTest, staysHiddenWhileOneOfTwoButtonsIsHeld)
{
    press(inCanvas, Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, inCanvas, Qt::RightButton, Qt::LeftButton);
    EXPECT_FALSE(isShown());
}

TEST_F(PlotReadoutTest, hidesOnAKeyAndOnAKeyOfAMenu)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::ShortcutOverride}) {
        moveTo(inCanvas);
        ASSERT_TRUE(isShown());
        QKeyEvent event(type, Qt::Key_S, Qt::ControlModifier);
        QApplication::sendEvent(&view, &event);
        EXPECT_FALSE(isShown()) << type;
    }
}

TEST_F(PlotReadoutTest, hidesWhenThePlotChanges)
{
    moveTo(inCanvas);
    plot.SetScale(0, 300, 0, 63, 0, -0.252F);
    EXPECT_FALSE(isShown());
    moveTo(inCanvas);
    // 300 KEAS in 600 columns.
    EXPECT_EQ(box().text(), QStringLiteral("V 100.0 KEAS   f 15.00 Hz"));
}

TEST_F(PlotReadoutTest, showsNothingOverAnEditor)
{
    plot.texts().move(TextBox::Legend, 15 * 300,
                      15 * 200); // moves the legend onto the canvas, 15 units for each pixel
    openLegendEditor();
    QTextEdit* const editor = view.findChild<QTextEdit*>();
    ASSERT_NE(editor, nullptr);
    moveTo(editor->geometry().center());
    EXPECT_FALSE(isShown());
}

TEST_F(PlotReadoutTest, showsNothingOverAChildWithoutTheKeyboard)
{
    QWidget child(&view);
    child.setGeometry(200, 200, 100, 100);
    child.show();
    moveTo({299, 299});
    EXPECT_FALSE(isShown());
    moveTo({300, 300}); // just outside
    EXPECT_TRUE(isShown());
    child.hide();
    moveTo({299, 299});
    EXPECT_TRUE(isShown());
}

TEST_F(PlotReadoutTest, showsNothingElsewhereWhileAnEditorHasTheKeyboard)
{
    view.activateWindow();
    openLegendEditor();
    QApplication::processEvents();
    ASSERT_NE(qobject_cast<QTextEdit*>(QApplication::focusWidget()), nullptr);
    moveTo(inCanvas);
    EXPECT_FALSE(isShown());
    press(inCanvas, Qt::LeftButton); // ends the editing
    release(inCanvas, Qt::LeftButton);
    EXPECT_TRUE(isShown());
}

TEST_F(PlotReadoutTest, standsBesideThePointerWithinTheView)
{
    for (int column = 80; column < 680; column += 7) {
        for (int row = 78; row < 582; row += 7) {
            moveTo({column, row});
            ASSERT_TRUE(isShown()) << column << ',' << row;
            ASSERT_TRUE(view.rect().contains(box().geometry())) << column << ',' << row;
            ASSERT_FALSE(box().geometry().contains(column, row)) << column << ',' << row;
        }
    }
}

TEST_F(PlotReadoutTest, standsRightBelowThePointerAndOnTheOtherSideNearAnEdge)
{
    moveTo({280, 270});
    EXPECT_GT(box().geometry().left(), 280);
    EXPECT_GT(box().geometry().top(), 270);
    moveTo({679, 581}); // leaves 120 columns and 18 rows
    EXPECT_LT(box().geometry().right(), 679);
    EXPECT_LT(box().geometry().bottom(), 581);
}

TEST_F(PlotReadoutTest, beginsAtTheLeftEdgeWhenItIsWiderThanTheView)
{
    evolution.FileName = std::string(300, 'w');
    plot.rows().add(test::addMode(evolution, 2, {{100, -0.2F, 15}, {300, -0.2F, 15}}));
    moveTo({280, 270});
    ASSERT_GT(box().width(), view.width());
    EXPECT_EQ(box().geometry().left(), 0);
}

TEST_F(PlotReadoutTest, letsAllEventsThrough)
{
    const QPoint before = plot.Legend().geometry().topLeft();
    const QPoint grip = plot.Legend().geometry().center();
    press(grip, Qt::LeftButton);
    moveTo(grip - QPoint(300, 0), Qt::LeftButton);
    release(grip - QPoint(300, 0), Qt::LeftButton);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before - QPoint(300, 0));
}

TEST_F(PlotReadoutTest, isNothingForTheMouseAndHasANameForAScreenReader)
{
    EXPECT_TRUE(box().testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_EQ(box().accessibleDescription(), QStringLiteral("Values at the pointer"));
    EXPECT_EQ(box().accessibleName(), QString()) << "a screen reader reads the values";
    moveTo(inCanvas);
    EXPECT_EQ(view.childAt(box().geometry().center()), nullptr);
}

TEST_F(PlotReadoutTest, keepsMouseTrackingOn)
{
    EXPECT_TRUE(view.hasMouseTracking());
    view.setMouseTracking(false);
    EXPECT_TRUE(view.hasMouseTracking());
}

TEST_F(PlotReadoutTest, isNeverInThePicture)
{
    const QImage before = plot.Image().copy();
    moveTo(inCanvas);
    ASSERT_TRUE(isShown());
    EXPECT_EQ(plot.Image(), before);
}
