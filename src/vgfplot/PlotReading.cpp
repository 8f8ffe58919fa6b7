// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotReading.h"

#include "base/numbers/NumberFormat.h"
#include "model/EVM.h"
#include "plot/PlotAxis.h"
#include "plot/ValueMap.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarsil {

namespace {

/// The speeds within reach of a pixel.
struct SpeedRange
{
    double low;
    double high;
};

/// The range of t in which a line a + t d is inside a canvas.
struct LinePart
{
    double begin = 0;
    double end = 1;

    /// Clips to 0 <= from + t step <= last. False when nothing is left.
    bool keepWithin(double from, double step, double last)
    {
        if (step == 0)
            return from >= 0 && from <= last;
        const double atFirst = -from / step;
        const double atLast = (last - from) / step;
        begin = std::max(begin, std::min(atFirst, atLast));
        end = std::min(end, std::max(atFirst, atLast));
        return begin <= end;
    }
};

/// The point nearest to a pixel among all curves searched so far.
struct NearestPoint
{
    double squaredDistance = curveReach * curveReach;
    const Series* series = nullptr;
    const Point* from = nullptr; ///< the points of the segment
    const Point* to = nullptr;
    double fraction = 0; ///< between the points, 0 to 1
};

/// Searches the curves of a canvas.
class CurveSearch
{
public:
    CurveSearch(const ucPlot& canvas, float Point::*ordinate, QPoint pixel, SpeedRange speeds)
        : m_canvas(canvas), m_ordinate(ordinate), m_pixel(pixel - canvas.geometry().topLeft()),
          m_speeds(speeds)
    { }

    void lookAt(const Series& series, NearestPoint& nearest) const
    {
        const std::vector<Point>& points = series.Mode->Points;
        for (std::size_t i = 1; i < points.size(); ++i) {
            const Point& from = points[i - 1];
            const Point& to = points[i];
            const auto [low, high] = std::minmax(from.speed, to.speed);
            if (high >= m_speeds.low && low <= m_speeds.high && m_canvas.joins(from, to))
                lookAt(series, from, to, nearest);
        }
    }

private:
    void lookAt(const Series& series, const Point& from, const Point& to,
                NearestPoint& nearest) const
    {
        const QPointF start = m_canvas.pixelOf(from.speed, from.*m_ordinate);
        const QPointF line = m_canvas.pixelOf(to.speed, to.*m_ordinate) - start;
        LinePart part;
        if (!part.keepWithin(start.x(), line.x(), m_canvas.Width() - 1)
            || !part.keepWithin(start.y(), line.y(), m_canvas.Height() - 1))
            return;
        const double squaredLength = QPointF::dotProduct(line, line);
        const double foot =
            squaredLength == 0 ? 0 : QPointF::dotProduct(m_pixel - start, line) / squaredLength;
        const double fraction = std::clamp(foot, part.begin, part.end);
        const QPointF gap = start + fraction * line - m_pixel;
        const double squaredDistance = QPointF::dotProduct(gap, gap);
        if (squaredDistance <= nearest.squaredDistance)
            nearest = {squaredDistance, &series, &from, &to, fraction};
    }

    const ucPlot& m_canvas;
    float Point::*m_ordinate;
    QPointF m_pixel; ///< relative to the canvas
    SpeedRange m_speeds;
};

/// Whether a canvas draws lines for a series. A canvas counts points in 16 bits.
bool drawsLines(const Series& series)
{
    return series.Mode != nullptr && series.LineStyle != penstyle::none
        && series.Mode->Points.size() <= std::numeric_limits<std::int16_t>::max();
}

/// The curve of a row, without values.
CurveReading curveOf(const PlotRow& row)
{
    const AeMode& mode = *row.series.Mode;
    CurveReading reading;
    if (mode.Parent != nullptr)
        reading.evolution = QString::fromStdString(mode.Parent->FileName);
    reading.mode = mode.Id;
    reading.tag = row.series.MarkerTag;
    reading.row = row.id;
    return reading;
}

/// The row of a series of the plot.
const PlotRow& pointRow(const EvmPlot& plot, const Series& series)
{
    auto index = &series - plot.SeriesCollection().data();
    const PlotRows::Rows& rows = plot.rows().all();
    return *std::find_if(rows.begin(), rows.end(),
                         [&index](const PlotRow& row) { return row.hasCurve() && index-- == 0; });
}

CurveReading curveAt(const EvmPlot& plot, const NearestPoint& nearest)
{
    const auto between = [&nearest](float Point::*value) {
        return std::lerp(static_cast<double>(nearest.from->*value),
                         static_cast<double>(nearest.to->*value), nearest.fraction);
    };
    CurveReading reading = curveOf(pointRow(plot, *nearest.series));
    reading.speed = between(&Point::speed);
    reading.frequency = between(&Point::f);
    reading.damping = between(&Point::G);
    return reading;
}

std::optional<CurveReading> nearestCurve(const EvmPlot& plot, QPoint pixel, SpeedRange speeds)
{
    const CurveSearch frequencies(plot.parts().vfPlot, &Point::f, pixel, speeds);
    const CurveSearch dampings(plot.parts().vgPlot, &Point::G, pixel, speeds);
    NearestPoint nearest;
    const auto lookAlong = [&](const CurveSearch& curves) {
        for (const Series& series : plot.SeriesCollection()) {
            if (drawsLines(series))
                curves.lookAt(series, nearest);
        }
    };
    if (plot.parts().vfPlot.geometry().contains(pixel))
        lookAlong(frequencies);
    lookAlong(dampings);
    if (nearest.series == nullptr)
        return std::nullopt;
    return curveAt(plot, nearest);
}

QString numberText(double value, std::string_view pattern)
{
    return QString::fromStdString(formatNumber(value, pattern));
}

QString speedText(double speed)
{
    return QStringLiteral("V ") + numberText(speed, "0.0") + QStringLiteral(" KEAS");
}

QString frequencyText(double frequency)
{
    return QStringLiteral("f ") + numberText(frequency, "0.00") + QStringLiteral(" Hz");
}

QString dampingText(double damping)
{
    return QStringLiteral("g ") + numberText(damping, "0.0000");
}

QString nameOf(const CurveReading& curve)
{
    QString text;
    if (!curve.evolution.isEmpty())
        text += curve.evolution + QStringLiteral(", ");
    text += QStringLiteral("mode ") + QString::number(curve.mode);
    if (!curve.tag.isEmpty())
        text += QStringLiteral(" [") + curve.tag + QStringLiteral("]");
    return text;
}

} // namespace

bool hasValidScale(const EvmPlot& plot)
{
    const PlotAxes axes = plot.axes();
    return axes.speed.min != axes.speed.max && axes.frequency.min != axes.frequency.max
        && axes.damping.min != axes.damping.max;
}

CurveReading readPoint(const PlotRow& row, std::size_t point)
{
    const Point& values = row.series.Mode->Points.at(point);
    CurveReading reading = curveOf(row);
    reading.speed = values.speed;
    reading.frequency = values.f;
    reading.damping = values.G;
    return reading;
}

std::optional<PlotReading> readAt(const EvmPlot& plot, QPoint pixel)
{
    if (!hasValidScale(plot) || !plot.parts().vgPlot.geometry().contains(pixel))
        return std::nullopt;
    const auto mapOf = [](const PlotAxis& axis, int length) {
        return ValueMap(axis.Min(), axis.Max(), length);
    };
    const auto speedAt =
        [&plot, speeds = mapOf(plot.parts().velAxis, plot.parts().vgPlot.Width())](int column) {
            return speeds.valueAt(column - plot.parts().vgPlot.Left());
        };
    const int half = plot.parts().vfPlot.Height();
    const int row = pixel.y() - plot.parts().vfPlot.Top() - half;

    PlotReading reading;
    reading.speed = speedAt(pixel.x());
    if (row < 0) {
        reading.value = mapOf(plot.parts().freqAxis, half).valueAt(-row);
    } else {
        reading.ordinate = PlotReading::Ordinate::Damping;
        reading.value = mapOf(plot.parts().gAxis, half).valueAt(row);
    }
    // One pixel more, because the canvas rounds to whole pixels.
    const auto [low, high] =
        std::minmax({speedAt(pixel.x() - curveReach - 1), speedAt(pixel.x() + curveReach + 1)});
    reading.curve = nearestCurve(plot, pixel, {low, high});
    return reading;
}

QString readingText(const PlotReading& reading)
{
    QString text = speedText(reading.speed) + QStringLiteral("   ");
    text += reading.ordinate == PlotReading::Ordinate::Frequency ? frequencyText(reading.value)
                                                                 : dampingText(reading.value);
    if (reading.curve)
        text += QStringLiteral("\n") + readingText(*reading.curve);
    return text;
}

QString readingText(const CurveReading& curve)
{
    return nameOf(curve) + QStringLiteral(": ")
        + QStringList(
              {speedText(curve.speed), frequencyText(curve.frequency), dampingText(curve.damping)})
              .join(QStringLiteral(", "));
}

QString curveName(const PlotRow& row)
{
    return nameOf(curveOf(row));
}

} // namespace tarsil
