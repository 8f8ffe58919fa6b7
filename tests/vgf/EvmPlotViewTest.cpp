#include "vgf/EvmPlotView.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

class EvmPlotViewTest : public ::testing::Test
{
protected:
    EvmPlotViewTest() : view(plot)
    {
        view.resize(800, 600);
        view.show();
        QApplication::processEvents();
    }

    void mouse(QEvent::Type type, QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : button;
        QMouseEvent event(type, place, view.mapToGlobal(place), changed, held, Qt::NoModifier);
        QApplication::sendEvent(&view, &event);
    }

    void drag(QPoint from, QPoint to)
    {
        mouse(QEvent::MouseButtonPress, from);
        mouse(QEvent::MouseMove, to);
        mouse(QEvent::MouseButtonRelease, to);
    }

    void doubleClick(QPoint place)
    {
        mouse(QEvent::MouseButtonPress, place);
        mouse(QEvent::MouseButtonRelease, place);
        mouse(QEvent::MouseButtonDblClick, place);
    }

    /// The editor that is open over the plot; null when there is none.
    QPlainTextEdit* editor()
    {
        for (QPlainTextEdit* child : view.findChildren<QPlainTextEdit*>()) {
            if (!child->isHidden())
                return child;
        }
        return nullptr;
    }

    void press(QWidget* widget, Qt::Key key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }

    void takeFocusFrom(QWidget* widget, Qt::FocusReason reason)
    {
        QFocusEvent event(QEvent::FocusOut, reason);
        QApplication::sendEvent(widget, &event);
    }

    /// Whether any pixel of a rectangle is not white.
    static bool isInked(const QImage& image, const QRect& rectangle)
    {
        for (int row = rectangle.top(); row <= rectangle.bottom(); ++row) {
            for (int column = rectangle.left(); column <= rectangle.right(); ++column) {
                if (image.pixelColor(column, row) != Qt::white)
                    return true;
            }
        }
        return false;
    }

    QPoint legendCentre() { return plot.Legend().geometry().center(); }

    EvmPlot plot;
    EvmPlotView view;
};

} // namespace

TEST_F(EvmPlotViewTest, givesThePlotItsSize)
{
    EXPECT_EQ(plot.size(), QSize(800, 600));
    view.resize(640, 480);
    QApplication::processEvents();
    EXPECT_EQ(plot.size(), QSize(640, 480));
}

TEST_F(EvmPlotViewTest, showsThePictureOfThePlot)
{
    for (std::size_t i = 0; i < plot.boxCount(); ++i)
        plot.setBoxText(i, QStringLiteral("text"));
    EXPECT_EQ(view.grab().toImage().convertToFormat(QImage::Format_RGB32),
              plot.Image().convertToFormat(QImage::Format_RGB32));
}

TEST_F(EvmPlotViewTest, showsThePromptsOfEmptyBoxesOnTheScreenOnly)
{
    const QImage screen = view.grab().toImage();
    for (const std::size_t index : {std::size_t {1}, std::size_t {2}}) {
        const QRect place = plot.box(index).geometry();
        EXPECT_TRUE(isInked(screen, place)) << index;
        EXPECT_FALSE(isInked(plot.Image(), place)) << index;
    }
}

TEST_F(EvmPlotViewTest, showsNoPromptOnceTheBoxHasAText)
{
    const QRect place = plot.Legend().geometry();
    plot.setBoxText(1, QStringLiteral(" "));
    EXPECT_FALSE(isInked(view.grab().toImage(), place));
}

TEST_F(EvmPlotViewTest, movesABoxThatIsDragged)
{
    const QPoint before = plot.Legend().geometry().topLeft();
    drag(legendCentre(), legendCentre() + QPoint(-300, 140));
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before + QPoint(-300, 140));
    // Its position is kept in twentieths of a point, 15 to a pixel.
    EXPECT_EQ(plot.Legend().unitsLeft(), 15 * (before.x() - 300));
    EXPECT_EQ(plot.Legend().unitsTop(), 15 * (before.y() + 140));
}

TEST_F(EvmPlotViewTest, keepsADraggedBoxInItsPlaceWhenItIsResized)
{
    drag(legendCentre(), legendCentre() + QPoint(-300, 140));
    const QPoint place = plot.Legend().geometry().topLeft();
    view.resize(900, 700);
    QApplication::processEvents();
    EXPECT_EQ(plot.Legend().geometry().topLeft(), place);
}

TEST_F(EvmPlotViewTest, keepsABoxWithinReachThatIsDraggedOutOfThePlot)
{
    drag(legendCentre(), legendCentre() + QPoint(2000, -3000));
    EXPECT_TRUE(view.rect().intersects(plot.Legend().geometry()));
}

TEST_F(EvmPlotViewTest, putsADraggedHeaderBackIntoItsRow)
{
    const QRect before = plot.Header().geometry();
    drag(before.center(), before.center() + QPoint(50, 200));
    EXPECT_EQ(plot.Header().geometry(), before);
}

TEST_F(EvmPlotViewTest, doesNotMoveABoxByATremor)
{
    const QRect before = plot.Legend().geometry();
    const int least = QApplication::startDragDistance();
    drag(legendCentre(), legendCentre() + QPoint(least - 1, 0));
    EXPECT_EQ(plot.Legend().geometry(), before);
}

TEST_F(EvmPlotViewTest, movesNothingWithAnotherButtonOrFromAnotherPlace)
{
    const QRect before = plot.Legend().geometry();
    mouse(QEvent::MouseButtonPress, legendCentre(), Qt::RightButton);
    mouse(QEvent::MouseMove, legendCentre() + QPoint(-100, 100), Qt::RightButton);
    mouse(QEvent::MouseButtonRelease, legendCentre() + QPoint(-100, 100), Qt::RightButton);
    drag({400, 500}, {300, 400});
    EXPECT_EQ(plot.Legend().geometry(), before);
}

TEST_F(EvmPlotViewTest, dropsTheBoxWhenTheButtonIsReleased)
{
    drag(legendCentre(), legendCentre() + QPoint(-300, 140));
    const QRect dropped = plot.Legend().geometry();
    mouse(QEvent::MouseMove, {10, 10});
    EXPECT_EQ(plot.Legend().geometry(), dropped);
}

TEST_F(EvmPlotViewTest, opensAnEditorOnABoxByADoubleClick)
{
    plot.setBoxText(1, QStringLiteral("first\nsecond"));
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->toPlainText(), QStringLiteral("first\nsecond"));
    EXPECT_TRUE(view.rect().contains(editor()->geometry()));
}

TEST_F(EvmPlotViewTest, opensNoEditorElsewhere)
{
    doubleClick({400, 500});
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, takesTheEditedTextWhenTheFocusGoesElsewhere)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("a\nb"));
    takeFocusFrom(editor(), Qt::MouseFocusReason);
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("a\r\nb"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, takesTheEditedTextWhenThePlotIsClicked)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("clicked away"));
    mouse(QEvent::MouseButtonPress, {400, 500});
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("clicked away"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, goesOnEditingWhileAMenuOrAnotherProgramHasTheFocus)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    takeFocusFrom(editor(), Qt::PopupFocusReason);
    takeFocusFrom(editor(), Qt::ActiveWindowFocusReason);
    EXPECT_NE(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, leavesTheTextAsItWasOnEscape)
{
    plot.setBoxText(1, QStringLiteral("as it was"));
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("changed"));
    press(editor(), Qt::Key_Escape);
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("as it was"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, editsOneBoxAfterTheOther)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("legend"));
    doubleClick(plot.Header().geometry().center());
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->toPlainText(), QString());
    editor()->setPlainText(QStringLiteral("header"));
    takeFocusFrom(editor(), Qt::TabFocusReason);
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("legend"));
    EXPECT_EQ(plot.Header().Text(), QStringLiteral("header"));
}

TEST_F(EvmPlotViewTest, reportsAFailureOnceAndNotAtEveryRepaint)
{
    std::vector<ErrorNumber> numbers;
    QObject::connect(&view, &EvmPlotView::failed, &view,
                     [&numbers](const RunTimeError& error) { numbers.push_back(error.number()); });
    plot.setGthicks(0);
    for (int i = 0; i < 3; ++i) {
        view.grab();
        QApplication::processEvents();
    }
    EXPECT_EQ(numbers, std::vector<ErrorNumber> {ErrorNumber::DivisionByZero});
}

TEST_F(EvmPlotViewTest, describesItselfToAScreenReader)
{
    EVM evolution;
    plot.addSeries(evolution.appendMode());
    plot.SetScale(0, 650, 5, 45, 0, -0.5F);
    EXPECT_EQ(view.accessibleName(), QStringLiteral("V-g-f plot"));
    EXPECT_EQ(view.accessibleDescription(),
              QStringLiteral("1 curves; speed 0 to 650 KEAS, frequency 5 to 45 Hz, "
                             "damping 0 to -0.5"));
}
