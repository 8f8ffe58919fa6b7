#include "datacontrol/SeriesGridModel.h"

#include "base/files/PathNames.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"
#include "plotwindow/ToolTipText.h"
#include "vgfplot/EvmPlot.h"

#include <QApplication>
#include <QColor>
#include <QIcon>
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

/// The line of a series in words, for those who cannot see it.
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

QVariant warningIcon()
{
    return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
}

} // namespace

SeriesGridModel::SeriesGridModel(QObject* parent) : QAbstractTableModel(parent) { }

SeriesGridModel::~SeriesGridModel() = default;

void SeriesGridModel::setPlot(EvmPlot* plot)
{
    if (plot == m_plot)
        return;
    if (m_plot != nullptr)
        disconnect(m_plot, nullptr, this, nullptr);
    m_plot = plot;
    if (plot != nullptr)
        connect(plot, &EvmPlot::changed, this, &SeriesGridModel::follow);
    replaceRows(rowsOfPlot());
    Q_EMIT rowsReplaced();
}

SeriesGridModel::Row SeriesGridModel::rowOf(std::size_t row) const
{
    return {m_plot->rows().look(row).Mode, m_plot->rows().evolution(row)};
}

SeriesGridModel::Rows SeriesGridModel::rowsOfPlot() const
{
    Rows rows;
    for (std::size_t row = 0; m_plot != nullptr && row < m_plot->rows().count(); ++row)
        rows.push_back(rowOf(row));
    return rows;
}

/// The rows may be others than before: the picture has changed.
void SeriesGridModel::follow()
{
    Rows rows = rowsOfPlot();
    const bool areBegun =
        m_rows.size() <= rows.size() && std::equal(m_rows.begin(), m_rows.end(), rows.begin());
    if (areBegun && m_rows.size() == rows.size())
        return seriesChanged();
    const bool areNew = m_rows.empty();
    if (areBegun)
        appendRows(std::move(rows));
    else
        replaceRows(std::move(rows));
    if (areNew)
        Q_EMIT rowsReplaced();
}

/// What is selected or being edited in the rows before stays so.
void SeriesGridModel::appendRows(Rows rows)
{
    seriesChanged();
    beginInsertRows({}, rowCount(), static_cast<int>(rows.size()) - 1);
    m_rows = std::move(rows);
    endInsertRows();
}

void SeriesGridModel::replaceRows(Rows rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

void SeriesGridModel::seriesChanged()
{
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, seriesColumnCount - 1));
}

int SeriesGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
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

Series* SeriesGridModel::look(int row) const
{
    const bool isThere =
        m_plot != nullptr && row >= 0 && static_cast<std::size_t>(row) < m_plot->rows().count();
    return isThere ? &m_plot->rows().look(static_cast<std::size_t>(row)) : nullptr;
}

bool SeriesGridModel::hasSeries(int row) const
{
    return m_plot->rows().hasSeries(static_cast<std::size_t>(row));
}

QVariant SeriesGridModel::data(const QModelIndex& index, int role) const
{
    const Series* const one = index.isValid() ? look(index.row()) : nullptr;
    if (one == nullptr)
        return {};
    const SeriesColumn column = columnOf(index);
    const bool isMarked = column == SeriesColumn::Mode && !hasSeries(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(index.row(), column);
    case Qt::ToolTipRole:
        return toolTip(index.row(), column);
    case Qt::AccessibleTextRole:
        return column == SeriesColumn::Line ? lineText(*one) : text(index.row(), column);
    case Qt::TextAlignmentRole:
        return column == SeriesColumn::Index || column == SeriesColumn::Mode
            ? QVariant(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter))
            : QVariant();
    case Qt::DecorationRole: // seen in a selected cell, too, where the colour is that of selections
        return isMarked ? warningIcon() : QVariant();
    case Qt::AccessibleDescriptionRole:
        return isMarked ? QVariant(missingModeText(index.row())) : QVariant();
    case Qt::ForegroundRole:
        return isMarked ? QColor(Qt::red) : QVariant();
    default:
        return {};
    }
}

QVariant SeriesGridModel::text(int row, SeriesColumn column) const
{
    const EVM* const evolution = m_plot->rows().evolution(static_cast<std::size_t>(row));
    switch (column) {
    case SeriesColumn::Index:
        return QString::number(row + 1);
    case SeriesColumn::Evolution:
        return evolution != nullptr ? QString::fromStdString(evolution->FileName) : QString();
    case SeriesColumn::Tag:
        return look(row)->MarkerTag;
    case SeriesColumn::Mode:
        return QString::number(modeNumber(row));
    case SeriesColumn::Legend:
        return look(row)->LegendText;
    case SeriesColumn::Line:
        break;
    }
    return {};
}

/// What does not stand in the cell: the folder, the line in words, why a number is red.
QVariant SeriesGridModel::toolTip(int row, SeriesColumn column) const
{
    const EVM* const evolution = m_plot->rows().evolution(static_cast<std::size_t>(row));
    QString tip;
    if (column == SeriesColumn::Evolution && evolution != nullptr)
        tip = QString::fromStdString(shownPath(evolution->path()));
    else if (column == SeriesColumn::Line)
        tip = lineText(*look(row));
    else if (column == SeriesColumn::Mode && !hasSeries(row))
        tip = missingModeText(row);
    else if (column == SeriesColumn::Legend)
        tip = look(row)->LegendText;
    return tip.isEmpty() ? QVariant() : QVariant(toolTipText(tip));
}

/// Why the number of a row is red.
QString SeriesGridModel::missingModeText(int row) const
{
    return QString::fromStdString(
        mdlData::missingModeText(m_plot->rows(), static_cast<std::size_t>(row)));
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
    Series* const one = index.isValid() && role == Qt::EditRole ? look(index.row()) : nullptr;
    if (one == nullptr || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const SeriesColumn column = columnOf(index);
    if (value.toString() == text(index.row(), column).toString())
        return true;
    if (column == SeriesColumn::Mode) {
        if (!setModeText(index, value.toString()))
            return false;
    } else {
        QString& cell = column == SeriesColumn::Tag ? one->MarkerTag : one->LegendText;
        cell = mdlData::inOneLine(value.toString());
        Q_EMIT dataChanged(index, index);
    }
    Q_EMIT edited(column);
    return true;
}

bool SeriesGridModel::setModeText(const QModelIndex& cell, const QString& text)
{
    const int row = cell.row();
    try {
        const std::string typed = text.toStdString();
        std::int16_t number = 0;
        const NumberStatus status = parseInteger16(typed, number);
        if (status != NumberStatus::Ok)
            throwNumberError(status, typed, "wndData", "Mode of row " + std::to_string(row + 1));
        setModeNumber(row, number);
        return true;
    } catch (const RunTimeError& error) {
        Q_EMIT refused(cell, text, error);
        return false;
    }
}

std::int32_t SeriesGridModel::modeNumber(int row) const
{
    return m_plot->rows().mode(static_cast<std::size_t>(row));
}

void SeriesGridModel::setModeNumber(int row, std::int32_t number)
{
    const auto place = static_cast<std::size_t>(row);
    m_plot->rows().setMode(place, number);
    m_rows.at(place) = rowOf(place);
    Q_EMIT dataChanged(index(row, 0), index(row, seriesColumnCount - 1));
}

void SeriesGridModel::raiseMode(int row)
{
    const EVM* const evolution = m_plot->rows().evolution(static_cast<std::size_t>(row));
    setModeNumber(row, mdlData::raisedMode(evolution, modeNumber(row)));
}

void SeriesGridModel::lowerMode(int row)
{
    setModeNumber(row, mdlData::loweredMode(modeNumber(row)));
}

void SeriesGridModel::removeSeries(const Places& rows)
{
    beginResetModel(); // the rows after them get other numbers
    m_plot->rows().remove(rows);
    m_rows = rowsOfPlot();
    endResetModel();
}

mdlData::Places SeriesGridModel::moveSeries(const Places& rows, std::size_t target)
{
    beginResetModel();
    Places places = mdlData::moveRows(*m_plot, rows, target);
    m_rows = rowsOfPlot();
    endResetModel();
    return places;
}

mdlData::Places SeriesGridModel::moveSeriesUp(const Places& rows)
{
    beginResetModel();
    Places places = mdlData::moveRowsUp(*m_plot, rows);
    m_rows = rowsOfPlot();
    endResetModel();
    return places;
}

mdlData::Places SeriesGridModel::moveSeriesDown(const Places& rows)
{
    beginResetModel();
    Places places = mdlData::moveRowsDown(*m_plot, rows);
    m_rows = rowsOfPlot();
    endResetModel();
    return places;
}

} // namespace tarsil
