// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/EvmPlot.h"
#include "vgfplot/PlotReading.h"

#include <QPoint>

#include <cstddef>
#include <optional>
#include <vector>

class QPainter;

namespace tarsil {

/// The selected curves of a plot, and a cursor on one of them that the keys move from point to
/// point. Both exist on the screen only.
class CurveSelection
{
public:
    using Rows = std::vector<RowId>;

    /// `plot` must outlive this object.
    explicit CurveSelection(EvmPlot& plot) : m_plot(plot) { }

    /// The selected rows; rows that have left the plot may be among them.
    const Rows& rows() const { return m_rows; }

    /// Selects these rows only. The cursor goes away unless its row is one of them.
    void select(Rows rows);

    /// Selects the curve nearest to a pixel (`readAt`), or none. With `adds` the other curves keep
    /// their selection, and a selected one loses it.
    void selectAt(QPoint pixel, bool adds);

    /// Whether the curve nearest to a pixel is selected; false far from all curves.
    bool isSelectedAt(QPoint pixel) const;

    /// The row of the curve nearest to a pixel; empty far from all curves.
    std::optional<RowId> rowAt(QPoint pixel) const;

    /// Moves the cursor by a number of points along its curve, or to the curve that many rows
    /// further, at the point nearest in speed; that curve becomes the selected one. Without a
    /// cursor it appears, on the first selected curve or else the first curve, at its first visible
    /// point. False when the plot has no curves.
    bool moveAlong(int points);
    bool moveToCurve(int rows);

    /// The values at the cursor; empty when there is none.
    std::optional<CurveReading> cursor() const;

    /// The pixel of the cursor: on the V-f curve, or on the V-g curve if only that is visible.
    QPoint cursorPixel() const;

    /// Paints both curves of the selected rows stronger, and a ring around the cursor, over the
    /// picture of the plot.
    void paint(QPainter& painter) const;

private:
    struct Cursor
    {
        RowId row;
        std::size_t point;
    };

    Rows rowsWithPoints() const;
    const AeMode* modeOf(RowId id) const;
    bool hasCursor() const;
    bool placeCursor();
    std::size_t nearestPoint(RowId row, double speed) const;
    std::size_t firstVisiblePoint(RowId row) const;
    void paintCurve(const ucPlot& canvas, const Series& series, QPainter& painter) const;

    EvmPlot& m_plot;
    Rows m_rows;
    std::optional<Cursor> m_cursor;
};

} // namespace tarsil
