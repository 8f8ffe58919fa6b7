#pragma once

#include "plot/Series.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tarsil {

/// The rows of a plot, one for each curve that was asked for: a mode number of an evolution, and
/// the look of the curve. A row whose number names a mode has a series, and the series are in the
/// order of their rows. A row whose number names none has no series, and with it no curve anywhere;
/// it keeps its number and its look until another number gives it a series again.
///
/// Rows are counted from 0. Who holds the series may append some, which become the last rows.
class PlotRows
{
public:
    SeriesList& series() { return m_series; }
    const SeriesList& series() const { return m_series; }

    std::size_t count() const { return m_series.size() + m_absent.size(); }

    bool hasSeries(std::size_t row) const { return !placeOf(row).isAbsent; }

    /// The series of a row; for a row without one, what its series would look like, with no mode.
    /// Good until the rows change.
    Series& look(std::size_t row);
    const Series& look(std::size_t row) const;

    /// Null for a series that belongs to no evolution.
    const EVM* evolution(std::size_t row) const;

    /// The number of the row's mode, counted from 1 in its evolution; what names no mode is as it
    /// was set.
    std::int32_t mode(std::size_t row) const;

    /// Gives a row another number, and with it the series that it names, or none.
    void setMode(std::size_t row, std::int32_t number);

    /// Removes these rows, which are in increasing order.
    void remove(const std::vector<std::size_t>& rows);

    /// Removes all rows of an evolution; returns how many these were.
    std::size_t removeRowsOf(const EVM& evolution);

    void clear();

    /// Moves a row to another place among the rows.
    void move(std::size_t from, std::size_t to);

    /// The rows without a series, in increasing order.
    std::vector<std::size_t> withoutSeries() const;

private:
    /// A row without a series.
    struct Absent
    {
        std::size_t row;
        EVM* evolution;
        std::int32_t mode;
        Series look;
    };

    /// Where a row is kept: in `m_absent` or in `m_series`.
    struct Place
    {
        bool isAbsent;
        std::size_t index;
    };

    std::size_t rowOf(const Absent& absent) const;
    Place placeOf(std::size_t row) const;
    void takeSeries(std::size_t row, std::size_t index, std::int32_t number);
    void giveSeries(std::size_t row, std::size_t index, AeMode& mode);

    template <typename IsKept>
    void keepWhere(IsKept isKept);

    SeriesList m_series;
    std::vector<Absent> m_absent; ///< by increasing row
};

} // namespace tarsil
