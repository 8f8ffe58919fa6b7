// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/EvmPlotViewFixture.h"

#include "model/EVM.h"
#include "vgfplot/PictureWriter.h"
#include "vgfplot/PlotRecords.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextEdit>

#include <gtest/gtest.h>

using namespace tarsil;
using test::EvmPlotViewTest;

namespace {

TextFormat redAndBold()
{
    TextFormat format;
    format.bold = true;
    format.color = rgb(255, 0, 0);
    return format;
}

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
    for (const TextBox which : allTextBoxes)
        plot.texts().setText(which, QStringLiteral("text"));
    EXPECT_EQ(view.grab().toImage().convertToFormat(QImage::Format_RGB32),
              plot.Image().convertToFormat(QImage::Format_RGB32));
}

TEST_F(EvmPlotViewTest, showsThePromptsOfEmptyBoxesOnTheScreenOnly)
{
    const QImage screen = view.grab().toImage();
    for (const TextBox which : {TextBox::Legend, TextBox::Mechanism}) {
        SCOPED_TRACE(static_cast<int>(which));
        const QRect area = plot.parts().box(which).geometry();
        EXPECT_TRUE(isInked(screen, area));
        EXPECT_FALSE(isInked(plot.Image(), area));
    }
}

TEST_F(EvmPlotViewTest, showsNoPromptOnceTheBoxHasAText)
{
    const QRect area = plot.Legend().geometry();
    plot.texts().setText(TextBox::Legend, QStringLiteral(" "));
    EXPECT_FALSE(isInked(view.grab().toImage(), area));
}

TEST_F(EvmPlotViewTest, movesABoxThatIsDragged)
{
    const QPoint before = plot.Legend().geometry().topLeft();
    drag(legendCentre(), legendCentre() + QPoint(-300, 140));
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before + QPoint(-300, 140));
    // The position is kept in twentieths of a point, 15 for each pixel.
    EXPECT_EQ(plot.Legend().unitsLeft(), 15 * (before.x() - 300));
    EXPECT_EQ(plot.Legend().unitsTop(), 15 * (before.y() + 140));
}

TEST_F(EvmPlotViewTest, keepsADraggedBoxAtItsPositionWhenItIsResized)
{
    drag(legendCentre(), legendCentre() + QPoint(-300, 140));
    const QPoint position = plot.Legend().geometry().topLeft();
    view.resize(900, 700);
    QApplication::processEvents();
    EXPECT_EQ(plot.Legend().geometry().topLeft(), position);
}

TEST_F(EvmPlotViewTest, keepsABoxInThePlotThatIsDraggedOutOfIt)
{
    drag(legendCentre(), legendCentre() + QPoint(2000, -3000));
    EXPECT_TRUE(view.rect().contains(plot.Legend().geometry()));
}

/// A dropped box stays where it is shown: the pointer cannot move it to a position at which it
/// would be shown elsewhere.
TEST_F(EvmPlotViewTest, showsADraggedBoxWhereItWasDropped)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("a legend\nof three\nlines"));
    plot.texts().move(TextBox::Legend, 15 * 300, 15 * 300);
    const QSize size = plot.Legend().geometry().size();
    const QPoint grip(5, 5);
    drag(QPoint(300, 300) + grip, QPoint(20, 20) + grip);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), QPoint(20, 20));
    drag(QPoint(20, 20) + grip, {-400, -400});
    EXPECT_EQ(plot.Legend().geometry().topLeft(), QPoint(0, 0));
    EXPECT_EQ(plot.Legend().unitsLeft(), 0);
    plot.resize({900, 700});
    drag(grip, {1400, 1400});
    EXPECT_EQ(plot.Legend().geometry().topLeft(), QPoint(900 - size.width(), 700 - size.height()));
    EXPECT_EQ(plot.Legend().unitsLeft(), 15 * (900 - size.width()));
}

TEST_F(EvmPlotViewTest, movesABoxFromThePositionWhereItIsShown)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("legend"));
    plot.texts().move(TextBox::Legend, 15 * 1200, 15 * 100.25); // right of the plot
    const QPoint shown = plot.Legend().geometry().topLeft();
    EXPECT_EQ(shown, QPoint(800 - plot.Legend().Width(), 100));
    mouse(QEvent::MouseButtonPress, legendCentre());
    mouse(QEvent::MouseMove, legendCentre() + QPoint(-50, 40));
    EXPECT_EQ(plot.Legend().geometry().topLeft(), shown + QPoint(-50, 40));
    press(Qt::Key_Escape);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), shown);
    EXPECT_EQ(plot.Legend().unitsLeft(), 15 * 1200) << "taken back";
    EXPECT_EQ(plot.Legend().unitsTop(), 15 * 100.25);
    press(Qt::Key_Left);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), shown + QPoint(-1, 0));
    EXPECT_EQ(plot.Legend().unitsLeft(), 15 * (shown.x() - 1));
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

TEST_F(EvmPlotViewTest, movesNothingWithAnotherButtonOrFromAnotherPosition)
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
    plot.texts().setText(TextBox::Legend, QStringLiteral("first\nsecond"));
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

TEST_F(EvmPlotViewTest, acceptsTheEditedTextWhenTheFocusGoesElsewhere)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("a\nb"));
    view.setFocus();
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("a\r\nb"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, acceptsTheEditedTextWhenThePlotIsClicked)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("clicked away"));
    mouse(QEvent::MouseButtonPress, {400, 500});
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("clicked away"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, goesOnEditingWhileAnotherProgramHasTheFocus)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    Q_EMIT qApp->focusChanged(editor(), nullptr);
    EXPECT_NE(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, leavesTheTextAsItWasOnEscape)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("as it was"));
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("changed"));
    press(editor(), Qt::Key_Escape);
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("as it was"));
    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(view.hasFocus());
}

TEST_F(EvmPlotViewTest, acceptsTheEditedTextOnControlReturn)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("changed"));
    QKeyEvent commit(QEvent::KeyPress, Qt::Key_Return, Qt::ControlModifier);
    QApplication::sendEvent(editor(), &commit);
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("changed"));
    EXPECT_EQ(editor(), nullptr);
    EXPECT_TRUE(view.hasFocus());
    press(Qt::Key_F2);
    EXPECT_NE(editor(), nullptr) << "the box is still selected";
}

TEST_F(EvmPlotViewTest, leavesTheTextByTheTabKey)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    press(editor(), Qt::Key_Tab);
    EXPECT_EQ(editor()->toPlainText(), QString());
    EXPECT_FALSE(editor()->hasFocus());
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
    view.setFocus();
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("legend"));
    EXPECT_EQ(plot.Header().Text(), QStringLiteral("header"));
}

TEST_F(EvmPlotViewTest, keepsFontsAndColoursOfATextThatIsEdited)
{
    plot.texts().setContent(TextBox::Legend,
                            {{{u"a", {}}, {u"b\n", redAndBold()}, {u"c", {}}}, {}});
    const RichText before = plot.Legend().content();
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->moveCursor(QTextCursor::End);
    editor()->insertPlainText(QStringLiteral("d"));
    view.setFocus();
    RichText expected = before;
    expected.runs.back().text = u"cd";
    EXPECT_EQ(plot.Legend().content(), expected);
}

TEST_F(EvmPlotViewTest, leavesATextAloneThatWasOnlyLookedAt)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("text"));
    plot.texts().change(TextBox::Legend, [](emfRichTextBox& box) { box.setSelStart(2); });
    doubleClick(legendCentre());
    view.setFocus();
    EXPECT_EQ(plot.Legend().SelStart(), 2) << "nothing was set";
}

TEST_F(EvmPlotViewTest, selectsABoxByAClickAndMovesItByArrowKeys)
{
    mouse(QEvent::MouseButtonPress, legendCentre());
    mouse(QEvent::MouseButtonRelease, legendCentre());
    const QPoint before = plot.Legend().geometry().topLeft();
    press(Qt::Key_Left);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before + QPoint(-1, 2));
    press(Qt::Key_Up, Qt::ShiftModifier);
    press(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before + QPoint(-11, -8));
    press(Qt::Key_Escape);
    press(Qt::Key_Right);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before + QPoint(-11, -8)) << "no longer selected";
}

TEST_F(EvmPlotViewTest, outlinesTheSelectedBoxOnTheScreenOnly)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("text"));
    const QRect outline = plot.Legend().geometry().adjusted(-3, -2, 2, 1);
    const QRect upperEdge(outline.topLeft(), QSize(outline.width(), 1));
    EXPECT_FALSE(isInked(view.grab().toImage(), upperEdge));
    mouse(QEvent::MouseButtonPress, legendCentre());
    mouse(QEvent::MouseButtonRelease, legendCentre());
    EXPECT_TRUE(isInked(view.grab().toImage(), upperEdge));
    EXPECT_FALSE(isInked(plot.Image(), upperEdge));
}

TEST_F(EvmPlotViewTest, editsTheSelectedBoxByAKey)
{
    mouse(QEvent::MouseButtonPress, legendCentre());
    mouse(QEvent::MouseButtonRelease, legendCentre());
    press(Qt::Key_F2);
    EXPECT_NE(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, editsABoxByOneClickInEditMode)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("text"));
    const QRect outline = plot.Legend().geometry().adjusted(-3, -2, 2, 1);
    const QRect upperEdge(outline.topLeft(), QSize(outline.width(), 1));
    plot.texts().setEditMode(true);
    EXPECT_TRUE(isInked(view.grab().toImage(), upperEdge));
    mouse(QEvent::MouseButtonPress, legendCentre());
    mouse(QEvent::MouseButtonRelease, legendCentre());
    EXPECT_NE(editor(), nullptr);
    press(editor(), Qt::Key_Escape);
    drag(legendCentre(), legendCentre() + QPoint(-100, 50));
    EXPECT_EQ(editor(), nullptr) << "a movement is no click";
    plot.texts().setEditMode(false);
    mouse(QEvent::MouseButtonPress, legendCentre());
    mouse(QEvent::MouseButtonRelease, legendCentre());
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, offersEditAndMoveInTheMenuOfABox)
{
    EXPECT_TRUE(openMenu(legendCentre()));
    EXPECT_TRUE(boxMenu()->isVisible());
    choose("mnuEdit");
    EXPECT_NE(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, leavesTheMenuOfThePlotToItsWindow)
{
    EXPECT_FALSE(openMenu({400, 500}));
    EXPECT_FALSE(boxMenu()->isVisible());
}

TEST_F(EvmPlotViewTest, letsABoxFollowThePointerUntilAClick)
{
    openMenu(legendCentre());
    choose("mnuMove");
    mouse(QEvent::MouseMove, {400, 450}, Qt::NoButton);
    EXPECT_EQ(legendCentre(), QPoint(400, 450));
    mouse(QEvent::MouseButtonPress, {400, 450});
    mouse(QEvent::MouseButtonRelease, {400, 450});
    mouse(QEvent::MouseMove, {100, 100}, Qt::NoButton);
    EXPECT_EQ(legendCentre(), QPoint(400, 450));
}

TEST_F(EvmPlotViewTest, revertsAMovementOnEscape)
{
    const QPoint before = plot.Legend().geometry().topLeft();
    openMenu(legendCentre());
    choose("mnuMove");
    mouse(QEvent::MouseMove, {400, 450}, Qt::NoButton);
    press(Qt::Key_Escape);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before);
    mouse(QEvent::MouseMove, {100, 100}, Qt::NoButton);
    EXPECT_EQ(plot.Legend().geometry().topLeft(), before);
}

TEST_F(EvmPlotViewTest, doesNotOfferToMoveTheHeader)
{
    openMenu(plot.Header().geometry().center());
    EXPECT_FALSE(boxMenu()->findChild<QAction*>(QStringLiteral("mnuMove"))->isEnabled());
}

TEST_F(EvmPlotViewTest, copiesThePictureInEveryFormThatReportProgramsKnow)
{
    view.copyPicture();
    const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
    ASSERT_NE(data, nullptr);
    EXPECT_EQ(data->data(QStringLiteral("image/x-emf")), pictureBytes(plot, PictureFormat::Emf));
    EXPECT_TRUE(data->data(QStringLiteral("image/svg+xml")).contains("<svg"));
    // Twice the resolution of the screen, to be sharp in print.
    EXPECT_EQ(qvariant_cast<QImage>(data->imageData()).size(), QSize(1600, 1200));
}

TEST_F(EvmPlotViewTest, copiesByTheUsualKey)
{
    QGuiApplication::clipboard()->clear();
    ASSERT_EQ(view.actions().size(), 1);
    EXPECT_EQ(view.actions().first()->shortcut(), QKeySequence(QKeySequence::Copy));
    view.actions().first()->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->hasImage());
}

TEST_F(EvmPlotViewTest, reportsAPictureThatCannotBeCopied)
{
    std::vector<ErrorNumber> numbers;
    QObject::connect(&view, &EvmPlotView::failed, &view,
                     [&](const RunTimeError& error) { numbers.push_back(error.number()); });
    plot.properties().setGthicks(0);
    view.copyPicture();
    ASSERT_FALSE(numbers.empty());
    EXPECT_EQ(numbers.front(), ErrorNumber::DivisionByZero);
}

TEST_F(EvmPlotViewTest, leavesWhatIsBeingEditedAloneWhenThePlotIsDrawn)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("typed"));
    pictureBytes(plot, PictureFormat::Emf);
    EXPECT_EQ(plot.Legend().Text(), QString());
    EXPECT_NE(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, putsWhatIsBeingEditedIntoThePlotWhenItIsAskedTo)
{
    doubleClick(legendCentre());
    ASSERT_NE(editor(), nullptr);
    editor()->setPlainText(QStringLiteral("typed"));
    plot.commitEdits();
    EXPECT_EQ(plot.Legend().Text(), QStringLiteral("typed"));
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(EvmPlotViewTest, givesUpWhatIsBeingEditedWhenThePlotGetsOtherContents)
{
    EvmPlot other;
    other.texts().setText(TextBox::Legend, QStringLiteral("other"));
    const PlotRecord record = recordOf(other, {});
    for (const bool isCopied : {true, false}) {
        plot.texts().setText(TextBox::Legend, QStringLiteral("as it was"));
        doubleClick(legendCentre());
        ASSERT_NE(editor(), nullptr);
        editor()->setPlainText(QStringLiteral("typed"));
        if (isCopied)
            plot.Clone(other);
        else
            applyRecord(record, {}, plot);
        EXPECT_EQ(editor(), nullptr);
        view.setFocus();
        plot.commitEdits();
        EXPECT_EQ(plot.Legend().Text(), QStringLiteral("other"));
    }
}

TEST_F(EvmPlotViewTest, letsNoBoxFollowThePointerIntoOtherContents)
{
    openMenu(legendCentre());
    choose("mnuMove");
    plot.Clone(EvmPlot());
    const QRect before = plot.Legend().geometry();
    mouse(QEvent::MouseMove, {400, 450}, Qt::NoButton);
    press(Qt::Key_Left);
    EXPECT_EQ(plot.Legend().geometry(), before);
}

TEST_F(EvmPlotViewTest, picksTheUppermostOfTwoBoxesAtAPosition)
{
    plot.texts().setText(TextBox::Legend, QStringLiteral("legend"));
    plot.texts().move(TextBox::Legend, 15 * 400, 15 * 4); // in the row of the header
    drag(legendCentre(), legendCentre() + QPoint(-50, 200));
    EXPECT_EQ(plot.Legend().geometry().topLeft(), QPoint(350, 204));
}

TEST_F(EvmPlotViewTest, reportsAFailureOnceAndNotAtEveryRepaint)
{
    std::vector<ErrorNumber> numbers;
    QObject::connect(&view, &EvmPlotView::failed, &view,
                     [&numbers](const RunTimeError& error) { numbers.push_back(error.number()); });
    plot.properties().setGthicks(0);
    for (int i = 0; i < 3; ++i) {
        view.grab();
        QApplication::processEvents();
    }
    EXPECT_EQ(numbers, std::vector<ErrorNumber> {ErrorNumber::DivisionByZero});
}

TEST_F(EvmPlotViewTest, describesItselfToAScreenReader)
{
    EVM evolution;
    plot.rows().add(evolution.appendMode());
    plot.SetScale(0, 650, 5, 45, 0, -0.5F);
    EXPECT_EQ(view.accessibleName(), QStringLiteral("V-g-f plot Plot1"));
    EXPECT_EQ(
        view.accessibleDescription(),
        QStringLiteral("1 curves; speed axis V(keas) from 0 to 650, frequency axis f(Hz) from 5 "
                       "to 45, damping axis g from 0 to -0.5"));
    plot.properties().setCaption(QStringLiteral("Clean"));
    plot.properties().setVLabel(QStringLiteral("V (m/s)"));
    EXPECT_EQ(view.accessibleName(), QStringLiteral("V-g-f plot Clean"));
    EXPECT_TRUE(view.accessibleDescription().contains(QStringLiteral("speed axis V (m/s) from")));
    plot.SetScale(0, 1000000, 5, 45, 0, -0.5F);
    EXPECT_TRUE(view.accessibleDescription().contains(QStringLiteral("from 0 to 1000000, ")));
}

TEST_F(EvmPlotViewTest, describesTitlesThatLookLikePlaceholders)
{
    plot.properties().setCaption(QStringLiteral("%2 and %1"));
    plot.properties().setVLabel(QStringLiteral("%4 V"));
    plot.properties().setFLabel(QStringLiteral("%1%"));
    plot.properties().setGLabel(QStringLiteral("g %3"));
    plot.SetScale(0, 650, 5, 45, 0, -0.5F);
    EXPECT_EQ(view.accessibleName(), QStringLiteral("V-g-f plot %2 and %1"));
    EXPECT_EQ(view.accessibleDescription(),
              QStringLiteral("0 curves; speed axis %4 V from 0 to 650, frequency axis %1% from 5 "
                             "to 45, damping axis g %3 from 0 to -0.5"));
}

TEST_F(EvmPlotViewTest, isAGraphicToAScreenReader)
{
    QAccessibleInterface* const heard = QAccessible::queryAccessibleInterface(&view);
    ASSERT_NE(heard, nullptr);
    EXPECT_EQ(heard->role(), QAccessible::Graphic);
    EXPECT_EQ(heard->text(QAccessible::Name), QStringLiteral("V-g-f plot Plot1"));
    EXPECT_EQ(heard->text(QAccessible::Description), view.accessibleDescription());
    QWidget other;
    EXPECT_NE(QAccessible::queryAccessibleInterface(&other)->role(), QAccessible::Graphic);
}

TEST_F(EvmPlotViewTest, reportsCommandsThatBegin)
{
    int begun = 0;
    QObject::connect(&view, &EvmPlotView::commandBegun, &view, [&begun] { ++begun; });
    view.copyPicture();
    EXPECT_EQ(begun, 1);
    drag(legendCentre(), legendCentre() + QPoint(50, 0));
    EXPECT_EQ(begun, 2) << "once, however far a box is dragged";
    press(Qt::Key_Left);
    EXPECT_EQ(begun, 3);
    press(Qt::Key_F2);
    EXPECT_EQ(begun, 4);
}
