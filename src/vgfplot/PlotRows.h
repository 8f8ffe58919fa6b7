#pragma once

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

/// Identifies a row of a plot. It stays with the row when rows move, and a row that is put back has
/// the one it had; no other row of the plot ever gets it.
enum class RowId : std::uint32_t {};

/// One curve that was asked for: a mode number of an evolution, and the look of the curve.
struct PlotRow
{
    RowId id {};
    EVM* evolution = nullptr; ///< not owned; null for a mode that belongs to no evolution
    std::int32_t mode = 0; ///< counted from 1 in the evolution; may name no mode
    Series series; ///< the curve; without a mode when the number names none

    /// Whether the row has a curve. A row whose number names no mode of its evolution has none.
    bool hasCurve() const;

    bool operator==(const PlotRow&) const = default;
};

/// The series that a new curve in that row has, counted from 0: entry row mod 7 of `BaseColors`,
/// and the row as tag.
Series newSeries(AeMode& mode, std::size_t row);

/// The rows of a plot, counted from 0, in the order of drawing. A row whose number names no mode
/// keeps its number and its look, and has its curve again as soon as another number names one.
///
/// Every change is announced, and rows can be changed in no other way. The signals with "about to"
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

    /// None when there is no such row.
    std::optional<std::size_t> indexOf(RowId id) const;

    /// The series of the rows that have a curve, in their order.
    const SeriesList& curves() const;
    std::size_t curveCount() const { return m_curveCount; }

    /// The rows without a curve.
    Indices withoutCurve() const;

    /// Appends a row, with the number that the series' mode has in its evolution.
    RowId add(Series series);

    /// Appends a row with a series for a mode (`newSeries`), with these markers in the colour of
    /// the curve. Rows without a curve count, so that none gets the look of another one when its
    /// curve comes back.
    RowId add(AeMode& mode, const std::optional<MarkerOptions>& markers = {});

    /// Appends rows; announced together.
    void add(std::vector<Series> series);

    void remove(const Indices& rows);

    /// Removes all rows of an evolution; returns how many there were.
    std::size_t removeRowsOf(const EVM& evolution);

    void clear();

    /// Moves `count` rows from index `first` on, so that the first of them has index `to`. Error 9
    /// "Subscript out of range" beyond the rows.
    void move(std::size_t first, std::size_t to, std::size_t count = 1);

    /// Gives a row another number, and with it the curve that it names, or none. Error 9 when there
    /// is no such row.
    void setMode(RowId id, std::int32_t number);

    /// Gives a row another look; which mode it draws stays. Error 9 when there is no such row.
    void change(RowId id, Series look);

    /// The same with what a function `void (Series&)` makes of the present look.
    template <typename Change>
    void change(RowId id, const Change& changeLook) requires std::is_invocable_v<Change, Series&>
    {
        Series look = at(existing(id)).series;
        changeLook(look);
        change(id, std::move(look));
    }

    /// Makes these the rows. Those that are there already (by their ids) stay and are moved and
    /// changed as needed.
    void restore(const Rows& rows);

Q_SIGNALS:
    void rowsAboutToBeAdded(std::size_t first, std::size_t count);
    void rowsAdded(std::size_t first, std::size_t count);
    void rowsAboutToBeRemoved(std::size_t first, std::size_t count);
    void rowsRemoved(std::size_t first, std::size_t count);

    /// `to` is the index of the first of them afterwards.
    void rowsAboutToBeMoved(std::size_t first, std::size_t count, std::size_t to);
    void rowsMoved(std::size_t first, std::size_t count, std::size_t to);

    /// The number or the look of a row is another one.
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

    // What follows from the rows, made when it is asked for.
    mutable std::optional<SeriesList> m_curves;
    mutable std::unordered_map<RowId, std::size_t> m_indices;
};

} // namespace tarsil
