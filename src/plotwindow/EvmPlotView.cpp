// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/EvmPlotView.h"

#include "base/numbers/Numbers.h"
#include "plot/RichTextLayout.h"
#include "plotwindow/AccessiblePlot.h"
#include "plotwindow/AxisEditor.h"
#include "plotwindow/PlotHint.h"
#include "plotwindow/RichTextEditor.h"
#include "surface/TextMetrics.h"
#include "vgfplot/PictureWriter.h"
#include "vgfplot/PlotFit.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QTextEdit>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

constexpr QSize leastEditorSize(420, 130);
const QColor promptColor(118, 118, 118); ///< the lightest grey that is readable on white
const QColor bandColor(0, 90, 200);
const QColor bandFill(0, 90, 200, 32);

} // namespace

EvmPlotView::EvmPlotView(EvmPlot& plot, QWidget* parent)
    : QWidget(parent), m_plot(plot), m_mover(plot), m_gesture(plot), m_curves(plot),
      m_boxMenu(new QMenu(this)), m_edit(m_boxMenu->addAction(tr("&Edit"))),
      m_move(m_boxMenu->addAction(tr("&Move")))
{
    setObjectName(QStringLiteral("evpVgf"));
    setAttribute(Qt::WA_OpaquePaintEvent); // avoids flicker: every pixel is painted
    setMinimumSize(240, 180);
    setFocusPolicy(Qt::StrongFocus);
    makeActions();
    makePlotsAccessible();
    connect(this, &EvmPlotView::cursorMoved, this, [this] { reportFocus(*this); });
    connect(&m_plot, &EvmPlot::changed, this, qOverload<>(&QWidget::update));
    connect(&m_plot, &EvmPlot::changed, this, &EvmPlotView::updateDescription);
    connect(&m_plot, &EvmPlot::editsWanted, this, [this] {
        m_gesture.cancel();
        finishEditing(true);
    });
    connect(&m_plot, &EvmPlot::contentsReplaced, this, &EvmPlotView::letGo);
    updateDescription();
}

EvmPlotView::~EvmPlotView() = default;

void EvmPlotView::makeActions()
{
    m_boxMenu->setObjectName(QStringLiteral("mnuErtb"));
    m_edit->setObjectName(QStringLiteral("mnuEdit"));
    m_move->setObjectName(QStringLiteral("mnuMove"));
    connect(m_edit, &QAction::triggered, this, [this] { startEditing(*m_mover.selected()); });
    connect(m_move, &QAction::triggered, this, [this] {
        m_mover.follow();
        followMovement();
    });
    auto* const copy = new QAction(tr("&Copy picture"), this);
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, &EvmPlotView::copyPicture);
    addAction(copy);
}

QSize EvmPlotView::sizeHint() const
{
    return {960, 720};
}

bool EvmPlotView::event(QEvent* event)
{
    if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show)
        fitPlot();
    return QWidget::event(event);
}

void EvmPlotView::resizeEvent(QResizeEvent* /*event*/)
{
    fitPlot();
    fitEditor();
}

void EvmPlotView::fitPlot()
{
    m_plot.resize(size(), devicePixelRatioF());
}

void EvmPlotView::paintEvent(QPaintEvent* event)
{
    std::optional<RunTimeError> failure;
    try {
        m_plot.Image();
    } catch (const RunTimeError& error) {
        failure = error;
    }
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.drawImage(0, 0, m_plot.Image());
    m_curves.paint(painter);
    if (m_highlight)
        paintHighlight(*m_highlight, m_plot, painter);
    paintSigns(m_signs, m_plot, painter);
    paintPrompts(painter);
    painter.setFont(font());
    paintHint(m_hint, m_plot, painter);
    paintSelection(painter);
    paintBand(painter);
    painter.end();
    if (failure) // the report opens a window, which must wait until painting is over
        QMetaObject::invokeMethod(
            this, [this, error = *failure] { Q_EMIT failed(error); }, Qt::QueuedConnection);
}

void EvmPlotView::setHighlight(const std::optional<PlotHighlight>& highlight)
{
    m_highlight = highlight;
    update();
}

void EvmPlotView::selectCurves(const std::vector<RowId>& rows)
{
    m_curves.select(rows);
    update();
}

void EvmPlotView::selectCurveAt(QPoint position, bool adds)
{
    m_curves.selectAt(position, adds);
    update();
    Q_EMIT curvesSelected(m_curves.rows());
}

void EvmPlotView::setSigns(PlotSigns signs)
{
    m_signs = std::move(signs);
    update();
}

void EvmPlotView::setHint(const QString& text)
{
    m_hint = text;
    updateDescription();
    update();
}

void EvmPlotView::paintPrompts(QPainter& painter) const
{
    painter.setPen(promptColor);
    for (const TextBox which : allTextBoxes) {
        const emfRichTextBox& box = m_plot.parts().box(which);
        if (!box.isEmpty() || m_editedBox == which)
            continue;
        painter.setFont(screenFont(fontOf(box.content().last)));
        painter.drawText(box.geometry(), Qt::AlignLeft | Qt::AlignTop, box.prompt());
    }
}

/// Outlines the box that the arrow keys move, in edit mode all boxes; on the screen only.
void EvmPlotView::paintSelection(QPainter& painter) const
{
    painter.setPen(QPen(Qt::gray, 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    for (const TextBox box : allTextBoxes) {
        if (m_editor == nullptr && (m_plot.texts().EditMode() || m_mover.selected() == box))
            painter.drawRect(m_plot.parts().box(box).geometry().adjusted(-3, -2, 2, 1));
    }
}

void EvmPlotView::paintBand(QPainter& painter) const
{
    const QRect band = m_gesture.band();
    if (band.isNull())
        return;
    painter.fillRect(band, bandFill);
    painter.setPen(bandColor);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(band.adjusted(0, 0, -1, -1));
}

void EvmPlotView::mousePressEvent(QMouseEvent* event)
{
    finishEditing(true);
    const auto sign = signAt(m_signs, m_plot, event->pos());
    if (sign && event->button() == Qt::LeftButton && !m_mover.boxAt(event->pos())) {
        Q_EMIT signClicked(*sign);
        return;
    }
    if (event->button() == Qt::LeftButton)
        m_mover.press(event->pos());
    if (!m_mover.selected() || (event->button() != Qt::LeftButton && !m_mover.isMoving()))
        m_gesture.press(event->pos(), event->button());
    followMovement();
}

void EvmPlotView::mouseMoveEvent(QMouseEvent* event)
{
    const bool wasMoving = isMoving();
    m_mover.pointTo(event->pos(), event->buttons() & Qt::LeftButton);
    m_gesture.pointTo(event->pos(), event->modifiers());
    if (isMoving() && !wasMoving)
        Q_EMIT commandBegun();
    followMovement();
}

void EvmPlotView::mouseReleaseEvent(QMouseEvent* event)
{
    const bool wasMoved = m_mover.isMoving();
    if (event->button() == Qt::LeftButton)
        m_mover.release();
    const ZoomGesture::Result result = m_gesture.release(event->button());
    followMovement();
    if (result == ZoomGesture::Result::Zoomed)
        Q_EMIT edited(tr("Zoom"), UndoHistory::Joining::No);
    if (result == ZoomGesture::Result::Panned)
        Q_EMIT edited(tr("Pan"), UndoHistory::Joining::No);
    if (result == ZoomGesture::Result::Click)
        selectCurveAt(event->pos(), event->modifiers() & Qt::ControlModifier);
    const std::optional<TextBox> box = m_mover.boxAt(event->pos());
    if (m_plot.texts().EditMode() && !wasMoved && box && box == m_mover.selected()
        && event->button() == Qt::LeftButton)
        startEditing(*box);
}

void EvmPlotView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (const std::optional<TextBox> box = m_mover.boxAt(event->pos())) {
        startEditing(*box);
        return;
    }
    const PlotZone zone = zoneAt(m_plot, event->pos());
    const bool isInCanvas = zone == PlotZone::Frequency || zone == PlotZone::Damping;
    if (!isInCanvas && zone != PlotZone::Outside)
        editAxis(zone, event->pos());
    if (isInCanvas && !m_curves.rowAt(event->pos()))
        fitAll();
}

void EvmPlotView::wheelEvent(QWheelEvent* event)
{
    const auto joining = m_editor == nullptr ? m_gesture.turn(*event) : std::nullopt;
    event->setAccepted(joining.has_value());
    if (!joining)
        return;
    if (joining == UndoHistory::Joining::Begins)
        Q_EMIT commandBegun();
    Q_EMIT edited(tr("Zoom"), *joining);
}

/// Fits all axes to the curves, as for new plots.
void EvmPlotView::fitAll()
{
    finishEditing(true);
    m_gesture.cancel();
    Q_EMIT commandBegun();
    fitToCurves(m_plot);
    Q_EMIT edited(tr("Fit Axes"), UndoHistory::Joining::No);
}

void EvmPlotView::keyPressEvent(QKeyEvent* event)
{
    if (!handleKey(*event))
        QWidget::keyPressEvent(event);
}

/// Handles the keys of the plot. False for other keys.
bool EvmPlotView::handleKey(const QKeyEvent& key)
{
    if (key.key() == Qt::Key_Escape && m_gesture.cancel())
        followMovement();
    else if (key.key() == Qt::Key_Home)
        fitAll();
    else
        return m_mover.selected() ? handleBoxKey(key) : handleCurveKey(key);
    return true;
}

/// Handles the keys of the selected text box.
bool EvmPlotView::handleBoxKey(const QKeyEvent& key)
{
    const bool edits =
        key.key() == Qt::Key_F2 || key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (m_mover.press(key)) {
        Q_EMIT commandBegun();
        followMovement();
        Q_EMIT edited(tr("Move Text"), UndoHistory::Joining::Yes);
    } else if (edits) {
        startEditing(*m_mover.selected());
    } else {
        return false;
    }
    return true;
}

/// Handles the keys of the curves.
bool EvmPlotView::handleCurveKey(const QKeyEvent& key)
{
    if (key.matches(QKeySequence::Delete) && hasSelectedCurve()) {
        Q_EMIT removeWanted();
        return true;
    }
    const bool clears = key.key() == Qt::Key_Escape && hasSelectedCurve();
    if (clears)
        m_curves.select({});
    else if (!moveCursor(key))
        return false;
    update();
    Q_EMIT curvesSelected(m_curves.rows());
    Q_EMIT cursorMoved();
    return true;
}

/// Moves the cursor by an arrow key: left and right by a point, with Ctrl by ten; up and down to
/// the neighbouring curve. False for other keys and without curves.
bool EvmPlotView::moveCursor(const QKeyEvent& key)
{
    const int points = key.modifiers() & Qt::ControlModifier ? 10 : 1;
    switch (key.key()) {
    case Qt::Key_Left:
        return m_curves.moveAlong(-points);
    case Qt::Key_Right:
        return m_curves.moveAlong(points);
    case Qt::Key_Up:
        return m_curves.moveToCurve(-1);
    case Qt::Key_Down:
        return m_curves.moveToCurve(1);
    default:
        return false;
    }
}

void EvmPlotView::selectBox(std::optional<TextBox> box)
{
    m_mover.select(box);
    followMovement();
    reportFocus(*this);
}

/// Tab visits the text boxes before it leaves the plot. Editors in the plot have their own order.
bool EvmPlotView::focusNextPrevChild(bool next)
{
    if (!hasFocus())
        return QWidget::focusNextPrevChild(next);
    const auto count = static_cast<int>(allTextBoxes.size());
    const std::optional<TextBox> box = m_mover.selected();
    const int index = (box ? static_cast<int>(*box) : -1) + (next ? 1 : -1);
    const bool leaves = index == count || index == -2;
    selectBox(leaves || index == -1
                  ? std::nullopt
                  : std::optional(allTextBoxes.at(static_cast<std::size_t>(index))));
    return !leaves || QWidget::focusNextPrevChild(next);
}

void EvmPlotView::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    if (event->reason() == Qt::BacktabFocusReason)
        selectBox(allTextBoxes.back());
}

void EvmPlotView::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        m_mover.select(std::nullopt);
    followMovement();
    QWidget::focusOutEvent(event);
}

void EvmPlotView::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isByKey = event->reason() == QContextMenuEvent::Keyboard;
    const std::optional<TextBox> box = isByKey ? m_mover.selected() : m_mover.boxAt(event->pos());
    if (!box) {
        if (!isByKey && m_curves.rowAt(event->pos()) && !m_curves.isSelectedAt(event->pos()))
            selectCurveAt(event->pos(), false);
        event->ignore(); // the owner of the view shows the menu of the plot
        return;
    }
    const QPoint corner = isByKey ? m_plot.parts().box(*box).geometry().bottomLeft() : event->pos();
    showBoxMenu(*box, corner);
}

void EvmPlotView::showBoxMenu(TextBox box, QPoint position)
{
    finishEditing(true);
    m_mover.select(box);
    m_move->setEnabled(TextBoxMover::isMovable(box));
    update();
    m_boxMenu->popup(mapToGlobal(position));
}

/// Shows pointer and outlines for the current state of the movements.
void EvmPlotView::followMovement()
{
    const bool wasMoving = std::exchange(m_isMoving, m_mover.isMoving());
    setMouseTracking(m_isMoving);
    updatePointer();
    update();
    if (wasMoving && !m_isMoving)
        Q_EMIT edited(tr("Move Text"), UndoHistory::Joining::No);
}

void EvmPlotView::updatePointer()
{
    if (m_isMoving)
        setCursor(Qt::SizeAllCursor);
    else if (m_gesture.isPanning())
        setCursor(Qt::ClosedHandCursor);
    else if (m_gesture.isActive())
        setCursor(Qt::CrossCursor);
    else
        unsetCursor();
}

void EvmPlotView::copyPicture()
{
    Q_EMIT commandBegun();
    m_plot.commitEdits();
    try {
        QGuiApplication::clipboard()->setMimeData(pictureMimeData(m_plot).release());
    } catch (const RunTimeError& error) {
        Q_EMIT failed(error);
    }
}

void EvmPlotView::startEditing(TextBox which)
{
    finishEditing(true);
    Q_EMIT commandBegun();
    m_mover.select(which);
    followMovement();
    const emfRichTextBox& box = m_plot.parts().box(which);
    auto* const editor = new RichTextEditor(box.content(), box.ForeColor(), this);
    editor->edit()->setAccessibleName(box.prompt());
    m_editedBox = which;
    const QSize size = (box.geometry().size() + QSize(20, 60)).expandedTo(leastEditorSize);
    openEditor(*editor, {box.geometry().topLeft(), size}, [this, editor, which] {
        RichText text = editor->text();
        if (text == m_plot.parts().box(which).content())
            return QString();
        m_plot.texts().setContent(which, std::move(text));
        return tr("Edit Text");
    });
}

void EvmPlotView::editAxis(PlotZone axis, QPoint position)
{
    finishEditing(true);
    Q_EMIT commandBegun();
    auto* const editor = new AxisEditor(axis, m_plot.axes(), this);
    openEditor(*editor, {position, editor->sizeHint()}, [this, editor] {
        m_plot.setAxes(editor->axes());
        return tr("Set Scale");
    });
}

/// Opens an editor within the view. `apply` applies its contents to the plot and returns the name
/// of the undo step, or an empty text when nothing has changed; it may raise errors.
void EvmPlotView::openEditor(InPlaceEditor& editor, QRect area, std::function<QString()> apply)
{
    m_editor = &editor;
    m_applyEditor = std::move(apply);
    m_editorArea = area;
    fitEditor();
    connect(&editor, &InPlaceEditor::left, this, [this] { finishEditing(true); });
    connect(&editor, &InPlaceEditor::committed, this, &EvmPlotView::commitEditor);
    connect(&editor, &InPlaceEditor::cancelled, this, [this] { finishByKey(); });
    editor.show();
    editor.setFocus();
}

/// Shows the editor where it was opened, or at the nearest position within the view.
void EvmPlotView::fitEditor()
{
    if (m_editor == nullptr)
        return;
    QRect area = m_editorArea;
    area.setSize(area.size().boundedTo(size()));
    area.moveRight(std::min(area.right(), width() - 1));
    area.moveBottom(std::min(area.bottom(), height() - 1));
    m_editor->setGeometry(area);
}

/// Applies the contents of the editor and closes it. It stays open, with a sign at the field, when
/// they are not accepted.
void EvmPlotView::commitEditor()
{
    try {
        const QString what = m_applyEditor();
        finishByKey();
        if (!what.isEmpty())
            Q_EMIT edited(what, UndoHistory::Joining::No);
    } catch (const RunTimeError&) {
        QApplication::beep();
    }
}

/// Closes the editor without applying its contents. The view gets the focus, with the same box.
void EvmPlotView::finishByKey()
{
    const std::optional<TextBox> box = m_editedBox;
    finishEditing(false);
    setFocus();
    m_mover.select(box);
    followMovement();
}

/// Closes the editor; `keep` applies its contents if they are accepted.
void EvmPlotView::finishEditing(bool keep)
{
    if (m_editor == nullptr)
        return;
    InPlaceEditor* const editor = std::exchange(m_editor, nullptr);
    const std::function<QString()> apply = std::exchange(m_applyEditor, {});
    m_editedBox.reset();
    editor->hide();
    editor->deleteLater();
    update();
    if (!keep)
        return;
    try {
        const QString what = apply();
        if (!what.isEmpty())
            Q_EMIT edited(what, UndoHistory::Joining::No);
    } catch (const RunTimeError&) {
        QApplication::beep(); // the sign at the field has shown the error
    }
}

/// Drops edits and movements, which must not reach the new contents.
void EvmPlotView::letGo()
{
    m_gesture.cancel();
    finishEditing(false);
    m_mover.select(std::nullopt);
    followMovement();
}

/// Fills in title and numbers in one call of `arg`, because a title may contain "%1".
void EvmPlotView::updateDescription()
{
    const PlotAxes axes = m_plot.axes();
    const auto description = [](const QString& text, const AxisValues& axis) {
        return text.arg(QString::fromStdString(axis.title),
                        QString::fromStdString(shortestText(axis.min)),
                        QString::fromStdString(shortestText(axis.max)));
    };
    setAccessibleName(tr("V-g-f plot %1").arg(m_plot.properties().Caption()));
    const bool isAdvising = m_plot.rows().isEmpty() && !m_hint.isEmpty();
    const QString hint = isAdvising ? m_hint + u' ' : QString();
    setAccessibleDescription(hint + tr("%1 curves; ").arg(m_plot.rows().curveCount())
                             + description(tr("speed axis %1 from %2 to %3, "), axes.speed)
                             + description(tr("frequency axis %1 from %2 to %3, "), axes.frequency)
                             + description(tr("damping axis %1 from %2 to %3"), axes.damping));
}

} // namespace tarsil
