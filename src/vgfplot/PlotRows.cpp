#include "vgfplot/PlotRows.h"

#include "model/EVM.h"

#include <algorithm>
#include <utility>

namespace tarsil {

namespace {

EVM* evolutionOf(const Series& series)
{
    return series.Mode != nullptr ? series.Mode->Parent : nullptr;
}

/// Null when the evolution has no mode of that number.
AeMode* modeNumbered(const EVM* evolution, std::int32_t number)
{
    if (evolution == nullptr || number < 1)
        return nullptr;
    const auto index = static_cast<std::size_t>(number - 1);
    return index < evolution->Modes.size() ? evolution->Modes[index].get() : nullptr;
}

/// The number of a mode in its evolution; 0 when it is in none.
std::int32_t numberOf(const AeMode* mode)
{
    if (mode == nullptr || mode->Parent == nullptr)
        return 0;
    const auto& modes = mode->Parent->Modes;
    const auto found = std::find_if(modes.begin(), modes.end(),
                                    [mode](const auto& one) { return one.get() == mode; });
    return found == modes.end() ? 0 : static_cast<std::int32_t>(found - modes.begin() + 1);
}

/// Where a row is after another one was moved.
std::size_t movedRow(std::size_t row, std::size_t from, std::size_t to)
{
    if (row == from)
        return to;
    if (from < row && row <= to)
        return row - 1;
    if (to <= row && row < from)
        return row + 1;
    return row;
}

template <typename List>
void moveItem(List& list, std::size_t from, std::size_t to)
{
    const auto first = list.begin() + static_cast<std::ptrdiff_t>(std::min(from, to));
    const auto end = list.begin() + static_cast<std::ptrdiff_t>(std::max(from, to)) + 1;
    if (from < to)
        std::rotate(first, first + 1, end);
    else
        std::rotate(first, end - 1, end);
}

} // namespace

/// Series may have been taken away by others: then the row is the last one that there can be.
std::size_t PlotRows::rowOf(const Absent& absent) const
{
    const auto index = static_cast<std::size_t>(&absent - m_absent.data());
    return std::min(absent.row, m_series.size() + index);
}

PlotRows::Place PlotRows::placeOf(std::size_t row) const
{
    const auto found = std::lower_bound(
        m_absent.begin(), m_absent.end(), row,
        [this](const Absent& absent, std::size_t sought) { return rowOf(absent) < sought; });
    const auto absentBefore = static_cast<std::size_t>(found - m_absent.begin());
    if (found != m_absent.end() && rowOf(*found) == row)
        return {true, absentBefore};
    return {false, row - absentBefore};
}

Series& PlotRows::look(std::size_t row)
{
    const Place place = placeOf(row);
    return place.isAbsent ? m_absent[place.index].look : m_series.at(place.index);
}

const Series& PlotRows::look(std::size_t row) const
{
    const Place place = placeOf(row);
    return place.isAbsent ? m_absent[place.index].look : m_series.at(place.index);
}

const EVM* PlotRows::evolution(std::size_t row) const
{
    const Place place = placeOf(row);
    return place.isAbsent ? m_absent[place.index].evolution : evolutionOf(m_series.at(place.index));
}

std::int32_t PlotRows::mode(std::size_t row) const
{
    const Place place = placeOf(row);
    return place.isAbsent ? m_absent[place.index].mode : numberOf(m_series.at(place.index).Mode);
}

void PlotRows::setMode(std::size_t row, std::int32_t number)
{
    if (number == this->mode(row))
        return;
    AeMode* const mode = modeNumbered(evolution(row), number);
    const Place place = placeOf(row);
    if (place.isAbsent && mode != nullptr)
        giveSeries(row, place.index, *mode);
    else if (place.isAbsent)
        m_absent[place.index].mode = number;
    else if (mode != nullptr)
        m_series.at(place.index).Mode = mode;
    else
        takeSeries(row, place.index, number);
}

/// The row with the series of that index gets none.
void PlotRows::takeSeries(std::size_t row, std::size_t index, std::int32_t number)
{
    const auto series = m_series.begin() + static_cast<std::ptrdiff_t>(index);
    Absent absent {row, evolutionOf(*series), number, std::move(*series)};
    absent.look.Mode = nullptr;
    m_series.erase(series);
    m_absent.insert(m_absent.begin() + static_cast<std::ptrdiff_t>(row - index), std::move(absent));
}

/// The row of that index among those without a series gets one.
void PlotRows::giveSeries(std::size_t row, std::size_t index, AeMode& mode)
{
    const auto absent = m_absent.begin() + static_cast<std::ptrdiff_t>(index);
    Series series = std::move(absent->look);
    series.Mode = &mode;
    m_absent.erase(absent);
    m_series.insert(m_series.begin() + static_cast<std::ptrdiff_t>(row - index), std::move(series));
}

template <typename IsKept>
void PlotRows::keepWhere(IsKept isKept)
{
    PlotRows kept;
    for (std::size_t row = 0; row < count(); ++row) {
        if (!isKept(row))
            continue;
        const Place place = placeOf(row);
        if (place.isAbsent) {
            kept.m_absent.push_back(std::move(m_absent[place.index]));
            kept.m_absent.back().row = kept.count() - 1;
        } else {
            kept.m_series.push_back(std::move(m_series[place.index]));
        }
    }
    *this = std::move(kept);
}

void PlotRows::remove(const std::vector<std::size_t>& rows)
{
    keepWhere(
        [&rows](std::size_t row) { return !std::binary_search(rows.begin(), rows.end(), row); });
}

std::size_t PlotRows::removeRowsOf(const EVM& evolution)
{
    const std::size_t before = count();
    keepWhere([this, &evolution](std::size_t row) { return this->evolution(row) != &evolution; });
    return before - count();
}

void PlotRows::clear()
{
    m_series.clear();
    m_absent.clear();
}

void PlotRows::move(std::size_t from, std::size_t to)
{
    const Place place = placeOf(from);
    for (Absent& absent : m_absent)
        absent.row = rowOf(absent);
    for (Absent& absent : m_absent)
        absent.row = movedRow(absent.row, from, to);
    const auto absentBefore = static_cast<std::size_t>(std::count_if(
        m_absent.begin(), m_absent.end(), [to](const Absent& absent) { return absent.row < to; }));
    if (place.isAbsent)
        moveItem(m_absent, place.index, absentBefore);
    else
        moveItem(m_series, place.index, to - absentBefore);
}

std::vector<std::size_t> PlotRows::withoutSeries() const
{
    std::vector<std::size_t> rows;
    for (const Absent& absent : m_absent)
        rows.push_back(rowOf(absent));
    return rows;
}

} // namespace tarsil
