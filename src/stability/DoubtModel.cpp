// SPDX-License-Identifier: Apache-2.0
#include "stability/DoubtModel.h"

#include "analysis/StabilityTexts.h"
#include "model/EVM.h"

#include <array>
#include <string>

namespace tarsil {

namespace {

constexpr std::array doubtHeadings = {"Modal Evolution", "Mode",      "Nearest Mode",
                                      "From (KEAS)",     "To (KEAS)", "Doubt"};

std::string reasonOf(const TrackingDoubt& doubt)
{
    const std::string jump = "the root is far from where it was expected";
    const std::string ambiguous = "an exchange with another mode is nearly as likely";
    if (doubt.isJump && doubt.isAmbiguous)
        return jump + "; " + ambiguous;
    return doubt.isJump ? jump : ambiguous;
}

std::string textOf(const PlotDoubt& row, std::size_t column)
{
    const TrackingDoubt& doubt = row.doubt;
    const std::array<std::string, doubtHeadings.size()> texts = {
        row.evolution->FileName,    std::to_string(doubt.mode), std::to_string(doubt.nearestMode),
        speedText(doubt.fromSpeed), speedText(doubt.toSpeed),   reasonOf(doubt)};
    return texts.at(column);
}

} // namespace

std::vector<PlotDoubt> doubtsOfAll(const std::vector<const EVM*>& evolutions)
{
    std::vector<PlotDoubt> doubts;
    for (const EVM* evolution : evolutions) {
        for (const TrackingDoubt& doubt : doubtsOf(*evolution))
            doubts.push_back({evolution, doubt});
    }
    return doubts;
}

void DoubtModel::setDoubts(std::vector<PlotDoubt> doubts)
{
    beginResetModel();
    m_doubts = std::move(doubts);
    endResetModel();
}

const PlotDoubt* DoubtModel::doubt(int row) const
{
    const auto index = static_cast<std::size_t>(row);
    return row >= 0 && index < m_doubts.size() ? &m_doubts[index] : nullptr;
}

int DoubtModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_doubts.size());
}

int DoubtModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(doubtHeadings.size());
}

QVariant DoubtModel::data(const QModelIndex& index, int role) const
{
    const PlotDoubt* const found = doubt(index.row());
    if (found == nullptr || role != Qt::DisplayRole)
        return {};
    return QString::fromStdString(textOf(*found, static_cast<std::size_t>(index.column())));
}

QVariant DoubtModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation != Qt::Horizontal)
        return section + 1;
    return QString::fromLatin1(doubtHeadings.at(static_cast<std::size_t>(section)));
}

} // namespace tarsil
