#include "plotwindow/PlotReadout.h"

#include "vgfplot/PlotReading.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>

namespace tarsil {

namespace {

// Pixels from the pointer's tip to the box.
constexpr int gapBeside = 14;
constexpr int gapBelow = 16; ///< the pointer's picture hangs down from its tip
constexpr int gapAbove = 6;
constexpr int margin = 3;

/// Where a box of this length begins: behind the pointer, or before it when there is no room, but
/// always within 0 and `room` as far as it fits.
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
    m_box->setTextFormat(Qt::PlainText); // file names are no mark-up
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
    case QEvent::MouseTrackingChange: // the view ends its own use of it
        if (!m_view.hasMouseTracking())
            m_view.setMouseTracking(true);
        break;
    case QEvent::Leave:
    case QEvent::Hide:
    case QEvent::WindowDeactivate: // a dialog may open over it
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::ShortcutOverride: // a key that a menu takes comes as this only
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
    m_box->setText(readingText(*reading));
    m_box->adjustSize();
    m_box->move(placeBeside(pointer));
    m_box->raise();
    m_box->show();
}

void PlotReadout::hide()
{
    m_box->hide();
}

/// Whether something lies over the plot at the pointer, or has the keyboard: a text box's editor.
bool PlotReadout::isCovered(QPoint pointer) const
{
    const QWidget* const focus = QApplication::focusWidget();
    // An editor that was closed is hidden, but can have the keyboard for a little longer.
    const bool isEdited =
        focus != nullptr && focus != &m_view && focus->isVisible() && m_view.isAncestorOf(focus);
    // The box itself lets the mouse through, so it is not found here.
    return isEdited || m_view.childAt(pointer) != nullptr;
}

QPoint PlotReadout::placeBeside(QPoint pointer) const
{
    return {beginBeside(pointer.x(), gapBeside, gapBeside, m_box->width(), m_view.width()),
            beginBeside(pointer.y(), gapBelow, gapAbove, m_box->height(), m_view.height())};
}

} // namespace tarsil
