// The series of the Data Control window: modes, order, lines and markers.

#include "datacontrol/WndData.h"

#include "ui_WndData.h"

#include "base/user/UserInterface.h"
#include "datacontrol/DlgSeriesStyle.h"
#include "document/Document.h"
#include "document/MdlData.h"
#include "document/UndoHistory.h"
#include "model/EVM.h"
#include "vgfplot/EvmPlot.h"

#include <algorithm>

namespace tarsil {

namespace {

constexpr int modeColumn = static_cast<int>(SeriesColumn::Mode);

LineLook lookOf(const Series& series)
{
    return {series.ColorIndex, series.LineStyle, series.LineWidth};
}

/// Applies the differences between two looks.
void changeLine(Series& series, const LineLook& before, const LineLook& now)
{
    if (now.color != before.color)
        mdlData::setColor(series, now.color);
    if (now.style != before.style)
        series.LineStyle = now.style;
    if (now.width != before.width)
        series.LineWidth = now.width;
}

} // namespace

void wndData::selectCurve(const EVM& evolution, std::int16_t mode)
{
    for (int i = 0; i < m_model.rowCount(); ++i) {
        const PlotRow& row = *m_model.row(i);
        if (row.evolution != &evolution || !row.hasCurve() || row.series.Mode->Id != mode)
            continue;
        m_ui->flxSerieViewer->selectRows({static_cast<std::size_t>(i)}, modeColumn);
        m_ui->flxSerieViewer->scrollTo(m_model.index(i, modeColumn));
        return;
    }
}

/// Applies the markers to all rows and draws the plot; then one message lists the modes that do not
/// exist.
void wndData::cmdDrawPlot_Click()
{
    if (activePlot() != nullptr)
        changeAndPlot(tr("Plot"), [](EvmPlot&) {});
}

/// Changes the plot shown in the grid as one undo step.
void wndData::changePlot(const QString& name, const std::function<void(EvmPlot&)>& change)
{
    EvmPlot& plot = *m_model.plot();
    m_document.history().change(name, [&] { change(plot); });
}

/// Reports invalid marker options before it changes anything.
void wndData::changeAndPlot(const QString& name, const std::function<void(EvmPlot&)>& change)
{
    const MarkerOptions markers = m_markers.options();
    std::string missing;
    changePlot(name, [&](EvmPlot& plot) {
        change(plot);
        missing = mdlData::buildSeries(plot.rows(), markers);
    });
    m_model.plot()->plot();
    if (!missing.empty())
        warn(missing);
}

void wndData::afterEdit(SeriesColumn column)
{
    if (column != SeriesColumn::Mode)
        return;
    const std::string missing = mdlData::missingModesText(m_model.plot()->rows());
    if (!missing.empty())
        warn(missing);
}

bool wndData::isModeSelected(const char* refusal)
{
    const bool isSelected = m_ui->flxSerieViewer->isSelectedOnlyIn(modeColumn);
    if (!isSelected)
        warn(refusal);
    return isSelected;
}

void wndData::cmdIncMode_Click()
{
    if (!isModeSelected("Please select cells in \"Mode\" column."))
        return;
    changeAndPlot(tr("Raise Modes"), [this](EvmPlot& plot) {
        mdlData::raiseModes(plot.rows(), m_ui->flxSerieViewer->selectedRows());
    });
}

void wndData::cmdDecMode_Click()
{
    if (!isModeSelected("You must first select cells in mode column!"))
        return;
    changeAndPlot(tr("Lower Modes"), [this](EvmPlot& plot) {
        mdlData::lowerModes(plot.rows(), m_ui->flxSerieViewer->selectedRows());
    });
}

/// Removes the selected rows, or the current one, or the only one. The row after them becomes
/// current.
void wndData::cmdRemove_Click()
{
    SeriesGridView& grid = *m_ui->flxSerieViewer;
    std::vector<std::size_t> rows = grid.selectedOrCurrentRows();
    if (m_model.rowCount() == 1)
        rows = {0};
    if (rows.empty())
        return;
    const int column = currentColumn();
    changeAndPlot(tr("Remove Rows"), [&](EvmPlot& plot) {
        plot.rows().remove(rows);
        const std::size_t count = plot.rows().count();
        if (count > 0)
            grid.selectRows({std::min(rows.front(), count - 1)}, column);
    });
}

int wndData::currentColumn() const
{
    return std::max(m_ui->flxSerieViewer->currentIndex().column(), 0);
}

void wndData::btnSerieMove_Click()
{
    moveUp();
}

void wndData::moveUp()
{
    if (m_model.rowCount() == 0)
        return;
    changePlot(tr("Move Rows"), [this](EvmPlot& plot) {
        mdlData::moveRowsUp(plot, m_ui->flxSerieViewer->selectedOrCurrentRows());
    });
    showCurrentRow();
}

void wndData::moveDown()
{
    if (m_model.rowCount() == 0)
        return;
    changePlot(tr("Move Rows"), [this](EvmPlot& plot) {
        mdlData::moveRowsDown(plot, m_ui->flxSerieViewer->selectedOrCurrentRows());
    });
    showCurrentRow();
}

void wndData::moveSelectedTo(std::size_t target)
{
    if (m_model.rowCount() == 0)
        return;
    changePlot(tr("Move Rows"), [&](EvmPlot& plot) {
        mdlData::moveRows(plot, m_ui->flxSerieViewer->selectedOrCurrentRows(), target);
    });
    showCurrentRow();
}

void wndData::showCurrentRow()
{
    SeriesGridView& grid = *m_ui->flxSerieViewer;
    grid.scrollTo(grid.currentIndex());
}

void wndData::btnResColor_Click()
{
    if (activePlot() != nullptr)
        changePlot(tr("Reset Colors"), [](EvmPlot& plot) { mdlData::resetColors(plot.rows()); });
}

/// Sets colour, style and width of the lines of the selected rows, starting from those of the
/// first. What the user does not change stays in the other rows too.
void wndData::chooseLine()
{
    const std::vector<std::size_t> rows = m_ui->flxSerieViewer->selectedOrCurrentRows();
    if (rows.empty())
        return;
    dlgSeriesStyle dialog(lookOf(m_model.row(static_cast<int>(rows.front()))->series), this);
    const LineLook before = dialog.look();
    if (dialog.exec() != QDialog::Accepted || dialog.look() == before)
        return;
    const LineLook now = dialog.look();
    changePlot(tr("Line Style"), [&](EvmPlot& plot) {
        for (const std::size_t row : rows)
            plot.rows().change(plot.rows().at(row).id,
                               [&](Series& series) { changeLine(series, before, now); });
    });
}

/// Also sets the markers of curves that will be added.
void wndData::readMarkers()
{
    m_markers.read();
    m_document.plots().setNewSeriesMarkers(m_markers.valid());
}

/// Applies changed marker options at once to all rows. Options that the user does not change stay,
/// even where rows differ.
void wndData::applyMarkers()
{
    const MarkerOptions before = m_markers.valid();
    readMarkers();
    EvmPlot* const plot = m_model.plot();
    if (plot == nullptr || m_markers.valid() == before)
        return;
    m_document.history().change(
        tr("Marker Options"),
        [&] { mdlData::changeMarkers(plot->rows(), before, m_markers.valid()); },
        UndoHistory::Joining::Yes);
}

/// Shows the markers of the first series of the plot, so that "Plot" leaves an opened plot
/// unchanged.
void wndData::showMarkers()
{
    const PlotRow* const first = m_model.row(0);
    if (first == nullptr)
        return;
    m_markers.show(first->series);
    m_document.plots().setNewSeriesMarkers(m_markers.valid());
}

/// Refuses a number that rounds to 0 too. The input is restored before the message, because the
/// message makes it lose the focus again.
void wndData::mkspaceInp_LostFocus()
{
    if (m_markers.resetSpacing())
        warn("The spacing must be greater then zero!");
}

void wndData::tagBtn_Click()
{
    applyMarkers();
    if (EvmPlot* const plot = activePlot())
        plot->plot();
}

} // namespace tarsil
