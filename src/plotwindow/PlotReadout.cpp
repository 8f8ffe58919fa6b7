// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/PlotReadout.h"

#include "vgfplot/PlotReading.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>

namespace tarsil {

namespace {

// Pixels between the tip of the pointer and the box.
constexpr int gapBeside = 14;
constexpr int gapBelow = 16; ///< the image of the pointer extends below its tip
constexpr int gapAbove = 6;
constexpr int margin = 3;

/// The start of a box of this length: after the pointer, or before it when there is no room. The
/// box stays within 0 and `room` as far as it fits.
int beginBeside(int pointer, int gapAfter, int gapBefore, int length, int room)
{
    const int after = pointer + gapAfter;
    const int begin = after + length <= room ? after : pointer - gapBefore - length;
    return std::max(std::min(begin, room - length), 0);
}

} // namespace

PlotReadout::PlotReadout(EvmPlot& plot, EvmPlotView& view)
    : QObject(&view), m_plot(plot), m_view(view), m_box(new QLabel(&view))
{
    m_box->setObjectName(QStringLiteral("plotReadout"));
    m_box->setAccessibleDescription(tr("Values at the pointer"));
    m_box->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_box->setTextFormat(Qt::PlainText); // file names are not mark-up
    m_box->setFont(QToolTip::font());
    m_box->setPalette(QToolTip::palette());
    m_box->setBackgroundRole(QPalette::ToolTipBase);
    m_box->setForegroundRole(QPalette::ToolTipText);
    m_box->setAutoFillBackground(true);
    m_box->setFrameStyle(QFrame::Box | QFrame::Plain);
    m_box->setMargin(margin);
    m_box->hide();
    m_view.setMouseTracking(true);
    m_view.installEventFilter(this);
    connect(&m_plot, &EvmPlot::changed, this, &PlotReadout::hide);
    connect(&m_view, &EvmPlotView::cursorMoved, this, &PlotReadout::showCursor);
}

PlotReadout::~PlotReadout() = default;

bool PlotReadout::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        follow(*static_cast<QSinglePointEvent*>(event));
        break;
    case QEvent::MouseTrackingChange: // the view turns it off after moving a box
        if (!m_view.hasMouseTracking())
            m_view.setMouseTracking(true);
        break;
    case QEvent::Leave:
    case QEvent::Hide:
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate: // a dialog may open over the view
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::ShortcutOverride: // the only event for a key that is a menu shortcut
    case QEvent::KeyPress:
        hide();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void PlotReadout::follow(const QSinglePointEvent& event)
{
    if (event.buttons() == Qt::NoButton)
        showAt(event.position().toPoint());
    else
        hide();
}

void PlotReadout::showAt(QPoint pointer)
{
    const std::optional<PlotReading> reading =
        isCovered(pointer) ? std::nullopt : readAt(m_plot, pointer);
    if (!reading) {
        hide();
        return;
    }
    show(readingText(*reading), pointer);
}

void PlotReadout::showCursor()
{
    if (const std::optional<CurveReading> reading = m_view.curves().cursor())
        show(readingText(*reading), m_view.curves().cursorPixel());
    else
        hide();
}

void PlotReadout::show(const QString& text, QPoint position)
{
    m_box->setText(text);
    m_box->adjustSize();
    m_box->move(positionBeside(position));
    m_box->raise();
    m_box->show();
}

void PlotReadout::hide()
{
    m_box->hide();
}

/// Whether a widget covers the plot at the pointer, or an editor of a text box has the focus.
bool PlotReadout::isCovered(QPoint pointer) const
{
    const QWidget* const focus = QApplication::focusWidget();
    // A closed editor is hidden but may still have the focus.
    const bool isEdited =
        focus != nullptr && focus != &m_view && focus->isVisible() && m_view.isAncestorOf(focus);
    // The readout is transparent for the mouse, so it is not found here.
    return isEdited || m_view.childAt(pointer) != nullptr;
}

QPoint PlotReadout::positionBeside(QPoint pointer) const
{
    return {beginBeside(pointer.x(), gapBeside, gapBeside, m_box->width(), m_view.width()),
            beginBeside(pointer.y(), gapBelow, gapAbove, m_box->height(), m_view.height())};
}

} // namespace tarsil
