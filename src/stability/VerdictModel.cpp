// SPDX-License-Identifier: Apache-2.0
#include "stability/VerdictModel.h"

#include "analysis/StabilityTexts.h"
#include "base/numbers/Numbers.h"
#include "model/EVM.h"

#include <QBrush>
#include <QColor>

namespace tarsil {

namespace {

QColor groundOf(CellStyle style)
{
    switch (style) {
    case CellStyle::Good:
        return {0xC6, 0xEF, 0xCE};
    case CellStyle::Warning:
        return {0xFF, 0xEB, 0x9C};
    case CellStyle::Bad:
        return {0xFF, 0xC7, 0xCE};
    case CellStyle::Plain:
    case CellStyle::Strong:
    case CellStyle::Quiet:
        break;
    }
    return {};
}

} // namespace

QVariant colorOf(CellStyle style, int role)
{
    const QColor ground = groundOf(style);
    if (role == Qt::BackgroundRole && ground.isValid())
        return QBrush(ground);
    if (role == Qt::ForegroundRole && ground.isValid()) // readable on a dark desktop too
        return QBrush(Qt::black);
    return {};
}

VerdictModel::Cell VerdictModel::cellOf(const EvolutionStability& stability,
                                        const StabilityVerdict& verdict)
{
    const std::string text = verdictText(verdict, stability.lastSpeed);
    if (!verdict.unstableFromFirst.empty())
        return {text, CellStyle::Bad};
    if (!verdict.lowest)
        return {text, CellStyle::Good};
    return {text, hasSpeed(*verdict.lowest) ? CellStyle::Plain : CellStyle::Warning};
}

std::vector<VerdictModel::Cell> VerdictModel::rowOf(const EvolutionStability& stability)
{
    std::vector<Cell> row = {{stability.evolution->FileName, CellStyle::Plain}};
    if (!stability.obstacle.empty()) {
        row.push_back({"cannot be tracked: " + stability.obstacle, CellStyle::Warning});
        return row;
    }
    if (stability.margin)
        row.push_back({marginText(*stability.margin),
                       stability.margin->passes ? CellStyle::Good : CellStyle::Bad});
    for (const StabilityVerdict& verdict : stability.verdicts)
        row.push_back(cellOf(stability, verdict));
    return row;
}

void VerdictModel::setEvolutions(const std::vector<EvolutionStability>& evolutions,
                                 const std::vector<float>& levels)
{
    beginResetModel();
    m_headings = {"Modal Evolution"};
    bool hasMargin = false;
    for (const EvolutionStability& stability : evolutions)
        hasMargin = hasMargin || stability.margin;
    if (hasMargin)
        m_headings.emplace_back("Requirement");
    for (const float level : levels)
        m_headings.push_back("Lowest start, g = " + shortestText(level));
    m_rows.clear();
    for (const EvolutionStability& stability : evolutions)
        m_rows.push_back(rowOf(stability));
    endResetModel();
}

int VerdictModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int VerdictModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_headings.size());
}

QVariant VerdictModel::data(const QModelIndex& index, int role) const
{
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    if (!index.isValid() || row >= m_rows.size() || column >= m_rows[row].size())
        return {};
    const Cell& cell = m_rows[row][column];
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole)
        return QString::fromStdString(cell.text);
    return colorOf(cell.style, role);
}

QVariant VerdictModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation != Qt::Horizontal)
        return section + 1;
    return QString::fromStdString(m_headings.at(static_cast<std::size_t>(section)));
}

} // namespace tarsil
