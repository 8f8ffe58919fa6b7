#include "vgf/EvmPlotView.h"

#include "plot/PainterContext.h"
#include "plot/PixelMath.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>

#include <algorithm>

namespace tarsil {

namespace {

constexpr QSize leastEditorSize(260, 70);

} // namespace

EvmPlotView::EvmPlotView(EvmPlot& plot, QWidget* parent) : QWidget(parent), m_plot(plot)
{
    setObjectName(QStringLiteral("evpVgf"));
    setAccessibleName(tr("V-g-f plot"));
    setAttribute(Qt::WA_OpaquePaintEvent); // every pixel is painted, so nothing flickers
    setMinimumSize(240, 180);
    setFocusPolicy(Qt::StrongFocus);
    connect(&m_plot, &EvmPlot::changed, this, qOverload<>(&QWidget::update));
    connect(&m_plot, &EvmPlot::changed, this, &EvmPlotView::updateDescription);
    updateDescription();
}

EvmPlotView::~EvmPlotView() = default;

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
    paintPrompts(painter);
    painter.end();
    if (failure) // the report is a window of its own, so it waits until painting is over
        QMetaObject::invokeMethod(
            this, [this, error = *failure] { Q_EMIT failed(error); }, Qt::QueuedConnection);
}

void EvmPlotView::paintPrompts(QPainter& painter) const
{
    painter.setPen(Qt::gray);
    for (std::size_t i = 0; i < m_plot.boxCount(); ++i) {
        const emfRichTextBox& box = m_plot.box(i);
        if (!box.Text().isEmpty() || (m_editor != nullptr && m_editedBox == i))
            continue;
        painter.setFont(screenFont(box.Font()));
        painter.drawText(box.geometry(), Qt::AlignLeft | Qt::AlignTop, box.prompt());
    }
}

std::optional<std::size_t> EvmPlotView::boxAt(QPoint position) const
{
    for (std::size_t i = 0; i < m_plot.boxCount(); ++i) {
        if (m_plot.box(i).geometry().contains(position))
            return i;
    }
    return std::nullopt;
}

void EvmPlotView::mousePressEvent(QMouseEvent* event)
{
    finishEditing(true);
    if (event->button() != Qt::LeftButton)
        return;
    m_draggedBox = boxAt(event->pos());
    if (m_draggedBox)
        m_grip = event->pos() - m_plot.box(*m_draggedBox).geometry().topLeft();
}

void EvmPlotView::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_draggedBox || !(event->buttons() & Qt::LeftButton))
        return;
    const QPoint start = m_plot.box(*m_draggedBox).geometry().topLeft() + m_grip;
    if (!m_isDragging
        && (event->pos() - start).manhattanLength() < QApplication::startDragDistance())
        return;
    m_isDragging = true;
    setCursor(Qt::SizeAllCursor);
    // The pointer stays in the plot, so the box stays within reach.
    const QPoint pointer(std::clamp(event->pos().x(), 0, width() - 1),
                         std::clamp(event->pos().y(), 0, height() - 1));
    const QPoint place = pointer - m_grip;
    m_plot.moveBox(*m_draggedBox, place.x() * unitsPerPixel, place.y() * unitsPerPixel);
}

void EvmPlotView::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    m_draggedBox.reset();
    m_isDragging = false;
    unsetCursor();
}

void EvmPlotView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const std::optional<std::size_t> box = boxAt(event->pos());
    if (box && event->button() == Qt::LeftButton)
        startEditing(*box);
}

void EvmPlotView::startEditing(std::size_t index)
{
    finishEditing(true);
    const emfRichTextBox& box = m_plot.box(index);
    m_editedBox = index;
    m_editor = new QPlainTextEdit(QString(box.Text()).remove(u'\r'), this);
    m_editor->setAccessibleName(box.prompt());
    m_editor->setFont(screenFont(box.Font()));
    QRect place(box.geometry().topLeft(), box.geometry().size().expandedTo(leastEditorSize));
    place.moveRight(std::min(place.right(), width() - 1));
    place.moveBottom(std::min(place.bottom(), height() - 1));
    m_editor->setGeometry(place);
    m_editor->installEventFilter(this);
    m_editor->selectAll();
    m_editor->show();
    m_editor->setFocus();
}

/// The editor's text becomes the box's when the focus goes elsewhere; Escape leaves the box as it
/// was.
bool EvmPlotView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_editor && event->type() == QEvent::FocusOut) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
            finishEditing(true);
    } else if (watched == m_editor && event->type() == QEvent::KeyPress
               && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        finishEditing(false);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void EvmPlotView::finishEditing(bool keep)
{
    if (m_editor == nullptr)
        return;
    QPlainTextEdit* const editor = m_editor;
    m_editor = nullptr;
    if (keep)
        m_plot.setBoxText(m_editedBox, editor->toPlainText());
    editor->removeEventFilter(this);
    editor->hide();
    editor->deleteLater();
    update();
}

void EvmPlotView::updateDescription()
{
    const EvmPlot::Scale scale = m_plot.GetScale();
    setAccessibleDescription(tr("%1 curves; speed %2 to %3 KEAS, frequency %4 to %5 Hz, "
                                "damping %6 to %7")
                                 .arg(m_plot.SeriesCollection().size())
                                 .arg(scale.vmin)
                                 .arg(scale.vmax)
                                 .arg(scale.fmin)
                                 .arg(scale.fmax)
                                 .arg(scale.gmin)
                                 .arg(scale.gmax));
}

} // namespace tarsil
