// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotRows.h"

#include "base/user/RunTimeError.h"
#include "model/EVM.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <unordered_set>

namespace tarsil {

namespace {

/// Null when the evolution has no mode of that number.
AeMode* modeNumbered(const EVM* evolution, std::int32_t number)
{
    if (evolution == nullptr || number < 1)
        return nullptr;
    const auto index = static_cast<std::size_t>(number - 1);
    return index < evolution->Modes.size() ? evolution->Modes[index].get() : nullptr;
}

/// The number of a mode in its evolution; 0 when it has none.
std::int32_t numberOf(const AeMode* mode)
{
    if (mode == nullptr || mode->Parent == nullptr)
        return 0;
    const auto& modes = mode->Parent->Modes;
    const auto found = std::find_if(modes.begin(), modes.end(),
                                    [mode](const auto& one) { return one.get() == mode; });
    return found == modes.end() ? 0 : static_cast<std::int32_t>(found - modes.begin() + 1);
}

PlotRow rowOf(Series series, RowId id)
{
    PlotRow row;
    row.id = id;
    row.evolution = series.Mode != nullptr ? series.Mode->Parent : nullptr;
    row.mode = numberOf(series.Mode);
    row.series = std::move(series);
    return row;
}

[[noreturn]] void failAt(const std::string& what, std::size_t count)
{
    throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "EvmPlot",
                       what + " of " + std::to_string(count));
}

std::size_t curvesIn(PlotRows::Rows::const_iterator begin, PlotRows::Rows::const_iterator end)
{
    return static_cast<std::size_t>(
        std::count_if(begin, end, [](const PlotRow& row) { return row.hasCurve(); }));
}

/// The rows that fulfil a condition.
template <typename Condition>
PlotRows::Indices rowsWhere(const PlotRows::Rows& rows, const Condition& condition)
{
    PlotRows::Indices indices;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (condition(rows[i]))
            indices.push_back(i);
    }
    return indices;
}

template <typename List>
auto positionIn(List& list, std::size_t index)
{
    return list.begin() + static_cast<std::ptrdiff_t>(index);
}

} // namespace

bool PlotRow::hasMode() const
{
    return series.Mode != nullptr || (evolution == nullptr && mode == 0);
}

bool PlotRow::hasCurve() const
{
    return hasMode() && !isHidden;
}

Series newSeries(AeMode& mode, std::size_t row, CurvePalette palette)
{
    Series series;
    series.Mode = &mode;
    applyPalette(series, palette, row);
    series.MarkerTag = QString::number(row);
    return series;
}

PlotRows::PlotRows() = default;

PlotRows::~PlotRows() = default;

std::optional<std::size_t> PlotRows::indexOf(RowId id) const
{
    if (m_indices.empty()) {
        for (std::size_t i = 0; i < m_rows.size(); ++i)
            m_indices.emplace(m_rows[i].id, i);
    }
    const auto found = m_indices.find(id);
    return found == m_indices.end() ? std::nullopt : std::optional(found->second);
}

std::size_t PlotRows::existing(RowId id) const
{
    const std::optional<std::size_t> index = indexOf(id);
    if (!index)
        failAt("no row with id " + std::to_string(static_cast<std::uint32_t>(id)), count());
    return *index;
}

const SeriesList& PlotRows::curves() const
{
    if (!m_curves) {
        SeriesList curves;
        for (const PlotRow& row : m_rows) {
            if (row.hasCurve())
                curves.push_back(row.series);
        }
        m_curves = std::move(curves);
    }
    return *m_curves;
}

PlotRows::Indices PlotRows::withoutMode() const
{
    return rowsWhere(m_rows, [](const PlotRow& row) { return !row.hasMode(); });
}

PlotRows::Indices PlotRows::hidden() const
{
    return rowsWhere(m_rows, [](const PlotRow& row) { return row.isHidden; });
}

void PlotRows::forgetIndices()
{
    m_curves.reset();
    m_indices.clear();
}

RowId PlotRows::add(AeMode& mode, const std::optional<MarkerOptions>& markers, CurvePalette palette)
{
    Series series = newSeries(mode, count(), palette);
    if (markers) {
        series.MarkerForegroundColor = series.ColorIndex;
        markers->applyTo(series);
    }
    return add(std::move(series));
}

RowId PlotRows::add(Series series)
{
    std::vector<Series> one;
    one.push_back(std::move(series));
    add(std::move(one));
    return m_rows.back().id;
}

void PlotRows::add(std::vector<Series> series)
{
    Rows rows;
    rows.reserve(series.size());
    for (Series& one : series)
        rows.push_back(rowOf(std::move(one), RowId {++m_lastId}));
    insert(count(), std::move(rows));
}

void PlotRows::insert(std::size_t index, Rows rows)
{
    if (rows.empty())
        return;
    const std::size_t added = rows.size();
    Q_EMIT rowsAboutToBeAdded(index, added);
    m_curveCount += curvesIn(rows.begin(), rows.end());
    m_rows.insert(positionIn(m_rows, index), std::make_move_iterator(rows.begin()),
                  std::make_move_iterator(rows.end()));
    forgetIndices();
    Q_EMIT rowsAdded(index, added);
}

void PlotRows::removeBlock(std::size_t first, std::size_t count)
{
    Q_EMIT rowsAboutToBeRemoved(first, count);
    const auto begin = positionIn(m_rows, first);
    const auto end = positionIn(m_rows, first + count);
    m_curveCount -= curvesIn(begin, end);
    m_rows.erase(begin, end);
    forgetIndices();
    Q_EMIT rowsRemoved(first, count);
}

/// Removes blocks of consecutive rows, from the last to the first, so that the indices of earlier
/// rows stay valid.
template <typename IsRemoved>
void PlotRows::removeWhere(IsRemoved isRemoved)
{
    std::size_t end = count();
    while (end > 0) {
        std::size_t first = end;
        while (first > 0 && isRemoved(first - 1))
            --first;
        if (first < end)
            removeBlock(first, end - first);
        end = first > 0 ? first - 1 : 0;
    }
}

void PlotRows::remove(const Indices& rows)
{
    removeWhere(
        [&rows](std::size_t row) { return std::binary_search(rows.begin(), rows.end(), row); });
}

std::size_t PlotRows::removeRowsOf(const std::vector<EVM*>& evolutions)
{
    const std::unordered_set<const EVM*> gone(evolutions.begin(), evolutions.end());
    const std::size_t before = count();
    removeWhere([&](std::size_t row) { return gone.count(m_rows[row].evolution) > 0; });
    return before - count();
}

void PlotRows::clear()
{
    removeWhere([](std::size_t) { return true; });
}

void PlotRows::move(std::size_t first, std::size_t to, std::size_t count)
{
    const std::size_t all = m_rows.size();
    if (count > all || first > all - count || to > all - count)
        failAt("row " + std::to_string(first + 1) + " to " + std::to_string(to + 1), all);
    if (first != to && count > 0)
        moveBlock(first, to, count);
}

void PlotRows::moveBlock(std::size_t first, std::size_t to, std::size_t count)
{
    Q_EMIT rowsAboutToBeMoved(first, count, to);
    const auto begin = positionIn(m_rows, std::min(first, to));
    const auto end = positionIn(m_rows, std::max(first, to) + count);
    if (first < to)
        std::rotate(begin, positionIn(m_rows, first + count), end);
    else
        std::rotate(begin, positionIn(m_rows, first), end);
    forgetIndices();
    Q_EMIT rowsMoved(first, count, to);
}

void PlotRows::replace(std::size_t index, PlotRow row)
{
    if (m_rows[index] == row)
        return;
    m_curveCount -= m_rows[index].hasCurve() ? 1 : 0;
    m_curveCount += row.hasCurve() ? 1 : 0;
    m_rows[index] = std::move(row);
    m_curves.reset();
    Q_EMIT rowChanged(index, m_rows[index].id);
}

void PlotRows::setMode(RowId id, std::int32_t number)
{
    const std::size_t index = existing(id);
    if (number == m_rows[index].mode)
        return;
    PlotRow row = m_rows[index];
    row.mode = number;
    row.series.Mode = modeNumbered(row.evolution, number);
    replace(index, std::move(row));
}

void PlotRows::setHidden(const Indices& rows, bool isHidden)
{
    for (const std::size_t index : rows) {
        PlotRow row = at(index);
        row.isHidden = isHidden;
        replace(index, std::move(row));
    }
}

void PlotRows::change(RowId id, Series look)
{
    const std::size_t index = existing(id);
    PlotRow row = m_rows[index];
    look.Mode = row.series.Mode;
    row.series = std::move(look);
    replace(index, std::move(row));
}

/// The number of rows from `first` on that equal those of `rows` from `index` on.
std::size_t PlotRows::lengthOfBlock(std::size_t first, const Rows& rows, std::size_t index) const
{
    std::size_t length = 0;
    while (first + length < count() && index + length < rows.size()
           && m_rows[first + length].id == rows[index + length].id)
        ++length;
    return length;
}

void PlotRows::restore(const Rows& rows)
{
    std::unordered_set<RowId> kept;
    for (const PlotRow& row : rows)
        kept.insert(row.id);
    removeWhere([&](std::size_t row) { return !kept.contains(m_rows[row].id); });
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (lengthOfBlock(i, rows, i) > 0)
            continue;
        if (const std::optional<std::size_t> from = indexOf(rows[i].id)) {
            moveBlock(*from, i, lengthOfBlock(*from, rows, i));
            continue;
        }
        Rows missing;
        for (std::size_t j = i; j < rows.size() && !indexOf(rows[j].id); ++j)
            missing.push_back(rows[j]);
        insert(i, std::move(missing));
    }
    for (std::size_t i = 0; i < rows.size(); ++i)
        replace(i, rows[i]);
}

} // namespace tarsil
