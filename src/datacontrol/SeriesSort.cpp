// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/SeriesSort.h"

#include "base/numbers/Numbers.h"
#include "model/EVM.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <tuple>
#include <utility>
#include <vector>

namespace tarsil {

namespace {

/// What a row is sorted by.
struct SortKey
{
    double number = 0;
    QString text; ///< in lower case
    std::tuple<ColorValue, std::int32_t, std::int16_t> line {};

    bool operator<(const SortKey& other) const
    {
        return std::tie(number, text, line) < std::tie(other.number, other.text, other.line);
    }
};

/// A text that is a number is sorted as a number, before all other texts.
SortKey keyOfText(const QString& text)
{
    SortKey key;
    if (parseDouble(text.toStdString(), key.number) != NumberStatus::Ok) {
        key.number = std::numeric_limits<double>::infinity();
        key.text = text.toLower();
    }
    return key;
}

SortKey keyOf(const PlotRow& row, std::size_t index, SeriesColumn column)
{
    SortKey key;
    switch (column) {
    case SeriesColumn::Index:
        key.number = static_cast<double>(index);
        break;
    case SeriesColumn::Evolution:
        return keyOfText(
            row.evolution == nullptr ? QString() : QString::fromStdString(row.evolution->FileName));
    case SeriesColumn::Tag:
        return keyOfText(row.series.MarkerTag);
    case SeriesColumn::Mode:
        key.number = row.mode;
        break;
    case SeriesColumn::Line:
        key.line = {row.series.ColorIndex, row.series.LineStyle, row.series.LineWidth};
        break;
    case SeriesColumn::Legend:
        return keyOfText(row.series.LegendText);
    }
    return key;
}

} // namespace

void sortRows(PlotRows& rows, SeriesColumn column, Qt::SortOrder order)
{
    std::vector<std::pair<SortKey, std::size_t>> keys;
    for (std::size_t i = 0; i < rows.count(); ++i)
        keys.emplace_back(keyOf(rows.at(i), i, column), i);
    std::stable_sort(keys.begin(), keys.end(), [order](const auto& a, const auto& b) {
        return order == Qt::AscendingOrder ? a.first < b.first : b.first < a.first;
    });
    PlotRows::Rows sorted;
    for (const auto& [key, index] : keys)
        sorted.push_back(rows.at(index));
    rows.restore(sorted);
}

} // namespace tarsil
