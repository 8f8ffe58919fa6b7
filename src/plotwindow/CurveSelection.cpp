// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/CurveSelection.h"

#include "base/user/RunTimeError.h"
#include "plotwindow/PlotHighlight.h"
#include "surface/PainterContext.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarsil {

namespace {

constexpr int strongerBy = 2; ///< pixels

bool contains(const CurveSelection::Rows& rows, RowId id)
{
    return std::find(rows.begin(), rows.end(), id) != rows.end();
}

} // namespace

void CurveSelection::select(Rows rows)
{
    m_rows = std::move(rows);
    if (m_cursor && !contains(m_rows, m_cursor->row))
        m_cursor.reset();
}

std::optional<RowId> CurveSelection::rowAt(QPoint pixel) const
{
    const std::optional<PlotReading> reading = readAt(m_plot, pixel);
    if (!reading || !reading->curve)
        return std::nullopt;
    return reading->curve->row;
}

void CurveSelection::selectAt(QPoint pixel, bool adds)
{
    const std::optional<RowId> row = rowAt(pixel);
    Rows rows = adds ? m_rows : Rows();
    if (row && contains(rows, *row))
        std::erase(rows, *row);
    else if (row)
        rows.push_back(*row);
    select(std::move(rows));
}

bool CurveSelection::isSelectedAt(QPoint pixel) const
{
    const std::optional<RowId> row = rowAt(pixel);
    return row && contains(m_rows, *row);
}

/// The mode of a row that has a curve with points; null for any other row.
const AeMode* CurveSelection::modeOf(RowId id) const
{
    const std::optional<std::size_t> index = m_plot.rows().indexOf(id);
    if (!index || !m_plot.rows().at(*index).hasCurve())
        return nullptr;
    const AeMode* const mode = m_plot.rows().at(*index).series.Mode;
    return mode->Points.empty() ? nullptr : mode;
}

CurveSelection::Rows CurveSelection::rowsWithPoints() const
{
    Rows rows;
    for (const PlotRow& row : m_plot.rows().all()) {
        if (modeOf(row.id) != nullptr)
            rows.push_back(row.id);
    }
    return rows;
}

bool CurveSelection::hasCursor() const
{
    const AeMode* const mode = m_cursor ? modeOf(m_cursor->row) : nullptr;
    return mode != nullptr && m_cursor->point < mode->Points.size();
}

/// The first point within the bounds of the speed axis; the first point when none is.
std::size_t CurveSelection::firstVisiblePoint(RowId row) const
{
    const AxisValues speed = m_plot.axes().speed;
    const auto [low, high] = std::minmax(speed.min, speed.max);
    const std::vector<Point>& points = modeOf(row)->Points;
    const auto found =
        std::find_if(points.begin(), points.end(), [low = low, high = high](const Point& point) {
            return point.speed >= low && point.speed <= high;
        });
    return found == points.end() ? 0 : static_cast<std::size_t>(found - points.begin());
}

std::size_t CurveSelection::nearestPoint(RowId row, double speed) const
{
    const std::vector<Point>& points = modeOf(row)->Points;
    const auto nearest = std::min_element(
        points.begin(), points.end(), [speed](const Point& one, const Point& other) {
            return std::fabs(one.speed - speed) < std::fabs(other.speed - speed);
        });
    return static_cast<std::size_t>(nearest - points.begin());
}

/// Puts the cursor on the first selected curve, or on the first one.
bool CurveSelection::placeCursor()
{
    const Rows rows = rowsWithPoints();
    if (rows.empty())
        return false;
    const auto selected =
        std::find_if(rows.begin(), rows.end(), [this](RowId id) { return contains(m_rows, id); });
    const RowId row = selected != rows.end() ? *selected : rows.front();
    m_cursor = Cursor {row, firstVisiblePoint(row)};
    m_rows = {row};
    return true;
}

bool CurveSelection::moveAlong(int points)
{
    if (!hasCursor())
        return placeCursor();
    const auto last = static_cast<int>(modeOf(m_cursor->row)->Points.size()) - 1;
    m_cursor->point =
        static_cast<std::size_t>(std::clamp(static_cast<int>(m_cursor->point) + points, 0, last));
    m_rows = {m_cursor->row};
    return true;
}

bool CurveSelection::moveToCurve(int rows)
{
    if (!hasCursor())
        return placeCursor();
    const double speed = modeOf(m_cursor->row)->Points[m_cursor->point].speed;
    const Rows all = rowsWithPoints();
    const auto present = std::find(all.begin(), all.end(), m_cursor->row);
    const auto last = static_cast<int>(all.size()) - 1;
    const int index = std::clamp(static_cast<int>(present - all.begin()) + rows, 0, last);
    const RowId row = all[static_cast<std::size_t>(index)];
    m_cursor = Cursor {row, nearestPoint(row, speed)};
    m_rows = {row};
    return true;
}

std::optional<CurveReading> CurveSelection::cursor() const
{
    if (!hasCursor())
        return std::nullopt;
    const PlotRow& row = m_plot.rows().at(*m_plot.rows().indexOf(m_cursor->row));
    return readPoint(row, m_cursor->point);
}

QPoint CurveSelection::cursorPixel() const
{
    const CurveReading reading = cursor().value_or(CurveReading());
    const auto pixelIn = [&reading](const ucPlot& canvas, double value) {
        return canvas.geometry().topLeft() + canvas.pixelOf(reading.speed, value);
    };
    const QPoint upper = pixelIn(m_plot.parts().vfPlot, reading.frequency);
    const QPoint lower = pixelIn(m_plot.parts().vgPlot, reading.damping);
    const bool isUpperVisible = m_plot.parts().vfPlot.geometry().contains(upper);
    return isUpperVisible || !m_plot.parts().vgPlot.geometry().contains(lower) ? upper : lower;
}

void CurveSelection::paint(QPainter& painter) const
{
    if (!hasValidScale(m_plot))
        return;
    painter.save();
    for (const RowId id : m_rows) {
        const std::optional<std::size_t> index = m_plot.rows().indexOf(id);
        if (!index || !m_plot.rows().at(*index).hasCurve())
            continue;
        const Series& series = m_plot.rows().at(*index).series;
        paintCurve(m_plot.parts().vfPlot, series, painter);
        paintCurve(m_plot.parts().vgPlot, series, painter);
    }
    if (const std::optional<CurveReading> reading = cursor())
        paintRing(m_plot, {reading->speed, reading->frequency, reading->damping}, painter);
    painter.restore();
}

/// Without markers. A curve that cannot be drawn was reported with the picture.
void CurveSelection::paintCurve(const ucPlot& canvas, const Series& series, QPainter& painter) const
{
    Series stronger = series;
    stronger.MarkerStyle = markerNumber(MarkerKind::None);
    stronger.LineWidth =
        static_cast<std::int16_t>(std::clamp<int>(series.LineWidth, 1, 100) + strongerBy);
    PainterContext context(painter);
    context.setClip(canvas.geometry() & QRect(QPoint(0, 0), m_plot.size()));
    context.setOrigin(canvas.geometry().topLeft());
    try {
        canvas.drawSeries(context, stronger);
    } catch (const RunTimeError&) {
        return;
    }
    context.flush();
}

} // namespace tarsil
