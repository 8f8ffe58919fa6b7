// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/CurveMenu.h"

#include "base/user/UserInterface.h"
#include "datacontrol/DataCommands.h"
#include "datacontrol/SeriesGridView.h"
#include "datacontrol/SeriesPanel.h"
#include "document/Document.h"
#include "document/MdlData.h"
#include "vgfplot/EvmPlot.h"

namespace tarsil {

CurveMenu::CurveMenu(const DataCommands& commands, SeriesPanel& series, QWidget* parent)
    : QMenu(parent), m_commands(commands), m_series(series)
{
    add(tr("&Colour, Style, Width ..."), "curveLine", [this] { m_series.chooseLine(); });
    add(tr("&Tag ..."), "curveTag", [this] { askTag(); });
    add(tr("Mode &Up"), "curveModeUp", [this] { m_series.raiseModes(); });
    add(tr("Mode &Down"), "curveModeDown", [this] { m_series.lowerModes(); });
    addActions(m_series.hideActions());
    add(tr("&Legend Text ..."), "curveLegend", [this] { askLegend(); });
    add(tr("&Remove\tDel"), "curveRemove", [this] { m_series.removeRows(); });
}

CurveMenu::~CurveMenu() = default;

void CurveMenu::add(const QString& caption, const char* name, const std::function<void()>& action)
{
    QAction* const entry = addAction(caption);
    entry->setObjectName(QString::fromLatin1(name));
    connect(entry, &QAction::triggered, this, m_commands.command(action));
}

const PlotRow* CurveMenu::firstRow() const
{
    const EvmPlot* const plot = m_commands.document().plots().active();
    const std::vector<std::size_t> rows = m_series.grid().selectedRows();
    return plot != nullptr && !rows.empty() ? &plot->rows().at(rows.front()) : nullptr;
}

/// Changes the look of all selected rows as one step.
void CurveMenu::changeRows(const QString& step, const std::function<void(Series&)>& change)
{
    m_commands.change(step, [&](EvmPlot& plot) {
        for (const std::size_t row : m_series.grid().selectedRows())
            plot.rows().change(plot.rows().at(row).id, change);
    });
}

void CurveMenu::askTag()
{
    const PlotRow* const row = firstRow();
    if (row == nullptr)
        return;
    const auto text = m_commands.user().askText("Tag:", "Tag", row->series.MarkerTag.toStdString());
    if (text)
        changeRows(tr("Tag"),
                   [tag = mdlData::inOneLine(QString::fromStdString(*text))](Series& series) {
                       series.MarkerTag = tag;
                   });
}

void CurveMenu::askLegend()
{
    const PlotRow* const row = firstRow();
    if (row == nullptr)
        return;
    const auto text = m_commands.user().askText("Legend text:", "Legend Text",
                                                row->series.LegendText.toStdString());
    if (text)
        changeRows(tr("Legend Text"),
                   [legend = mdlData::inOneLine(QString::fromStdString(*text))](Series& series) {
                       series.LegendText = legend;
                   });
}

} // namespace tarsil
