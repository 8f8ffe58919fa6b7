// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/SeriesGridModel.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "document/MdlData.h"
#include "document/UndoHistory.h"
#include "model/EVM.h"
#include "plotwindow/ToolTipText.h"
#include "plotwindow/WarningColor.h"
#include "vgfplot/EvmPlot.h"

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QStyle>

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

const std::array<QString, seriesColumnCount> headings = {QStringLiteral("Idx"),
                                                         QStringLiteral("Modal Evolution"),
                                                         QStringLiteral("Tag"),
                                                         QStringLiteral("Mode"),
                                                         QString(),
                                                         QStringLiteral("Legend")};

constexpr std::array<const char*, 6> lineStyleNames = {"solid",    "dash",         "dot",
                                                       "dash-dot", "dash-dot-dot", "no line"};

SeriesColumn columnOf(const QModelIndex& index)
{
    return static_cast<SeriesColumn>(index.column());
}

/// The line of a series in words, for screen readers.
QString lineText(const Series& series)
{
    const auto style = static_cast<std::size_t>(series.LineStyle);
    const char* const name =
        style < lineStyleNames.size() ? lineStyleNames[style] : lineStyleNames[0];
    const ColorValue color = series.ColorIndex;
    return QStringLiteral("%1, %2 px, red %3, green %4, blue %5")
        .arg(QString::fromLatin1(name))
        .arg(std::max<int>(series.LineWidth, 1))
        .arg(color & 0xFF)
        .arg((color >> 8) & 0xFF)
        .arg((color >> 16) & 0xFF);
}

/// The reason why the number of a row is red.
QString missingModeText(const PlotRow& row)
{
    return QString::fromStdString(mdlData::missingModeText(row));
}

QString hiddenText()
{
    return SeriesGridModel::tr("The curve of this row is hidden.");
}

/// What the cell itself does not show: the folder, the line in words, the reason why a number is
/// red or a row grey.
QVariant toolTip(const PlotRow& row, SeriesColumn column)
{
    QString tip;
    if (column == SeriesColumn::Evolution && row.evolution != nullptr)
        tip = QString::fromStdString(shownPath(row.evolution->path()));
    else if (column == SeriesColumn::Line)
        tip = lineText(row.series);
    else if (column == SeriesColumn::Mode && !row.hasMode())
        tip = missingModeText(row);
    else if (column == SeriesColumn::Legend)
        tip = row.series.LegendText;
    if (row.isHidden)
        tip += (tip.isEmpty() ? QString() : QStringLiteral("\n")) + hiddenText();
    return tip.isEmpty() ? QVariant() : QVariant(toolTipText(tip));
}

/// A cell of a row whose mode does not exist: red, with a sign that is also visible in selected
/// cells.
QVariant missingFlag(const PlotRow& row, int role)
{
    switch (role) {
    case Qt::DecorationRole:
        return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
    case Qt::AccessibleDescriptionRole:
        return missingModeText(row);
    case Qt::ForegroundRole:
        return warningColor(QGuiApplication::palette());
    default:
        return {};
    }
}

/// A cell of a hidden row: grey as a disabled text of the theme, and italic, which is also visible
/// in selected cells.
QVariant hiddenFlag(int role)
{
    switch (role) {
    case Qt::FontRole: {
        QFont italic;
        italic.setItalic(true);
        return italic;
    }
    case Qt::AccessibleDescriptionRole:
        return hiddenText();
    case Qt::ForegroundRole:
        return QApplication::palette().color(QPalette::Disabled, QPalette::Text);
    default:
        return {};
    }
}

/// How a cell shows that its mode does not exist, or that its row is hidden.
QVariant flagOf(const PlotRow& row, SeriesColumn column, int role)
{
    QVariant flag;
    if (column == SeriesColumn::Mode && !row.hasMode())
        flag = missingFlag(row, role);
    return flag.isNull() && row.isHidden ? hiddenFlag(role) : flag;
}

} // namespace

SeriesGridModel::SeriesGridModel(UndoHistory& history, QObject* parent)
    : QAbstractTableModel(parent), m_history(history)
{ }

SeriesGridModel::~SeriesGridModel() = default;

void SeriesGridModel::setPlot(EvmPlot* plot)
{
    if (plot == m_plot)
        return;
    beginResetModel();
    if (m_plot != nullptr)
        disconnect(&m_plot->rows(), nullptr, this, nullptr);
    m_plot = plot;
    if (plot != nullptr)
        follow(plot->rows());
    endResetModel();
    Q_EMIT rowsReplaced();
}

void SeriesGridModel::follow(const PlotRows& rows)
{
    const auto last = [](std::size_t first, std::size_t count) {
        return static_cast<int>(first + count) - 1;
    };
    connect(&rows, &PlotRows::rowsAboutToBeAdded, this,
            [this, last](std::size_t first, std::size_t count) {
                m_wasEmpty = m_plot->rows().isEmpty();
                beginInsertRows({}, static_cast<int>(first), last(first, count));
            });
    connect(&rows, &PlotRows::rowsAdded, this, [this] {
        endInsertRows();
        if (m_wasEmpty)
            Q_EMIT rowsReplaced();
    });
    connect(&rows, &PlotRows::rowsAboutToBeRemoved, this,
            [this, last](std::size_t first, std::size_t count) {
                beginRemoveRows({}, static_cast<int>(first), last(first, count));
            });
    connect(&rows, &PlotRows::rowsRemoved, this, [this] { endRemoveRows(); });
    connect(&rows, &PlotRows::rowChanged, this, [this](std::size_t changed) {
        const int row = static_cast<int>(changed);
        Q_EMIT dataChanged(index(row, 0), index(row, seriesColumnCount - 1));
    });
    followMoves(rows);
}

/// Updates persistent indices after rows were removed or moved.
void SeriesGridModel::followMoves(const PlotRows& rows)
{
    const auto renumber = [this](std::size_t first, std::size_t end) {
        const int column = static_cast<int>(SeriesColumn::Index);
        if (first < end)
            Q_EMIT dataChanged(index(static_cast<int>(first), column),
                               index(static_cast<int>(end) - 1, column));
    };
    connect(&rows, &PlotRows::rowsAboutToBeMoved, this,
            [this](std::size_t first, std::size_t count, std::size_t to) {
                const std::size_t gap = to > first ? to + count : to;
                beginMoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1, {},
                              static_cast<int>(gap));
            });
    connect(&rows, &PlotRows::rowsMoved, this,
            [this, renumber](std::size_t first, std::size_t count, std::size_t to) {
                endMoveRows();
                renumber(std::min(first, to), std::max(first, to) + count);
            });
    connect(&rows, &PlotRows::rowsRemoved, this,
            [&rows, renumber](std::size_t first) { renumber(first, rows.count()); });
}

int SeriesGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_plot == nullptr ? 0 : static_cast<int>(m_plot->rows().count());
}

int SeriesGridModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : seriesColumnCount;
}

QVariant SeriesGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isShown = role == Qt::DisplayRole;
    if (section < 0 || (!isShown && role != Qt::AccessibleTextRole))
        return {};
    if (orientation == Qt::Vertical)
        return section < rowCount() ? QStringLiteral("Row %1").arg(section + 1) : QVariant();
    if (section >= seriesColumnCount)
        return {};
    const bool isLine = section == static_cast<int>(SeriesColumn::Line);
    return isLine && !isShown ? QStringLiteral("Line")
                              : headings[static_cast<std::size_t>(section)];
}

const PlotRow* SeriesGridModel::row(int index) const
{
    return index >= 0 && index < rowCount() ? &m_plot->rows().at(static_cast<std::size_t>(index))
                                            : nullptr;
}

QVariant SeriesGridModel::data(const QModelIndex& index, int role) const
{
    const PlotRow* const shown = index.isValid() ? row(index.row()) : nullptr;
    if (shown == nullptr)
        return {};
    const SeriesColumn column = columnOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(index.row(), column);
    case Qt::ToolTipRole:
        return toolTip(*shown, column);
    case Qt::AccessibleTextRole:
        return column == SeriesColumn::Line ? lineText(shown->series) : text(index.row(), column);
    case Qt::TextAlignmentRole:
        return column == SeriesColumn::Index || column == SeriesColumn::Mode
            ? QVariant(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter))
            : QVariant();
    default:
        return flagOf(*shown, column, role);
    }
}

QVariant SeriesGridModel::text(int row, SeriesColumn column) const
{
    const PlotRow& shown = *this->row(row);
    switch (column) {
    case SeriesColumn::Index:
        return QString::number(row + 1);
    case SeriesColumn::Evolution:
        return shown.evolution != nullptr ? QString::fromStdString(shown.evolution->FileName)
                                          : QString();
    case SeriesColumn::Tag:
        return shown.series.MarkerTag;
    case SeriesColumn::Mode:
        return QString::number(shown.mode);
    case SeriesColumn::Legend:
        return shown.series.LegendText;
    case SeriesColumn::Line:
        break;
    }
    return {};
}

Qt::ItemFlags SeriesGridModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled; // rows are dropped between rows
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    switch (columnOf(index)) {
    case SeriesColumn::Index:
        return flags | Qt::ItemIsDragEnabled;
    case SeriesColumn::Tag:
    case SeriesColumn::Mode:
    case SeriesColumn::Legend:
        return flags | Qt::ItemIsEditable;
    case SeriesColumn::Evolution:
    case SeriesColumn::Line:
        break;
    }
    return flags;
}

Qt::DropActions SeriesGridModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

bool SeriesGridModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const bool isEdit = index.isValid() && role == Qt::EditRole && row(index.row()) != nullptr;
    if (!isEdit || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    if (value.toString() == text(index.row(), columnOf(index)).toString())
        return true;
    if (!setText(index, value.toString()))
        return false;
    Q_EMIT edited(columnOf(index));
    return true;
}

bool SeriesGridModel::setText(const QModelIndex& cell, const QString& text)
{
    const SeriesColumn column = columnOf(cell);
    if (column == SeriesColumn::Mode)
        return setModeText(cell, text);
    const bool isTag = column == SeriesColumn::Tag;
    m_history.change(isTag ? tr("Tag") : tr("Legend Text"), [&] {
        m_plot->rows().change(row(cell.row())->id, [&](Series& look) {
            (isTag ? look.MarkerTag : look.LegendText) = mdlData::inOneLine(text);
        });
    });
    return true;
}

bool SeriesGridModel::setModeText(const QModelIndex& cell, const QString& text)
{
    try {
        const std::int16_t number = toInteger16(text.toStdString(), "wndData",
                                                "Mode of row " + std::to_string(cell.row() + 1));
        m_history.change(tr("Mode"), [&] { m_plot->rows().setMode(row(cell.row())->id, number); });
        return true;
    } catch (const RunTimeError& error) {
        Q_EMIT refused(cell, text, error);
        return false;
    }
}

} // namespace tarsil
