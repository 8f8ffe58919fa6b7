// SPDX-License-Identifier: Apache-2.0
#include "plot/UcPlot.h"

#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "plot/Marker.h"
#include "surface/PixelMath.h"

#include <limits>
#include <string>

namespace tarsil {

namespace {

constexpr int captionShift = 30;
constexpr double captionLinePoints = 12;
constexpr double defaultMarkerPoints = 8;
constexpr ColorValue black = 0;

void drawMarker(DeviceContext& context, const Series& series, const Point& point, QPoint pixel)
{
    const QString text = markerText(series, point);
    if (text.isEmpty())
        return;
    const double points = series.MarkerSize > 0 ? series.MarkerSize : defaultMarkerPoints;
    const QPoint top(pixel.x(), roundToPixel(pixel.y() - pixelsOfPoints(points) / 2));
    Font font;
    font.points = points;
    context.drawText(top, text, font, series.MarkerForegroundColor, TextAlignment::TopCenter);
}

/// The points of the mode of a series. A canvas counts them in 16 bits.
const std::vector<Point>& pointsOf(const Series& series)
{
    if (series.Mode == nullptr)
        throw RunTimeError(ErrorNumber::ObjectVariableNotSet, "ucPlot", "a series without a mode");
    const std::vector<Point>& points = series.Mode->Points;
    if (points.size() > std::numeric_limits<std::int16_t>::max())
        throw RunTimeError(ErrorNumber::Overflow, "ucPlot",
                           "mode " + std::to_string(series.Mode->Id) + " has "
                               + std::to_string(points.size()) + " points");
    return points;
}

QPoint roundedPosition(QPointF position)
{
    return {roundToPixel(position.x()), roundToPixel(position.y())};
}

bool isStatic(const Point& point)
{
    constexpr float staticFrequency = 0.1F; // Hz
    return point.f < staticFrequency;
}

} // namespace

PlotContainer::~PlotContainer() = default;

ucPlot::ucPlot(const PlotContainer& container) : m_container(container) { }

void ucPlot::SetScale(double x1, double y1, double x2, double y2)
{
    if (y1 - y2 == 0)
        return;
    m_left = x1;
    m_top = y1;
    m_right = x2;
    m_bottom = y2;
}

ValueMap ucPlot::columns() const
{
    if (m_right - m_left == 0)
        throw RunTimeError(ErrorNumber::DivisionByZero, "ucPlot",
                           "the bounds of the horizontal scale are equal: " + shortestText(m_left));
    return {m_left, m_right, static_cast<double>(Width())};
}

ValueMap ucPlot::rows() const
{
    return {m_top, m_bottom, static_cast<double>(Height())};
}

QPoint ucPlot::pixelOf(double x, double y) const
{
    return {columns().pixelOf(x), rows().pixelOf(y)};
}

RefLine& ucPlot::AddLine(float X1, float Y1, float X2, float Y2, const QString& Caption,
                         ColorValue ColorIndex, std::int32_t LineStyle)
{
    RefLine& line = m_lines.emplace_back();
    line.X1 = X1;
    line.Y1 = Y1;
    line.X2 = X2;
    line.Y2 = Y2;
    line.Caption = Caption;
    line.ColorIndex = ColorIndex;
    line.LineStyle = LineStyle;
    return line;
}

void ucPlot::RemoveLines()
{
    Cls();
    m_lines.clear();
}

void ucPlot::Refresh()
{
    Cls();
    Draw(nullptr);
}

ucPlot::DataPoint ucPlot::dataOf(const Point& point) const
{
    if (m_plotType == plottype::frequencyOverSpeed)
        return {point.speed, point.f};
    if (m_plotType == plottype::dampingOverSpeed)
        return {point.speed, point.G};
    return {point.re, point.im};
}

void ucPlot::paint(DeviceContext& context) const
{
    if (m_plotType < plottype::frequencyOverSpeed || m_plotType > plottype::rootLocus)
        return;
    for (const Series& series : m_container.SeriesCollection())
        drawSeries(context, series);
    for (const RefLine& line : m_lines)
        drawLine(context, line);
}

bool ucPlot::joins(const Point& from, const Point& to) const
{
    return !m_breaksAtJumps || isStatic(from) == isStatic(to);
}

void ucPlot::drawSeries(DeviceContext& context, const Series& series) const
{
    const std::vector<Point>& points = pointsOf(series);
    if (points.size() < 2)
        return;
    const Pen pen {series.LineStyle, series.LineWidth, series.ColorIndex};
    const bool hasMarkers =
        series.MarkerSpacing != 0 && series.MarkerStyle != markerNumber(MarkerKind::None);
    const bool keepsFractions = context.keepsFractions();
    const auto positionOfPoint = [this, columns = columns(), rows = rows()](const Point& point) {
        const DataPoint data = dataOf(point);
        return QPointF(columns.positionOf(data.x), rows.positionOf(data.y));
    };
    QPointF from = positionOfPoint(points.front());
    QPoint fromPixel = roundedPosition(from);
    for (std::size_t i = 1; i < points.size(); ++i) {
        const QPointF to = positionOfPoint(points[i]);
        const QPoint toPixel = roundedPosition(to);
        if (joins(points[i - 1], points[i])) {
            if (keepsFractions)
                context.drawExactLine(from, to, pen);
            else
                context.drawLine(fromPixel, toPixel, pen); // each point is rounded once
        }
        // The first point has no marker: a marker is drawn at the end of a line.
        if (hasMarkers && static_cast<std::int32_t>(i + 1) % series.MarkerSpacing == 0)
            drawMarker(context, series, points[i], toPixel);
        from = to;
        fromPixel = toPixel;
    }
}

void ucPlot::drawLine(DeviceContext& context, const RefLine& line) const
{
    const ValueMap columns = this->columns();
    const ValueMap rows = this->rows();
    const QPointF end(columns.positionOf(line.X2), rows.positionOf(line.Y2));
    context.drawExactLine({columns.positionOf(line.X1), rows.positionOf(line.Y1)}, end,
                          {line.LineStyle, line.LineWidth, line.ColorIndex});
    if (line.Caption.isEmpty())
        return;
    const QPoint to = roundedPosition(end);
    const QPoint top(to.x() - captionShift,
                     roundToPixel(to.y() - pixelsOfPoints(captionLinePoints)));
    context.drawText(top, line.Caption, Font(), black, TextAlignment::TopCenter);
}

void ucPlot::setModeColor(const QVariant& value)
{
    m_modeColor = value;
    m_changed.add(QStringLiteral("ModeColor"));
}

void ucPlot::setPlotType(std::int32_t type)
{
    m_plotType = type;
    m_changed.add(QStringLiteral("PlotType"));
}

void ucPlot::setAutoScale(bool on)
{
    m_autoScale = on;
    m_changed.add(QStringLiteral("AutoScale"));
}

void ucPlot::sethFont(std::int32_t /*handle*/)
{
    throw RunTimeError(ErrorNumber::SetNotSupportedAtRunTime, "ucPlot", "hFont");
}

void ucPlot::ReadProperties(const PropertyBag& bag)
{
    m_modeColor = bag.value(QStringLiteral("ModeColor"), 0);
    m_plotType = readProperty<std::int32_t>(bag, QStringLiteral("PlotType"), 0);
    m_hFont = readProperty<std::int32_t>(bag, QStringLiteral("hFont"), 0);
    m_autoScale = readProperty(bag, QStringLiteral("AutoScale"), false);
}

PropertyBag ucPlot::WriteProperties() const
{
    return {{QStringLiteral("ModeColor"), m_modeColor},
            {QStringLiteral("PlotType"), m_plotType},
            {QStringLiteral("hFont"), m_hFont},
            {QStringLiteral("AutoScale"), m_autoScale}};
}

} // namespace tarsil
