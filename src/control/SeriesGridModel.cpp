#include "control/SeriesGridModel.h"

#include "model/EVM.h"
#include "runtime/Numbers.h"
#include "runtime/PathNames.h"
#include "vgf/EvmPlot.h"
#include "vgf/ToolTipText.h"

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

/// Why the number of a row is red.
QString notDrawnText(const Series& series, std::int32_t number)
{
    return mdlData::modeNumbered(series, number) == nullptr
        ? QString::fromStdString(mdlData::missingModeText(series, number))
        : QStringLiteral("The plot shows another mode until \"Plot\" is pressed.");
}

} // namespace

SeriesGridModel::SeriesGridModel(QObject* parent) : QAbstractTableModel(parent) { }

SeriesGridModel::~SeriesGridModel() = default;

void SeriesGridModel::setPlot(EvmPlot* plot)
{
    if (plot == m_plot)
        return;
    if (m_plot != nullptr) {
        disconnect(m_plot, nullptr, this, nullptr);
        m_others[m_plot] = m_rows;
    }
    m_plot = plot;
    Rows before;
    if (plot != nullptr) {
        connect(plot, &EvmPlot::changed, this, &SeriesGridModel::follow);
        before = std::exchange(m_others[plot], {});
    }
    replaceRows(plot != nullptr ? mdlData::rowsOf(plot->SeriesCollection(), before) : Rows());
    Q_EMIT rowsReplaced();
}

void SeriesGridModel::forget(const EvmPlot* plot)
{
    m_others.erase(plot);
}

/// The series may be others than before: the picture has changed.
void SeriesGridModel::follow()
{
    const SeriesList& series = m_plot->SeriesCollection();
    const auto isDrawn = [](const auto& row, const Series& one) { return row.drawn == one.Mode; };
    const bool areBegun = m_rows.size() <= series.size()
        && std::equal(m_rows.begin(), m_rows.end(), series.begin(), isDrawn);
    if (areBegun && m_rows.size() == series.size())
        return seriesChanged();
    const bool areNew = m_rows.empty();
    if (areBegun)
        appendRows(mdlData::rowsOf(series, m_rows));
    else
        replaceRows(mdlData::rowsOf(series, m_rows));
    if (areNew)
        Q_EMIT rowsReplaced();
}

/// What is selected or being edited in the rows before stays so.
void SeriesGridModel::appendRows(const Rows& rows)
{
    seriesChanged();
    beginInsertRows({}, rowCount(), static_cast<int>(rows.size()) - 1);
    m_rows = rows;
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

Series* SeriesGridModel::series(int row) const
{
    const bool isThere = m_plot != nullptr && row >= 0
        && static_cast<std::size_t>(row) < m_plot->SeriesCollection().size();
    return isThere ? &m_plot->SeriesCollection()[static_cast<std::size_t>(row)] : nullptr;
}

QVariant SeriesGridModel::data(const QModelIndex& index, int role) const
{
    const Series* const one = index.isValid() ? series(index.row()) : nullptr;
    if (one == nullptr)
        return {};
    const SeriesColumn column = columnOf(index);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(*one, index.row(), column);
    case Qt::ToolTipRole:
        return toolTip(*one, index.row(), column);
    case Qt::AccessibleTextRole:
        return column == SeriesColumn::Line ? lineText(*one) : text(*one, index.row(), column);
    case Qt::TextAlignmentRole:
        return column == SeriesColumn::Index || column == SeriesColumn::Mode
            ? QVariant(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter))
            : QVariant();
    case Qt::DecorationRole: // seen in a selected cell, too, where the colour is that of selections
        return column == SeriesColumn::Mode && !isDrawn(index.row()) ? warningIcon() : QVariant();
    case Qt::AccessibleDescriptionRole:
        return column == SeriesColumn::Mode && !isDrawn(index.row())
            ? QVariant(notDrawnText(*one, modeNumber(index.row())))
            : QVariant();
    case Qt::ForegroundRole:
        return column == SeriesColumn::Mode && !isDrawn(index.row()) ? QColor(Qt::red) : QVariant();
    default:
        return {};
    }
}

QVariant SeriesGridModel::text(const Series& one, int row, SeriesColumn column) const
{
    switch (column) {
    case SeriesColumn::Index:
        return QString::number(row + 1);
    case SeriesColumn::Evolution:
        return one.Mode != nullptr && one.Mode->Parent != nullptr
            ? QString::fromStdString(one.Mode->Parent->FileName)
            : QString();
    case SeriesColumn::Tag:
        return one.MarkerTag;
    case SeriesColumn::Mode:
        return QString::number(modeNumber(row));
    case SeriesColumn::Legend:
        return one.LegendText;
    case SeriesColumn::Line:
        break;
    }
    return {};
}

/// What does not stand in the cell: the folder, the line in words, why a number is red.
QVariant SeriesGridModel::toolTip(const Series& one, int row, SeriesColumn column) const
{
    QString tip;
    if (column == SeriesColumn::Evolution && one.Mode != nullptr && one.Mode->Parent != nullptr)
        tip = QString::fromStdString(shownPath(one.Mode->Parent->path()));
    else if (column == SeriesColumn::Line)
        tip = lineText(one);
    else if (column == SeriesColumn::Mode && !isDrawn(row))
        tip = notDrawnText(one, modeNumber(row));
    else if (column == SeriesColumn::Legend)
        tip = one.LegendText;
    return tip.isEmpty() ? QVariant() : QVariant(toolTipText(tip));
}

bool SeriesGridModel::isDrawn(int row) const
{
    const Series* const one = series(row);
    return one != nullptr && mdlData::modeNumbered(*one, modeNumber(row)) == one->Mode;
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
    Series* const one = index.isValid() && role == Qt::EditRole ? series(index.row()) : nullptr;
    if (one == nullptr || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    const SeriesColumn column = columnOf(index);
    if (value.toString() == text(*one, index.row(), column).toString())
        return true;
    if (column == SeriesColumn::Mode) {
        if (!setModeText(index.row(), value.toString()))
            return false;
    } else {
        QString& cell = column == SeriesColumn::Tag ? one->MarkerTag : one->LegendText;
        cell = mdlData::inOneLine(value.toString());
        Q_EMIT dataChanged(index, index);
    }
    Q_EMIT edited(column);
    return true;
}

bool SeriesGridModel::setModeText(int row, const QString& text)
{
    try {
        const std::string typed = text.toStdString();
        std::int16_t number = 0;
        const NumberStatus status = parseInteger16(typed, number);
        if (status != NumberStatus::Ok)
            throwNumberError(status, typed, "wndData", "Mode of row " + std::to_string(row + 1));
        setModeNumber(row, number);
        return true;
    } catch (const RunTimeError& error) {
        Q_EMIT refused(error);
        return false;
    }
}

std::int32_t SeriesGridModel::modeNumber(int row) const
{
    return m_rows.at(static_cast<std::size_t>(row)).mode;
}

void SeriesGridModel::setModeNumber(int row, std::int32_t number)
{
    m_rows.at(static_cast<std::size_t>(row)).mode = number;
    const QModelIndex cell = index(row, static_cast<int>(SeriesColumn::Mode));
    Q_EMIT dataChanged(cell, cell);
}

std::string SeriesGridModel::build(const MarkerOptions& markers)
{
    if (m_plot == nullptr)
        return {};
    std::string missing = mdlData::buildSeries(m_plot->SeriesCollection(), m_rows, markers);
    seriesChanged();
    return missing;
}

void SeriesGridModel::removeSeries(const std::vector<std::size_t>& rows)
{
    SeriesList& series = m_plot->SeriesCollection();
    beginResetModel(); // the rows behind get other numbers
    for (std::size_t i = rows.size(); i-- > 0;) {
        const auto place = static_cast<std::ptrdiff_t>(rows[i]);
        series.erase(series.begin() + place);
        m_rows.erase(m_rows.begin() + place);
    }
    endResetModel();
}

mdlData::Places SeriesGridModel::moveSeries(const Places& rows, std::size_t target)
{
    beginResetModel();
    Places places = mdlData::moveRows(*m_plot, m_rows, rows, target);
    endResetModel();
    return places;
}

mdlData::Places SeriesGridModel::moveSeriesUp(const Places& rows)
{
    beginResetModel();
    Places places = mdlData::moveRowsUp(*m_plot, m_rows, rows);
    endResetModel();
    return places;
}

mdlData::Places SeriesGridModel::moveSeriesDown(const Places& rows)
{
    beginResetModel();
    Places places = mdlData::moveRowsDown(*m_plot, m_rows, rows);
    endResetModel();
    return places;
}

} // namespace tarsil
