// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/SeriesPanel.h"

#include "ui_SeriesPanel.h"

#include "base/files/PathNames.h"
#include "base/user/ErrorReport.h"
#include "base/user/UserInterface.h"
#include "datacontrol/DataCommands.h"
#include "datacontrol/DlgSeriesStyle.h"
#include "datacontrol/HideCommands.h"
#include "datacontrol/LineSample.h"
#include "datacontrol/MarkerPanel.h"
#include "datacontrol/SeriesSort.h"
#include "document/Document.h"
#include "document/MdlData.h"
#include "model/EVM.h"
#include "plotwindow/FilterLine.h"
#include "plotwindow/ToolTipText.h"
#include "vgfplot/EvmPlot.h"
#include "vgfplot/PictureWriter.h"

#include <QAbstractButton>
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QKeySequence>
#include <QList>
#include <QMenu>
#include <QPersistentModelIndex>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarsil {

namespace {

constexpr std::string_view pictureFilter =
    "Enhanced Windows Metafile (*.emf)|*.emf|All Files (*.*)|*.*|"
    "Scalable Vector Graphics (*.svg)|*.svg|Portable Document Format (*.pdf)|*.pdf|"
    "Portable Network Graphics (*.png)|*.png|";
constexpr std::size_t firstExtendingFormat = 3; ///< a metafile has the very name that is given

int columnNumber(SeriesColumn column)
{
    return static_cast<int>(column);
}

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

/// Adds a separator to the pop-up of a widget.
void addSeparator(QWidget& widget)
{
    auto* const separator = new QAction(&widget);
    separator->setSeparator(true);
    widget.addAction(separator);
}

/// Empties the filter of a grid when it hides one of these rows.
void reveal(const std::vector<std::size_t>& rows, const SeriesGridView& grid, FilterLine& filter)
{
    const std::vector<std::size_t> shown = grid.shownRows();
    if (!std::includes(shown.begin(), shown.end(), rows.begin(), rows.end()))
        filter.clear();
}

} // namespace

SeriesPanel::SeriesPanel(const DataCommands& commands, MarkerPanel& markers, QWidget* parent)
    : QWidget(parent), m_commands(commands), m_markers(markers),
      m_model(commands.document().history()), m_ui(std::make_unique<Ui::SeriesPanel>())
{
    m_ui->setupUi(this);
    m_hideCommands = new HideCommands(m_commands, grid(), this);
    setFocusProxy(m_ui->flxSerieViewer);
    prepareColumns();
    connectGrid();
    connectButtons();
    showKeys();
    makeMoveMenu();
    makeGridMenu();
    connectFilter();
    PlotList& plots = commands.document().plots();
    connect(&plots, &PlotList::activeChanged, this, [this](EvmPlot* /*before*/, EvmPlot* now) {
        commitEdits(); // typed for the former plot
        m_model.setPlot(now);
    });
    m_model.setPlot(plots.active());
}

SeriesPanel::~SeriesPanel() = default;

SeriesGridView& SeriesPanel::grid() const
{
    return *m_ui->flxSerieViewer;
}

const QList<QAction*>& SeriesPanel::hideActions() const
{
    return m_hideCommands->actions();
}

void SeriesPanel::commitEdits()
{
    grid().commitEditor();
}

std::function<void()> SeriesPanel::command(void (SeriesPanel::*handler)())
{
    return m_commands.command([this, handler] { (this->*handler)(); });
}

void SeriesPanel::prepareColumns()
{
    grid().setModel(&m_model);
    grid().setItemDelegateForColumn(columnNumber(SeriesColumn::Line),
                                    new LineSampleDelegate(&grid()));
    QHeaderView& header = *grid().horizontalHeader();
    constexpr std::array widths = {
        std::pair(SeriesColumn::Index, 36), std::pair(SeriesColumn::Tag, 44),
        std::pair(SeriesColumn::Mode, 52), std::pair(SeriesColumn::Line, 44),
        std::pair(SeriesColumn::Legend, 80)};
    for (const auto& [column, width] : widths)
        header.resizeSection(columnNumber(column), width);
    header.setStretchLastSection(true); // from now on its width is a minimum
}

void SeriesPanel::connectGrid()
{
    SeriesGridView* const view = &grid();
    view->setPlaceholder(tr("Tick modal evolutions in the explorer and press \"Select Modal "
                            "Evolution\", or pick modes with the right button there."));
    connect(view, &SeriesGridView::removeWanted, this, command(&SeriesPanel::cmdRemove_Click));
    connect(view, &SeriesGridView::raiseWanted, this, command(&SeriesPanel::cmdIncMode_Click));
    connect(view, &SeriesGridView::lowerWanted, this, command(&SeriesPanel::cmdDecMode_Click));
    connect(view, &SeriesGridView::moveUpWanted, this, command(&SeriesPanel::moveUp));
    connect(view, &SeriesGridView::moveDownWanted, this, command(&SeriesPanel::moveDown));
    connect(view, &SeriesGridView::styleWanted, this, command(&SeriesPanel::chooseLine));
    connect(view, &SeriesGridView::rowsDropped, this, [this](int target) {
        m_commands.run([=, this] { moveSelectedTo(static_cast<std::size_t>(target)); });
    });
    connect(&m_model, &SeriesGridModel::rowsReplaced, &m_markers, &MarkerPanel::showFirstRow);
    connect(&m_model, &SeriesGridModel::edited, this,
            [this](SeriesColumn column) { m_commands.run([=, this] { afterEdit(column); }); });
    connect(&m_model, &SeriesGridModel::refused, this, &SeriesPanel::askAgain);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &SeriesPanel::reportSelection);
}

/// The keys that follow are meant for the wrong text, not for the row.
void SeriesPanel::askAgain(const QModelIndex& cell, const QString& text, const RunTimeError& error)
{
    const QPersistentModelIndex refused(cell);
    m_commands.user().showMessage(errorReport(error, DataCommands::module), "Error",
                                  MessageIcon::Critical);
    grid().editAgain(refused, text);
}

void SeriesPanel::connectButtons()
{
    const std::pair<QPushButton*, void (SeriesPanel::*)()> buttons[] = {
        {m_ui->cmdDrawPlot, &SeriesPanel::cmdDrawPlot_Click},
        {m_ui->btnFitFreq, &SeriesPanel::btnFitFreq_Click},
        {m_ui->cmdIncMode, &SeriesPanel::cmdIncMode_Click},
        {m_ui->cmdDecMode, &SeriesPanel::cmdDecMode_Click},
        {m_ui->cmdRemove, &SeriesPanel::cmdRemove_Click},
        {m_ui->btnResColor, &SeriesPanel::btnResColor_Click},
        {m_ui->SavePic, &SeriesPanel::SavePic_Click}};
    for (const auto& [button, handler] : buttons)
        connect(button, &QPushButton::clicked, this, command(handler));
    connect(m_ui->btnSerieMove, &QToolButton::clicked, this,
            command(&SeriesPanel::btnSerieMove_Click));
}

/// Keys of the grid that do the same as buttons.
void SeriesPanel::showKeys()
{
    const std::pair<QAbstractButton*, QList<QKeySequence>> keys[] = {
        {m_ui->cmdIncMode, {Qt::Key_Plus}},
        {m_ui->cmdDecMode, {Qt::Key_Minus}},
        {m_ui->cmdRemove, {QKeySequence::Delete}},
        {m_ui->btnSerieMove, {Qt::ALT | Qt::Key_Up, Qt::ALT | Qt::Key_Down}}};
    for (const auto& [button, own] : keys)
        button->setToolTip(toolTipWithKeys(button->toolTip(), own));
}

/// A click moves up; the menu has the other commands.
void SeriesPanel::makeMoveMenu()
{
    auto* const menu = new QMenu(this);
    const auto add = [&](const QString& text, const std::function<void()>& action) {
        connect(menu->addAction(text), &QAction::triggered, this, m_commands.command(action));
    };
    add(tr("Up\tAlt+Up"), [this] { moveUp(); });
    add(tr("Down\tAlt+Down"), [this] { moveDown(); });
    add(tr("To the Top"), [this] { moveSelectedTo(0); });
    add(tr("To the Bottom"),
        [this] { moveSelectedTo(static_cast<std::size_t>(m_model.rowCount())); });
    m_ui->btnSerieMove->setMenu(menu);
}

/// Commands on cells, by key and in the pop-up of the grid.
void SeriesPanel::makeGridMenu()
{
    const auto add = [this](const QString& text, const QKeySequence& key,
                            const std::function<void()>& handler) {
        auto* const action = new QAction(text, this);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut); // an open editor has its own
        connect(action, &QAction::triggered, this, m_commands.command(handler));
        grid().addAction(action);
        return action;
    };
    add(tr("Copy"), QKeySequence::Copy, [this] { copyCells(); });
    add(tr("Paste"), QKeySequence::Paste, [this] { pasteCells(); });
    add(tr("Fill Down"), QKeySequence(Qt::CTRL | Qt::Key_D), [this] { fillDown(); });
    addSeparator(grid());
    grid().addActions(hideActions());
    addSeparator(grid());
    add(tr("Sort Ascending"), {}, [this] { sort(Qt::AscendingOrder); });
    add(tr("Sort Descending"), {}, [this] { sort(Qt::DescendingOrder); });
    grid().setContextMenuPolicy(Qt::ActionsContextMenu);
}

/// In the grid a row without a mode is a warning.
void SeriesPanel::connectFilter()
{
    const auto isShown = [this](int index) {
        const PlotRow& row = *m_model.row(index);
        return row.evolution != nullptr
            && m_ui->txtRowFilter->filter().accepts(*row.evolution, !row.hasMode());
    };
    connect(m_ui->txtRowFilter, &FilterLine::filterChanged, this, [this, isShown] {
        const bool showsAll = m_ui->txtRowFilter->filter().isEmpty();
        grid().setRowFilter(showsAll ? std::function<bool(int)>() : isShown);
    });
    connect(&m_commands.document().evolutions(), &EvolutionList::parametersChanged, &grid(),
            &SeriesGridView::filterAgain);
}

GridCells SeriesPanel::selectedCells() const
{
    GridCells cells {grid().selectedOrCurrentRows(), {}};
    for (const int column : grid().selectedOrCurrentColumns())
        cells.columns.push_back(static_cast<SeriesColumn>(column));
    return cells;
}

void SeriesPanel::copyCells()
{
    const GridCells cells = selectedCells();
    if (!cells.rows.empty())
        QGuiApplication::clipboard()->setText(textOfCells(copiedCells(m_model, cells)));
}

void SeriesPanel::pasteCells()
{
    const CellRows pasted = cellsOfText(QGuiApplication::clipboard()->text());
    apply(tr("Paste"), pastedEdits(m_model, selectedCells(), grid().shownRows(), pasted));
}

void SeriesPanel::fillDown()
{
    apply(tr("Fill Down"), filledEdits(m_model, selectedCells(), grid().shownRows()));
}

void SeriesPanel::apply(const QString& step, const CellEdits& edits)
{
    if (edits.empty())
        return;
    m_commands.change(step, [&edits](EvmPlot& plot) { applyEdits(plot.rows(), edits); });
    const bool hasModes = std::any_of(edits.begin(), edits.end(), [](const CellEdit& edit) {
        return edit.column == SeriesColumn::Mode;
    });
    if (hasModes)
        afterEdit(SeriesColumn::Mode);
}

/// Sorts by the column of the current cell. The order of the rows is that of drawing.
void SeriesPanel::sort(Qt::SortOrder order)
{
    const QModelIndex current = grid().currentIndex();
    if (!current.isValid())
        return;
    const auto column = static_cast<SeriesColumn>(current.column());
    m_commands.change(tr("Sort Rows"),
                      [&](EvmPlot& plot) { sortRows(plot.rows(), column, order); });
    grid().scrollTo(grid().currentIndex());
}

void SeriesPanel::selectCurve(const EVM& evolution, std::int16_t mode)
{
    const int column = columnNumber(SeriesColumn::Mode);
    for (int i = 0; i < m_model.rowCount(); ++i) {
        const PlotRow& row = *m_model.row(i);
        if (row.evolution != &evolution || !row.hasMode() || row.series.Mode->Id != mode)
            continue;
        reveal({static_cast<std::size_t>(i)}, grid(), *m_ui->txtRowFilter);
        grid().selectRows({static_cast<std::size_t>(i)}, column);
        grid().scrollTo(m_model.index(i, column));
        return;
    }
}

/// Keeps the selected cells when they are already in these rows.
void SeriesPanel::selectRows(const std::vector<RowId>& rows)
{
    std::vector<std::size_t> indices;
    for (const RowId id : rows) {
        if (const auto index = m_model.plot()->rows().indexOf(id))
            indices.push_back(*index);
    }
    std::sort(indices.begin(), indices.end());
    reveal(indices, grid(), *m_ui->txtRowFilter);
    if (indices == grid().selectedRows())
        return;
    commitEdits();
    if (indices.empty())
        grid().clearSelection();
    else
        grid().selectRows(indices, columnNumber(SeriesColumn::Mode));
}

void SeriesPanel::reportSelection()
{
    std::vector<RowId> rows;
    for (const std::size_t row : grid().selectedRows())
        rows.push_back(m_model.row(static_cast<int>(row))->id);
    Q_EMIT rowsSelected(rows);
}

/// Applies the markers to all rows and draws the plot; then one message lists the modes that do not
/// exist.
void SeriesPanel::cmdDrawPlot_Click()
{
    if (m_commands.activePlot() != nullptr)
        changeAndPlot(tr("Plot"), [](EvmPlot&) {});
}

void SeriesPanel::btnFitFreq_Click()
{
    if (m_commands.activePlot() != nullptr)
        m_commands.change(tr("Fit Frequency Axis"), [](EvmPlot& plot) { plot.fitFreq(); });
}

/// Reports invalid marker options before it changes anything.
void SeriesPanel::changeAndPlot(const QString& step, const std::function<void(EvmPlot&)>& change)
{
    const MarkerOptions markers = m_markers.options();
    std::string missing;
    m_commands.change(step, [&](EvmPlot& plot) {
        change(plot);
        missing = mdlData::buildSeries(plot.rows(), markers);
    });
    m_model.plot()->plot();
    if (!missing.empty())
        m_commands.warn(missing);
}

void SeriesPanel::afterEdit(SeriesColumn column)
{
    if (column != SeriesColumn::Mode)
        return;
    const std::string missing = mdlData::missingModesText(m_model.plot()->rows());
    if (!missing.empty())
        m_commands.warn(missing);
}

bool SeriesPanel::isModeSelected(const char* refusal)
{
    const bool isSelected = grid().isSelectedOnlyIn(columnNumber(SeriesColumn::Mode));
    if (!isSelected)
        m_commands.warn(refusal);
    return isSelected;
}

void SeriesPanel::cmdIncMode_Click()
{
    if (isModeSelected("Please select cells in \"Mode\" column."))
        raiseModes();
}

void SeriesPanel::raiseModes()
{
    changeAndPlot(tr("Raise Modes"), [this](EvmPlot& plot) {
        mdlData::raiseModes(plot.rows(), grid().selectedRows());
    });
}

void SeriesPanel::cmdDecMode_Click()
{
    if (isModeSelected("You must first select cells in mode column!"))
        lowerModes();
}

void SeriesPanel::lowerModes()
{
    changeAndPlot(tr("Lower Modes"), [this](EvmPlot& plot) {
        mdlData::lowerModes(plot.rows(), grid().selectedRows());
    });
}

/// Removes the selected rows, or the current one, or the only one. The row after them becomes
/// current.
void SeriesPanel::cmdRemove_Click()
{
    std::vector<std::size_t> rows = grid().selectedOrCurrentRows();
    if (m_model.rowCount() == 1)
        rows = grid().shownRows();
    if (rows.empty())
        return;
    const int column = std::max(grid().currentIndex().column(), 0);
    changeAndPlot(tr("Remove Rows"), [&](EvmPlot& plot) {
        plot.rows().remove(rows);
        const std::size_t count = plot.rows().count();
        if (count > 0)
            grid().selectRows({std::min(rows.front(), count - 1)}, column);
    });
}

void SeriesPanel::btnSerieMove_Click()
{
    moveUp();
}

void SeriesPanel::moveUp()
{
    move([this](EvmPlot& plot) { mdlData::moveRowsUp(plot, grid().selectedOrCurrentRows()); });
}

void SeriesPanel::moveDown()
{
    move([this](EvmPlot& plot) { mdlData::moveRowsDown(plot, grid().selectedOrCurrentRows()); });
}

void SeriesPanel::moveSelectedTo(std::size_t target)
{
    move([&](EvmPlot& plot) { mdlData::moveRows(plot, grid().selectedOrCurrentRows(), target); });
}

/// The current row stays visible.
void SeriesPanel::move(const std::function<void(EvmPlot&)>& change)
{
    if (m_model.rowCount() == 0)
        return;
    m_commands.change(tr("Move Rows"), change);
    grid().scrollTo(grid().currentIndex());
}

void SeriesPanel::btnResColor_Click()
{
    if (m_commands.activePlot() != nullptr)
        m_commands.change(tr("Reset Colors"), [this](EvmPlot& plot) {
            const CurvePalette palette = m_commands.document().plots().newSeriesPalette();
            mdlData::resetColors(plot.rows(), palette);
        });
}

/// Sets colour, style and width of the lines of the selected rows, starting from those of the
/// first. What the user does not change stays in the other rows too.
void SeriesPanel::chooseLine()
{
    const std::vector<std::size_t> rows = grid().selectedOrCurrentRows();
    if (rows.empty())
        return;
    dlgSeriesStyle dialog(lookOf(m_model.row(static_cast<int>(rows.front()))->series), this);
    const LineLook before = dialog.look();
    if (dialog.exec() != QDialog::Accepted || dialog.look() == before)
        return;
    const LineLook now = dialog.look();
    m_commands.change(tr("Line Style"), [&](EvmPlot& plot) {
        for (const std::size_t row : rows)
            plot.rows().change(plot.rows().at(row).id,
                               [&](Series& series) { changeLine(series, before, now); });
    });
}

/// Cancelling the dialog does not cancel the command: the picture is written under the caption of
/// the plot, as a metafile whatever the caption ends in. A name that selects no other format is
/// that of a metafile, too.
void SeriesPanel::SavePic_Click()
{
    EvmPlot* const plot = m_commands.activePlot();
    if (plot == nullptr)
        return;
    UserInterface& user = m_commands.user();
    const std::string caption = plot->properties().Caption().toStdString();
    const auto answer = user.askSaveFile(
        {std::string(pictureFilter), 1, false, caption, true, firstExtendingFormat});
    if (!answer && fileExists(caption)
        && !user.confirm("The file '" + caption + "' already exists. Do you want to replace it?",
                         "Tarsil"))
        return;
    const std::string name = answer.value_or(caption);
    plot->commitEdits();
    const PictureFormat format =
        answer ? pictureFormatOf(*answer).value_or(PictureFormat::Emf) : PictureFormat::Emf;
    const PictureSettings& settings = m_commands.document().plots().pictureSettings();
    if (format == PictureFormat::Emf)
        plot->ExportPic(QString::fromStdString(name), settings);
    else
        writePicture(*plot, name, settings);
    user.showNote("The picture is in " + wholePath(name) + " ("
                  + std::string(pictureTraitsOf(format).name) + ")");
}

} // namespace tarsil
