// SPDX-License-Identifier: Apache-2.0

// The window's reactions to its size, the keyboard and the mouse.

#include "plotwindow/WndEvolPlotFixture.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QTextEdit>

#include <gmock/gmock.h>

using namespace tarsil;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

class WndEvolPlotInput : public test::WndEvolPlotTest
{
protected:
    void askForMenu(QWidget& widget, QContextMenuEvent::Reason reason, QPoint globalPosition)
    {
        QContextMenuEvent event(reason, widget.mapFromGlobal(globalPosition), globalPosition);
        QApplication::sendEvent(&widget, &event);
    }

    /// Double-clicks the legend of the first plot and types; leaves the editor open.
    void typeLegend(const QString& text)
    {
        EvmPlotView& view = *window.viewOf(*plotAt(0));
        const QPoint position = plotAt(0)->Legend().geometry().center();
        QMouseEvent twice(QEvent::MouseButtonDblClick, position, view.mapToGlobal(position),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &twice);
        auto* const editor = view.findChild<QTextEdit*>();
        ASSERT_NE(editor, nullptr);
        ASSERT_TRUE(editor->hasFocus());
        editor->setPlainText(text);
    }
};

} // namespace

TEST_F(WndEvolPlotInput, fillsItselfWithTheActivePlot)
{
    show();
    activateFirst();
    EXPECT_EQ(window.viewOf(*plotAt(0))->geometry(), QRect(0, 0, 800, 600));
    EXPECT_EQ(plotAt(0)->size(), QSize(800, 600));
    window.resize(640, 480);
    QApplication::processEvents();
    EXPECT_EQ(window.viewOf(*plotAt(0))->geometry(), QRect(0, 0, 640, 480));
    EXPECT_EQ(plotAt(0)->size(), QSize(640, 480));
}

TEST_F(WndEvolPlotInput, fitsAPlotThatBecomesActiveAfterTheWindowWasResized)
{
    show();
    EvmPlot* const second = add();
    activateFirst();
    window.resize(640, 480);
    QApplication::processEvents();
    window.ActivatePlot(second);
    EXPECT_EQ(window.viewOf(*second)->geometry(), QRect(0, 0, 640, 480));
    EXPECT_EQ(second->size(), QSize(640, 480));
}

TEST_F(WndEvolPlotInput, fitsAPlotAlsoWhileItCannotBeSeen)
{
    window.resize(700, 500);
    EvmPlot* const second = add();
    window.FitPlot(second);
    EXPECT_EQ(window.viewOf(*second)->geometry(), QRect(0, 0, 700, 500));
    EXPECT_EQ(second->size(), QSize(700, 500));
    EXPECT_FALSE(second->Visible());
}

TEST_F(WndEvolPlotInput, fitsNothingForNoPlotOrAStranger)
{
    EvmPlot stranger;
    stranger.resize({300, 200});
    window.FitPlot(nullptr);
    window.FitPlot(&stranger);
    EXPECT_EQ(stranger.size(), QSize(300, 200));
}

TEST_F(WndEvolPlotInput, isNeverSmallerThanAPlotCanBe)
{
    show();
    activateFirst();
    window.resize(10, 10);
    QApplication::processEvents();
    EXPECT_EQ(window.viewOf(*plotAt(0))->size(), window.size());
}

TEST_F(WndEvolPlotInput, givesTheKeyboardToTheActivePlot)
{
    show();
    EvmPlot* const second = add();
    activateFirst();
    window.setFocus();
    EXPECT_TRUE(window.viewOf(*plotAt(0))->hasFocus());
    window.ActivatePlot(second);
    EXPECT_EQ(window.focusProxy(), window.viewOf(*second));
    EXPECT_TRUE(window.viewOf(*second)->hasFocus());
    window.RemovePlot(second);
    EXPECT_TRUE(window.viewOf(*plotAt(0))->hasFocus());
    window.ActivatePlot(nullptr);
    EXPECT_EQ(window.focusProxy(), nullptr);
}

TEST_F(WndEvolPlotInput, leavesTheKeyboardToOthers)
{
    QWidget frame;
    QTextEdit other(&frame);
    window.setParent(&frame);
    frame.resize(900, 700);
    frame.show();
    frame.activateWindow();
    QApplication::processEvents();
    EvmPlot* const second = add();
    other.setFocus();
    activateFirst();
    window.ActivatePlot(second);
    EXPECT_TRUE(other.hasFocus());
    window.setParent(nullptr);
}

TEST_F(WndEvolPlotInput, keepsATextThatIsBeingEditedWhenAnotherPlotBecomesActive)
{
    show();
    EvmPlot* const second = add();
    activateFirst();
    typeLegend(QStringLiteral("typed"));
    window.ActivatePlot(second);
    EXPECT_EQ(plotAt(0)->Legend().Text(), QStringLiteral("typed"));
    EXPECT_TRUE(window.viewOf(*second)->hasFocus());
}

TEST_F(WndEvolPlotInput, copiesAPlotWithTheTextThatIsBeingEdited)
{
    show();
    activateFirst();
    typeLegend(QStringLiteral("typed"));
    EXPECT_EQ(window.CopyPlot(QString())->Legend().Text(), QStringLiteral("typed"));
    EXPECT_EQ(plotAt(0)->Legend().Text(), QStringLiteral("typed"));
}

TEST_F(WndEvolPlotInput, asksForThePlotsMenuByTheMouseAndByTheKeyboard)
{
    show();
    activateFirst();
    listen();
    EvmPlotView& view = *window.viewOf(*plotAt(0));
    const QPoint first = view.mapToGlobal(QPoint(300, 200));
    const QPoint second = view.mapToGlobal(QPoint(400, 300));
    askForMenu(view, QContextMenuEvent::Mouse, first);
    askForMenu(view, QContextMenuEvent::Keyboard, second);
    const auto text = [](QPoint position) {
        return "menu " + std::to_string(position.x()) + "," + std::to_string(position.y());
    };
    EXPECT_THAT(announced, ElementsAre(text(first), text(second)));
}

TEST_F(WndEvolPlotInput, hasNoMenuWithoutAnActivePlot)
{
    show();
    listen();
    askForMenu(window, QContextMenuEvent::Mouse, window.mapToGlobal(QPoint(300, 200)));
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(WndEvolPlotInput, survivesAPlotThatIsRemovedFromItsOwnMenu)
{
    show();
    EvmPlot* const second = add();
    window.ActivatePlot(second);
    QObject::connect(&window, &wndEvolPlot::plotMenuRequested, &window,
                     [&] { window.RemovePlot(second); });
    EvmPlotView& view = *window.viewOf(*second);
    askForMenu(view, QContextMenuEvent::Mouse, view.mapToGlobal(QPoint(300, 200)));
    EXPECT_THAT(captions(), ElementsAre("Plot1"));
}

TEST_F(WndEvolPlotInput, passesOnTheFailureOfAPlot)
{
    std::vector<ErrorNumber> numbers;
    QObject::connect(&window, &wndEvolPlot::failed, &window,
                     [&numbers](const RunTimeError& error) { numbers.push_back(error.number()); });
    EvmPlot* const second = add();
    window.ActivatePlot(second);
    second->properties().setGthicks(0);
    show();
    window.grab();
    QApplication::processEvents();
    EXPECT_EQ(numbers, std::vector<ErrorNumber> {ErrorNumber::DivisionByZero});
}

TEST_F(WndEvolPlotInput, givesEachPlotAReadout)
{
    show();
    EvmPlot* const second = add();
    for (EvmPlot* plot : {plotAt(0), second}) {
        window.ActivatePlot(plot);
        EvmPlotView& view = *window.viewOf(*plot);
        auto* const box = view.findChild<QLabel*>(QStringLiteral("plotReadout"));
        ASSERT_NE(box, nullptr);
        const QPoint position(300, 200);
        QMouseEvent move(QEvent::MouseMove, position, view.mapToGlobal(position), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &move);
        EXPECT_TRUE(box->isVisible());
    }
}

TEST_F(WndEvolPlotInput, endsTheNoteOfTheCommandBefore)
{
    user.note = "The picture is in /wing.emf";
    window.viewOf(*add())->copyPicture();
    EXPECT_EQ(user.note, "");
}

TEST_F(WndEvolPlotInput, knowsNoViewOfAPlotOfAnotherWindow)
{
    const EvmPlot stranger;
    EXPECT_EQ(window.viewOf(stranger), nullptr);
}
