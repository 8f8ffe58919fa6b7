// The series of the Data Control window: modes, order, lines and markers.

#include "control/WndData.h"

#include "ui_WndData.h"

#include "control/DlgSeriesStyle.h"
#include "model/EVM.h"
#include "runtime/Numbers.h"
#include "runtime/UserInterface.h"
#include "vgf/WndEvolPlot.h"

#include <numeric>

namespace tarsil {

namespace {

constexpr std::string_view module = "wndData";
constexpr int modeColumn = static_cast<int>(SeriesColumn::Mode);

/// What stands in an input, as a whole number; errors 13 and 6 name the input.
std::int32_t integerIn(const QLineEdit& input)
{
    const std::string where = input.accessibleName().toStdString();
    return roundToInteger16(toDouble(input.text().toStdString(), module, where), module, where);
}

LineLook lookOf(const Series& series)
{
    return {series.ColorIndex, series.LineStyle, series.LineWidth};
}

} // namespace

/// The rows become the series, and the plot is drawn; then the user hears of a mode that is not
/// there.
void wndData::cmdDrawPlot_Click()
{
    EvmPlot* const plot = activePlot();
    if (plot == nullptr)
        return;
    const std::string missing = rebuild();
    plot->plot();
    if (!missing.empty())
        warn(missing);
}

std::string wndData::rebuild()
{
    return m_model.build(markerOptions());
}

void wndData::afterEdit(SeriesColumn column)
{
    if (column == SeriesColumn::Mode)
        cmdDrawPlot_Click();
    else if (column == SeriesColumn::Tag)
        m_plots.ActivePlot()->plot(); // the tag may be the marker
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
    if (isModeSelected("Please select cells in \"Mode\" column."))
        changeModes(1);
}

void wndData::cmdDecMode_Click()
{
    if (isModeSelected("You must first select cells in mode column!"))
        changeModes(-1);
}

/// Up to the number of modes that the evolution declares, and down to 0.
void wndData::changeModes(int step)
{
    static_cast<void>(markerOptions()); // what is wrong there is reported before anything changes
    for (const std::size_t place : m_ui->flxSerieViewer->selectedRows()) {
        const int row = static_cast<int>(place);
        const std::int32_t number = m_model.modeNumber(row);
        const Series& series = *m_model.series(row);
        const bool canGo =
            step > 0 ? series.Mode != nullptr && number < series.Mode->Parent->na : number != 0;
        if (canGo)
            m_model.setModeNumber(row, number + step);
    }
    cmdDrawPlot_Click();
}

/// The selected rows, or the current one; the row behind them is the next current one.
void wndData::cmdRemove_Click()
{
    SeriesGridView& grid = *m_ui->flxSerieViewer;
    std::vector<std::size_t> rows = grid.selectedRows();
    if (rows.empty() && grid.currentIndex().isValid())
        rows = {static_cast<std::size_t>(grid.currentIndex().row())};
    if (m_model.rowCount() == 1)
        rows = {0};
    if (rows.empty())
        return;
    static_cast<void>(markerOptions());
    const int column = grid.currentIndex().column();
    m_model.removeSeries(rows);
    const std::size_t next = rows.front();
    const auto count = static_cast<std::size_t>(m_model.rowCount());
    grid.selectRows(next < count ? next : count - 1, count > 0 ? 1 : 0, column < 0 ? 0 : column);
    cmdDrawPlot_Click();
}

void wndData::btnSerieMove_Click()
{
    moveUp();
}

void wndData::moveUp()
{
    const std::vector<std::size_t> rows = m_ui->flxSerieViewer->selectedRows();
    if (!rows.empty())
        moveSelectedTo(rows.front() > 0 ? rows.front() - 1 : 0);
}

void wndData::moveDown()
{
    const std::vector<std::size_t> rows = m_ui->flxSerieViewer->selectedRows();
    const auto end = static_cast<std::size_t>(m_model.rowCount());
    if (!rows.empty())
        moveSelectedTo(std::min(rows.back() + 2, end));
}

/// The rows stay selected.
void wndData::moveSelectedTo(std::size_t target)
{
    SeriesGridView& grid = *m_ui->flxSerieViewer;
    const std::vector<std::size_t> rows = grid.selectedRows();
    if (rows.empty())
        return;
    const int column = grid.currentIndex().column();
    const std::size_t first = m_model.moveSeries(rows, target);
    grid.selectRows(first, rows.size(), column < 0 ? 0 : column);
    m_plots.ActivePlot()->plot();
}

void wndData::btnResColor_Click()
{
    EvmPlot* const plot = activePlot();
    if (plot == nullptr)
        return;
    mdlData::resetColors(plot->SeriesCollection());
    plot->plot();
}

/// The colour, style and width of the lines of the selected rows; the first one says what they are.
void wndData::chooseLine()
{
    const std::vector<std::size_t> rows = m_ui->flxSerieViewer->selectedRows();
    if (rows.empty())
        return;
    const LineLook before = lookOf(*m_model.series(static_cast<int>(rows.front())));
    dlgSeriesStyle dialog(before, this);
    const LineLook shown = dialog.look();
    if (dialog.exec() != QDialog::Accepted || dialog.look() == shown)
        return;
    const LineLook look = dialog.look();
    for (const std::size_t row : rows) {
        Series& series = *m_model.series(static_cast<int>(row));
        mdlData::setColor(series, look.color);
        series.LineStyle = look.style;
        series.LineWidth = look.width;
    }
    m_plots.ActivePlot()->plot();
}

/// The participation factor counts only where it is the marker.
MarkerOptions wndData::markerOptions() const
{
    MarkerOptions options;
    options.style = m_ui->aemodeBtn->isChecked() ? markerstyle::modeNumber
        : m_ui->tagBtn->isChecked()              ? markerstyle::tag
        : m_ui->ithmpfBtn->isChecked()           ? markerstyle::participationFactor
                                                 : markerstyle::none;
    options.size = integerIn(*m_ui->mksizeInp);
    options.spacing = integerIn(*m_ui->mkspaceInp);
    if (options.style == markerstyle::participationFactor)
        options.ithMpf = integerIn(*m_ui->ithmpfInp);
    return options;
}

/// The controls show what the first series of the plot has, so that "Plot" leaves a plot as it was
/// opened. A series without markers says nothing about their size and spacing.
void wndData::showMarkers()
{
    const Series* const series = m_model.series(0);
    if (series == nullptr)
        return;
    QRadioButton* const options[] = {m_ui->womkBtn, m_ui->aemodeBtn, m_ui->tagBtn, m_ui->ithmpfBtn};
    if (series->MarkerStyle >= 0 && series->MarkerStyle <= markerstyle::participationFactor)
        options[series->MarkerStyle]->setChecked(true);
    if (series->MarkerSize > 0)
        m_ui->mksizeInp->setText(QString::number(series->MarkerSize));
    if (series->MarkerSpacing > 0) {
        m_spacing = QString::number(series->MarkerSpacing);
        m_ui->mkspaceInp->setText(m_spacing);
    }
    if (series->IthMpf > 0)
        m_ui->ithmpfInp->setText(QString::number(series->IthMpf));
}

/// A curve that the user adds gets the markers that stand here, in its colour. What is wrong in
/// them is told by "Plot", and not once for each of many curves.
void wndData::styleNewSeries(EvmPlot* plot)
{
    Series& series = plot->SeriesCollection().back();
    series.MarkerForegroundColor = series.ColorIndex;
    try {
        mdlData::setMarkers(series, markerOptions());
    } catch (const RunTimeError&) {
        mdlData::setMarkers(series, {});
    }
}

/// The box is as before when the message comes: the message takes the focus once more.
void wndData::mkspaceInp_LostFocus()
{
    float spacing = 0;
    const bool isNumber =
        parseSingle(m_ui->mkspaceInp->text().toStdString(), spacing) == NumberStatus::Ok;
    if (isNumber && spacing <= 0) {
        m_ui->mkspaceInp->setText(m_spacing);
        warn("The spacing must be greater then zero!");
    } else if (isNumber) {
        m_spacing = m_ui->mkspaceInp->text();
    }
}

void wndData::tagBtn_Click()
{
    if (EvmPlot* const plot = activePlot())
        plot->plot();
}

} // namespace tarsil
