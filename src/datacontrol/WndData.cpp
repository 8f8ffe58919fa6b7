// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/WndData.h"

#include "datacontrol/CurveMenu.h"
#include "datacontrol/LegendPanel.h"
#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/SeriesPanel.h"
#include "datacontrol/TitlePanel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace tarsil {

wndData::wndData(Document& document, UserInterface& user, QWidget* parent)
    : QWidget(parent), m_commands(document, user, [this] { commitEdits(); }),
      m_markers(new MarkerPanel(m_commands)), m_series(new SeriesPanel(m_commands, *m_markers)),
      m_curveMenu(new CurveMenu(m_commands, *m_series, this))
{
    setObjectName(QStringLiteral("wndData"));
    setWindowTitle(tr("Data Control"));
    setAccessibleName(windowTitle());
    layOut();
    setFocusProxy(&m_series->grid());
    connect(m_series, &SeriesPanel::rowsSelected, this, &wndData::rowsSelected);
}

wndData::~wndData() = default;

/// Tab visits the panels in the order in which they are added.
void wndData::layOut()
{
    constexpr int gap = 6;
    auto* const panels = new QVBoxLayout(this);
    panels->setSpacing(gap);
    panels->setContentsMargins(gap, gap, gap, gap);
    panels->addWidget(m_series, 1);
    auto* const groups = new QHBoxLayout;
    groups->setSpacing(gap);
    panels->addLayout(groups);
    groups->addWidget(new TitlePanel(m_commands), 1);
    groups->addWidget(m_markers);
    groups->addWidget(new LegendPanel(m_commands, *m_markers, m_series->grid()), 1);
}

QSize wndData::sizeHint() const
{
    return {620, 480};
}

const QList<QAction*>& wndData::hideActions() const
{
    return m_series->hideActions();
}

QString wndData::columnWidths() const
{
    return m_series->grid().columnWidths();
}

void wndData::setColumnWidths(const QString& widths)
{
    m_series->grid().setColumnWidths(widths);
}

void wndData::commitEdits()
{
    m_series->commitEdits();
}

void wndData::selectRows(const std::vector<RowId>& rows)
{
    m_series->selectRows(rows);
}

void wndData::removeRows()
{
    m_commands.command([this] { m_series->removeRows(); })();
}

void wndData::selectCurve(const EVM& evolution, std::int16_t mode)
{
    m_series->selectCurve(evolution, mode);
}

} // namespace tarsil
