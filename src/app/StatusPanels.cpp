// SPDX-License-Identifier: Apache-2.0
#include "app/StatusPanels.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QToolButton>

namespace tarsil {

namespace {

/// A label that never needs more than the available width; a path keeps its beginning and end.
class ShortenedLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override { return {0, QLabel::minimumSizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QRect room = contentsRect();
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width()));
    }
};

QToolButton* togglePanel(const QString& caption, const QString& name, QWidget* parent)
{
    auto* const panel = new QToolButton(parent);
    panel->setObjectName(name);
    panel->setText(caption);
    panel->setAccessibleName(caption);
    panel->setAutoRaise(true);
    panel->setCheckable(true);
    panel->setFocusPolicy(Qt::TabFocus);
    return panel;
}

QToolButton* makeStop(QWidget* parent)
{
    auto* const stop = new QToolButton(parent);
    stop->setObjectName(QStringLiteral("stBar_Stop"));
    stop->setText(StatusPanels::tr("Stop"));
    stop->setAccessibleName(stop->text());
    stop->setToolTip(StatusPanels::tr("Stops the operation (Esc)"));
    stop->setFocusPolicy(Qt::NoFocus); // the focus stays where it was
    stop->hide();
    return stop;
}

QLabel* makeNote(const QString& name, const QString& description, QWidget* parent)
{
    auto* const note = new ShortenedLabel(parent);
    note->setObjectName(name);
    note->setAccessibleDescription(description);
    note->setTextFormat(Qt::PlainText);
    note->hide();
    return note;
}

void showNote(QLabel* note, const QString& text)
{
    note->setText(text);
    note->setToolTip(text.toHtmlEscaped()); // as plain text
    note->setVisible(!text.isEmpty()); // screen readers skip a hidden one
}

/// Shows whether a panel is on: black or grey for the eye, checked or not for screen readers.
void showState(QToolButton* panel, bool on)
{
    panel->setChecked(on);
    QPalette palette;
    if (!on)
        palette.setColor(QPalette::ButtonText,
                         palette.color(QPalette::Disabled, QPalette::ButtonText));
    panel->setPalette(palette);
}

} // namespace

StatusPanels::StatusPanels(QWidget* parent)
    : QStatusBar(parent), m_text(new QLabel(QStringLiteral("Ready"), this)),
      m_note(makeNote(QStringLiteral("stBar_Note"), tr("Note"), this)),
      m_plotNote(makeNote(QStringLiteral("stBar_PlotNote"), tr("Note on the plot"), this)),
      m_progress(new QProgressBar(this)), m_stop(makeStop(this)),
      m_autoPlot(togglePanel(QStringLiteral("AutoPlot"), QStringLiteral("stBar_AutoPlot"), this)),
      m_editMode(togglePanel(QStringLiteral("Edit Mode"), QStringLiteral("stBar_EditMode"), this))
{
    setObjectName(QStringLiteral("stBar"));
    m_text->setObjectName(QStringLiteral("stBar_Status"));
    m_text->setTextFormat(Qt::PlainText); // file names are not mark-up
    m_text->setAccessibleDescription(tr("Status"));
    m_progress->setAccessibleName(tr("Progress"));
    m_progress->setMaximumWidth(200);
    m_progress->hide();
    addWidget(m_text);
    addWidget(m_plotNote, 1);
    addWidget(m_note, 1);
    addWidget(m_progress);
    addWidget(m_stop);
    addPermanentWidget(m_autoPlot);
    addPermanentWidget(m_editMode);
    m_text->installEventFilter(this);
    // A click must not toggle a panel by itself; the receiver of the signal decides.
    connect(m_autoPlot, &QToolButton::clicked, this, [this](bool on) {
        m_autoPlot->setChecked(!on);
        Q_EMIT panelClicked(2);
    });
    connect(m_editMode, &QToolButton::clicked, this, [this](bool on) {
        m_editMode->setChecked(!on);
        Q_EMIT panelClicked(3);
    });
    setAutoPlot(true);
    setEditMode(false);
}

void StatusPanels::setText(const QString& text)
{
    m_text->setText(text);
}

QString StatusPanels::text() const
{
    return m_text->text();
}

void StatusPanels::setNote(const QString& text)
{
    showNote(m_note, text);
}

void StatusPanels::setPlotNote(const QString& text)
{
    showNote(m_plotNote, text);
}

void StatusPanels::setAutoPlot(bool on)
{
    showState(m_autoPlot, on);
}

void StatusPanels::setEditMode(bool on)
{
    showState(m_editMode, on);
}

void StatusPanels::setProgress(std::size_t done, std::size_t total)
{
    m_progress->setMaximum(static_cast<int>(total));
    m_progress->setValue(static_cast<int>(done));
    m_progress->setVisible(done < total);
    m_stop->setVisible(done < total);
}

bool StatusPanels::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_text && event->type() == QEvent::MouseButtonRelease)
        Q_EMIT panelClicked(1);
    return QStatusBar::eventFilter(watched, event);
}

} // namespace tarsil
