// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/CurvePalette.h"
#include "plot/Marker.h"
#include "plot/Series.h"

#include <QObject>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tarsil {

class EVM;

/// Identifies a row of a plot. A row keeps its id when it moves or is restored. Ids are never
/// reused within a plot.
enum class RowId : std::uint32_t {};

/// A row: a mode number of an evolution, and the look of its curve.
struct PlotRow
{
    RowId id {};
    EVM* evolution = nullptr; ///< not owned; null for a mode without evolution
    std::int32_t mode = 0; ///< counted from 1 in the evolution; may not exist
    bool isHidden = false; ///< has no curve, but keeps its mode and its look
    Series series; ///< without a mode when the number does not exist

    /// Whether the number of the row is that of a mode of its evolution.
    bool hasMode() const;

    /// Whether the row has a curve: it has a mode and is not hidden.
    bool hasCurve() const;

    bool operator==(const PlotRow&) const = default;
};

/// The series of a new curve in a row, counted from 0: the look of the row in the palette, in the
/// standard one colour row mod 7 of `BaseColors`; and the row number as tag.
Series newSeries(AeMode& mode, std::size_t row, CurvePalette palette = CurvePalette::Standard);

/// The rows of a plot in drawing order, counted from 0. A row whose number does not exist keeps its
/// number and look, and gets a curve again with the next valid number.
///
/// Rows are changed only through this class, and every change is signalled. The "AboutTo" signals
/// are emitted before the change, the others after it.
class PlotRows : public QObject
{
    Q_OBJECT

public:
    using Rows = std::vector<PlotRow>;
    using Indices = std::vector<std::size_t>; ///< in increasing order

    PlotRows();
    ~PlotRows() override;

    std::size_t count() const { return m_rows.size(); }
    bool isEmpty() const { return m_rows.empty(); }
    const PlotRow& at(std::size_t index) const { return m_rows.at(index); }
    const Rows& all() const { return m_rows; }

    /// Empty when there is no such row.
    std::optional<std::size_t> indexOf(RowId id) const;

    /// The series of the rows that have a curve, in row order.
    const SeriesList& curves() const;
    std::size_t curveCount() const { return m_curveCount; }

    /// The rows whose mode does not exist.
    Indices withoutMode() const;

    Indices hidden() const;

    /// Appends a row with the number of the series' mode in its evolution.
    RowId add(Series series);

    /// Appends a row with the series of a mode (`newSeries`); the markers get the colour of the
    /// curve. Rows without a curve count for the colour, so that none has the look of another when
    /// its curve returns.
    RowId add(AeMode& mode, const std::optional<MarkerOptions>& markers = {},
              CurvePalette palette = CurvePalette::Standard);

    /// Appends rows with one signal.
    void add(std::vector<Series> series);

    void remove(const Indices& rows);

    /// Removes all rows of evolutions. Returns their number.
    std::size_t removeRowsOf(const std::vector<EVM*>& evolutions);

    void clear();

    /// Moves `count` rows from index `first` so that the first of them gets index `to`. Error 9
    /// "Subscript out of range" outside the rows.
    void move(std::size_t first, std::size_t to, std::size_t count = 1);

    /// Sets the mode number of a row, and its curve if the mode exists. Error 9 for an unknown row.
    void setMode(RowId id, std::int32_t number);

    /// Hides rows, or shows them again.
    void setHidden(const Indices& rows, bool isHidden);

    /// Sets the look of a row but not its mode. Error 9 for an unknown row.
    void change(RowId id, Series look);

    /// Changes the look of a row by a function `void (Series&)`.
    template <typename Change>
    void change(RowId id, const Change& changeLook) requires std::is_invocable_v<Change, Series&>
    {
        Series look = at(existing(id)).series;
        changeLook(look);
        change(id, std::move(look));
    }

    /// Makes `rows` the rows of the plot. Existing rows with the same ids stay, and are moved and
    /// changed as needed.
    void restore(const Rows& rows);

Q_SIGNALS:
    void rowsAboutToBeAdded(std::size_t first, std::size_t count);
    void rowsAdded(std::size_t first, std::size_t count);
    void rowsAboutToBeRemoved(std::size_t first, std::size_t count);
    void rowsRemoved(std::size_t first, std::size_t count);

    /// `to` is the index of the first of them after the move.
    void rowsAboutToBeMoved(std::size_t first, std::size_t count, std::size_t to);
    void rowsMoved(std::size_t first, std::size_t count, std::size_t to);

    /// The number or the look of a row has changed.
    void rowChanged(std::size_t index, tarsil::RowId id);

private:
    std::size_t existing(RowId id) const;
    void insert(std::size_t index, Rows rows);
    void removeBlock(std::size_t first, std::size_t count);
    void moveBlock(std::size_t first, std::size_t to, std::size_t count);
    void replace(std::size_t index, PlotRow row);
    void forgetIndices();
    std::size_t lengthOfBlock(std::size_t first, const Rows& rows, std::size_t index) const;

    template <typename IsRemoved>
    void removeWhere(IsRemoved isRemoved);

    Rows m_rows;
    std::size_t m_curveCount = 0;
    std::uint32_t m_lastId = 0;

    // Caches, filled on demand.
    mutable std::optional<SeriesList> m_curves;
    mutable std::unordered_map<RowId, std::size_t> m_indices;
};

} // namespace tarsil
