// The series of the Data Control window: modes, order, lines and markers.

#include "control/WndData.h"

#include "ui_WndData.h"

#include "control/DlgSeriesStyle.h"
#include "model/EVM.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "runtime/UserInterface.h"
#include "vgf/WndEvolPlot.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarsil {

namespace {

constexpr std::string_view module = "wndData";
constexpr int modeColumn = static_cast<int>(SeriesColumn::Mode);
constexpr int factorCount = 5; ///< of a point

constexpr double anyCount = std::numeric_limits<std::int32_t>::max();

/// What stands in an input, as a whole number of at least 1; errors 13, 6 and 5 name the input.
std::int32_t countIn(const QLineEdit& input, double most = anyCount)
{
    QString name = input.accessibleName();
    const std::string where = name.remove(u':').toStdString();
    const std::string text = input.text().toStdString();
    const double count = std::nearbyint(toDouble(text, module, where));
    if (count > anyCount)
        throwNumberError(NumberStatus::Overflow, text, module, where);
    if (count < 1 || count > most)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, std::string(module),
                           where + ": " + text
                               + (most == anyCount ? " is less than 1"
                                                   : " is not from 1 to " + shortestText(most)));
    return static_cast<std::int32_t>(count);
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
        m_model.plot()->plot(); // the tag may be the marker
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
        changeModes(true);
}

void wndData::cmdDecMode_Click()
{
    if (isModeSelected("You must first select cells in mode column!"))
        changeModes(false);
}

void wndData::changeModes(bool raise)
{
    static_cast<void>(markerOptions()); // what is wrong there is reported before anything changes
    for (const std::size_t place : m_ui->flxSerieViewer->selectedRows()) {
        const int row = static_cast<int>(place);
        const std::int32_t number = m_model.modeNumber(row);
        m_model.setModeNumber(row,
                              raise ? mdlData::raisedMode(*m_model.series(row), number)
                                    : mdlData::loweredMode(number));
    }
    cmdDrawPlot_Click();
}

/// The selected rows, or the current one, or the only one; the row behind them is the next current
/// one.
void wndData::cmdRemove_Click()
{
    SeriesGridView& grid = *m_ui->flxSerieViewer;
    std::vector<std::size_t> rows = grid.selectedOrCurrentRows();
    if (m_model.rowCount() == 1)
        rows = {0};
    if (rows.empty())
        return;
    static_cast<void>(markerOptions());
    const int column = currentColumn();
    m_model.removeSeries(rows);
    const auto count = static_cast<std::size_t>(m_model.rowCount());
    if (count > 0)
        grid.selectRows({std::min(rows.front(), count - 1)}, column);
    cmdDrawPlot_Click();
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
    const int column = currentColumn();
    afterMove(m_model.moveSeriesUp(m_ui->flxSerieViewer->selectedOrCurrentRows()), column);
}

void wndData::moveDown()
{
    if (m_model.rowCount() == 0)
        return;
    const int column = currentColumn();
    afterMove(m_model.moveSeriesDown(m_ui->flxSerieViewer->selectedOrCurrentRows()), column);
}

void wndData::moveSelectedTo(std::size_t target)
{
    if (m_model.rowCount() == 0)
        return;
    const int column = currentColumn();
    afterMove(m_model.moveSeries(m_ui->flxSerieViewer->selectedOrCurrentRows(), target), column);
}

/// The rows stay selected at their new places.
void wndData::afterMove(const std::vector<std::size_t>& rows, int column)
{
    if (rows.empty())
        return;
    m_ui->flxSerieViewer->selectRows(rows, column);
    m_model.plot()->plot();
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
/// What the user leaves as it is stays in the others, too.
void wndData::chooseLine()
{
    const std::vector<std::size_t> rows = m_ui->flxSerieViewer->selectedOrCurrentRows();
    if (rows.empty())
        return;
    dlgSeriesStyle dialog(lookOf(*m_model.series(static_cast<int>(rows.front()))), this);
    const LineLook before = dialog.look();
    if (dialog.exec() != QDialog::Accepted || dialog.look() == before)
        return;
    const LineLook now = dialog.look();
    for (const std::size_t row : rows) {
        Series& series = *m_model.series(static_cast<int>(row));
        if (now.color != before.color)
            mdlData::setColor(series, now.color);
        if (now.style != before.style)
            series.LineStyle = now.style;
        if (now.width != before.width)
            series.LineWidth = now.width;
    }
    m_model.plot()->plot();
}

/// The index of the participation factor must be a number only where it is the marker.
MarkerOptions wndData::markerOptions() const
{
    MarkerOptions options;
    options.style = m_ui->aemodeBtn->isChecked() ? markerstyle::modeNumber
        : m_ui->tagBtn->isChecked()              ? markerstyle::tag
        : m_ui->ithmpfBtn->isChecked()           ? markerstyle::participationFactor
                                                 : markerstyle::none;
    options.size = countIn(*m_ui->mksizeInp);
    options.spacing = countIn(*m_ui->mkspaceInp);
    std::int16_t factor = 0;
    if (options.style == markerstyle::participationFactor)
        options.ithMpf = countIn(*m_ui->ithmpfInp, factorCount);
    else if (parseInteger16(m_ui->ithmpfInp->text().toStdString(), factor) == NumberStatus::Ok)
        options.ithMpf = factor;
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

/// What is rounded to 0 is refused as well. The box is as before when the message comes: the
/// message takes the focus once more.
void wndData::mkspaceInp_LostFocus()
{
    double spacing = 0;
    if (parseDouble(m_ui->mkspaceInp->text().toStdString(), spacing) != NumberStatus::Ok)
        return; // "Plot" says so
    if (std::nearbyint(spacing) <= 0) {
        m_ui->mkspaceInp->setText(m_spacing);
        warn("The spacing must be greater then zero!");
    } else {
        m_spacing = m_ui->mkspaceInp->text();
    }
}

void wndData::tagBtn_Click()
{
    if (EvmPlot* const plot = activePlot())
        plot->plot();
}

} // namespace tarsil
