// SPDX-License-Identifier: Apache-2.0
#include "trend/TrendPlot.h"

#include "analysis/StabilityTexts.h"
#include "base/numbers/NumberFormat.h"
#include "plot/AxisMetrics.h"
#include "plot/ValueMap.h"
#include "plot/YAxis.h"
#include "surface/DeviceContext.h"
#include "trend/TrendLegend.h"
#include "trend/TrendSymbols.h"

#include <QRect>

#include <algorithm>
#include <utility>
#include <vector>

namespace tarsil {

namespace {

constexpr ColorValue trendGround = rgb(255, 255, 255);
constexpr ColorValue trendInk = 0;
constexpr ColorValue gridInk = rgb(222, 222, 222);
constexpr int labelGap = 4;

/// The rectangles of the parts of the picture.
struct TrendLayout
{
    QRect speeds;
    QRect frequencies;
    QRect legend;
    QPoint title;
    QPoint note;
};

TrendLayout layOutTrend(QSize size)
{
    constexpr int left = 70;
    constexpr int top = 66;
    constexpr int bottom = 70;
    constexpr int gap = 34;
    constexpr int legendWidth = 250;
    constexpr int margin = 14;
    constexpr double partOfSpeeds = 0.62;
    const int width = std::max(size.width() - left - legendWidth - margin, 1);
    const int height = std::max(size.height() - top - bottom - gap, 2);
    const int upper = std::clamp(static_cast<int>(partOfSpeeds * height), 1, height - 1);
    TrendLayout layout;
    layout.speeds = QRect(left, top, width, upper);
    layout.frequencies = QRect(left, top + upper + gap, width, height - upper);
    layout.legend = QRect(left + width + margin, top, legendWidth - margin, height + gap);
    layout.title = {left, 16};
    layout.note = {left, size.height() - 24};
    return layout;
}

Font titleFont()
{
    Font font;
    font.points = 12;
    font.bold = true;
    return font;
}

/// One panel of the picture: the points over the abscissa with one ordinate.
class TrendPanel
{
public:
    TrendPanel(const QRect& area, const TrendRange& abscissa, const TrendRange& ordinate,
               DeviceContext& context)
        : m_area(area), m_abscissa(abscissa), m_ordinate(ordinate), m_context(context),
          m_columns(abscissa.low, abscissa.high, area.width()),
          m_rows(ordinate.high, ordinate.low, area.height())
    { }

    QPoint pixelOf(double x, double y) const
    {
        return m_area.topLeft() + QPoint(m_columns.pixelOf(x), m_rows.pixelOf(y));
    }

    const QRect& area() const { return m_area; }

    void drawGrid(bool hasColumns) const
    {
        const Pen pen {penstyle::solid, 0, gridInk};
        for (int k = 1; k < m_ordinate.steps; ++k) {
            const int row = m_area.top() + roundToPixel(m_rows.divisionPixel(k, m_ordinate.steps));
            m_context.drawLine({m_area.left(), row}, {m_area.right(), row}, pen);
        }
        for (int k = 1; hasColumns && k < m_abscissa.steps; ++k) {
            const int column =
                m_area.left() + roundToPixel(m_columns.divisionPixel(k, m_abscissa.steps));
            m_context.drawLine({column, m_area.top()}, {column, m_area.bottom()}, pen);
        }
    }

    void drawOrdinate(const QString& title) const
    {
        constexpr int axisWidth = 40;
        yAxis axis;
        axis.setGeometry({0, 0, axisWidth, m_area.height()});
        axis.setMin(m_ordinate.low);
        axis.setMax(m_ordinate.high);
        axis.setNThick(static_cast<std::int16_t>(m_ordinate.steps));
        axis.setThickFormat(QString::fromStdString(m_ordinate.pattern));
        axis.MoveToOrigin(m_area.left(), m_area.bottom() + 1);
        axis.drawInto(m_context);
        m_context.drawText({m_area.left() - axisWidth, m_area.top() - 2 * labelGap}, title, Font(),
                           trendInk, TextAlignment::BottomCenter);
        m_context.drawLine(m_area.bottomLeft(), m_area.bottomRight(), axis::pen);
    }

private:
    QRect m_area;
    TrendRange m_abscissa;
    TrendRange m_ordinate;
    DeviceContext& m_context;
    ValueMap m_columns;
    ValueMap m_rows;
};

/// Draws a comparison with its scales.
class TrendPainter
{
public:
    TrendPainter(const FlutterTrend& trend, const TrendScales& scales, QSize size,
                 DeviceContext& context)
        : m_trend(trend), m_scales(scales), m_layout(layOutTrend(size)), m_context(context),
          m_speeds(m_layout.speeds, scales.abscissa, scales.speed, context),
          m_frequencies(m_layout.frequencies, scales.abscissa, scales.frequency, context)
    { }

    void draw()
    {
        drawTexts();
        const bool hasColumns = m_trend.categories.empty();
        m_speeds.drawGrid(hasColumns);
        m_frequencies.drawGrid(hasColumns);
        m_speeds.drawOrdinate(QStringLiteral("V (KEAS)"));
        m_frequencies.drawOrdinate(QStringLiteral("f (Hz)"));
        drawAbscissa();
        drawRequirement();
        for (std::size_t level = 0; level < m_trend.settings.levels.size(); ++level)
            drawLevel(level);
        drawTrendLegend(m_trend, m_layout.legend, m_context);
    }

private:
    using Points = std::vector<const TrendPoint*>;

    void drawTexts() const;
    void drawAbscissa() const;
    void drawNumbers() const;
    void drawCategories() const;
    void drawRequirement() const;
    void drawLevel(std::size_t level);
    void drawLines(const Points& points, std::size_t level) const;
    void drawPoint(const TrendPoint& point, std::size_t level);
    void drawMode(const TrendPoint& point, QPoint pixel, ColorValue color);
    Points drawnPoints(std::size_t level) const;
    QString abscissaTitle() const;
    QString note() const;

    const FlutterTrend& m_trend;
    const TrendScales& m_scales;
    TrendLayout m_layout;
    DeviceContext& m_context;
    TrendPanel m_speeds;
    TrendPanel m_frequencies;
    std::vector<QRect> m_labels; ///< of the modes drawn so far
};

QString TrendPainter::abscissaTitle() const
{
    switch (m_trend.abscissa) {
    case TrendAbscissa::Mach:
        return QStringLiteral("Mach number");
    case TrendAbscissa::Altitude:
        return QStringLiteral("altitude (ft)");
    case TrendAbscissa::Mass:
        return QStringLiteral("mass configuration");
    case TrendAbscissa::File:
        return QStringLiteral("modal evolution");
    }
    return {};
}

/// What the picture does not show, and how the roots were followed.
QString TrendPainter::note() const
{
    const auto left = std::count_if(m_trend.points.begin(), m_trend.points.end(),
                                    [](const auto& one) { return !one.whyNotDrawn.empty(); });
    QString text = QString::fromStdString(settingsText(m_trend.settings));
    if (left > 0)
        text = QStringLiteral("%1 of %2 points are not drawn, see the table; ")
                   .arg(left)
                   .arg(m_trend.points.size())
            + text;
    return text;
}

void TrendPainter::drawTexts() const
{
    m_context.drawText(m_layout.title, QStringLiteral("Lowest reliable starts of instability"),
                       titleFont(), trendInk, TextAlignment::TopLeft);
    const int width = m_layout.legend.right() - m_layout.note.x();
    m_context.drawText(m_layout.note, fittingText(note(), width, m_context), Font(), trendInk,
                       TextAlignment::TopLeft);
}

void TrendPainter::drawAbscissa() const
{
    if (m_trend.categories.empty())
        drawNumbers();
    else
        drawCategories();
    const QRect& area = m_layout.frequencies;
    const int height = m_context.textExtent(abscissaTitle(), Font()).height();
    m_context.drawText({area.right(), area.bottom() + 2 * labelGap + height}, abscissaTitle(),
                       Font(), trendInk, TextAlignment::TopRight);
}

void TrendPainter::drawNumbers() const
{
    const TrendRange& range = m_scales.abscissa;
    const ValueMap columns(range.low, range.high, m_layout.frequencies.width());
    for (int k = 0; k <= range.steps; ++k) {
        const double value = columns.divisionValue(k, range.steps);
        const QPoint top = m_frequencies.pixelOf(value, m_scales.frequency.low);
        m_context.drawText(top + QPoint(0, labelGap),
                           QString::fromStdString(formatNumber(value, range.pattern)), Font(),
                           trendInk, TextAlignment::TopCenter);
    }
}

/// Names as far as they fit; of too many only each n-th.
void TrendPainter::drawCategories() const
{
    constexpr int leastWidth = 48;
    const auto count = static_cast<int>(m_trend.categories.size());
    const int room = m_layout.frequencies.width();
    const int every = (count * leastWidth + room - 1) / room;
    for (int k = 0; k < count; k += every) {
        const QPoint top = m_frequencies.pixelOf(k + 1, m_scales.frequency.low);
        const QString name =
            QString::fromStdString(m_trend.categories[static_cast<std::size_t>(k)]);
        m_context.drawLine(top, top + QPoint(0, labelGap), axis::pen);
        m_context.drawText(top + QPoint(0, labelGap),
                           fittingText(name, every * room / count - 2 * labelGap, m_context),
                           Font(), trendInk, TextAlignment::TopCenter);
    }
}

void TrendPainter::drawRequirement() const
{
    constexpr int half = 14;
    const Pen pen {penstyle::solid, 2, trendInk};
    QPoint last;
    for (std::size_t i = 0; i < m_trend.required.size(); ++i) {
        const TrendRequirement& one = m_trend.required[i];
        const QPoint pixel = m_speeds.pixelOf(one.abscissa, one.speed);
        if (m_trend.isRequirementLine && i > 0)
            m_context.drawLine(last, pixel, pen);
        if (!m_trend.isRequirementLine || m_trend.required.size() == 1)
            m_context.drawLine(pixel - QPoint(half, 0), pixel + QPoint(half, 0), pen);
        last = pixel;
    }
}

TrendPainter::Points TrendPainter::drawnPoints(std::size_t level) const
{
    Points points;
    for (const TrendPoint& point : m_trend.points) {
        if (point.level == m_trend.settings.levels[level] && point.whyNotDrawn.empty())
            points.push_back(&point);
    }
    std::stable_sort(points.begin(), points.end(), [](const auto* a, const auto* b) {
        return std::pair(a->group, *a->abscissa) < std::pair(b->group, *b->abscissa);
    });
    return points;
}

void TrendPainter::drawLevel(std::size_t level)
{
    const Points points = drawnPoints(level);
    if (m_trend.abscissa != TrendAbscissa::File)
        drawLines(points, level);
    for (const TrendPoint* const point : points)
        drawPoint(*point, level);
}

void TrendPainter::drawLines(const Points& points, std::size_t level) const
{
    for (std::size_t i = 1; i < points.size(); ++i) {
        const TrendPoint& from = *points[i - 1];
        const TrendPoint& to = *points[i];
        if (!areJoined(from, to))
            continue;
        const Pen pen {groupStyle(to.group), 0, levelColor(level)};
        m_context.drawLine(m_speeds.pixelOf(*from.abscissa, from.speed),
                           m_speeds.pixelOf(*to.abscissa, to.speed), pen);
        m_context.drawLine(m_frequencies.pixelOf(*from.abscissa, from.start->frequency),
                           m_frequencies.pixelOf(*to.abscissa, to.start->frequency), pen);
    }
}

void TrendPainter::drawPoint(const TrendPoint& point, std::size_t level)
{
    const ColorValue color = levelColor(level);
    const TrendSymbol symbol = symbolOf(point);
    const QPoint pixel = m_speeds.pixelOf(*point.abscissa, point.speed);
    if (point.onset == TrendOnset::Start) {
        drawSymbol(m_context, symbol, pixel, pixel, color);
        drawMode(point, pixel, color);
        const QPoint below = m_frequencies.pixelOf(*point.abscissa, point.start->frequency);
        drawSymbol(m_context, symbol, below, below, color);
        return;
    }
    constexpr int distance = 14; ///< of two levels, which are often at the same speed
    const int levels = static_cast<int>(m_trend.settings.levels.size());
    const QPoint aside((2 * static_cast<int>(level) + 1 - levels) * distance / 2, 0);
    drawSymbol(m_context, symbol, pixel + aside,
               m_speeds.pixelOf(*point.abscissa, point.toSpeed) + aside, color);
}

/// Mode and confidence beside a start, where no other label is.
void TrendPainter::drawMode(const TrendPoint& point, QPoint pixel, ColorValue color)
{
    constexpr int besideSymbol = 5;
    const QString text = QString::number(point.modes.front())
        + QString::fromStdString(nameOf(point.start->confidence));
    const QSize extent = m_context.textExtent(text, Font());
    const QRect label(pixel + QPoint(besideSymbol, -extent.height()), extent);
    const auto covers = [&label](const QRect& other) { return other.intersects(label); };
    if (std::any_of(m_labels.begin(), m_labels.end(), covers))
        return;
    m_labels.push_back(label);
    m_context.drawText(label.topLeft(), text, Font(), color, TextAlignment::TopLeft);
}

} // namespace

TrendPlot::TrendPlot(FlutterTrend trend, QSize size)
    : m_trend(std::move(trend)), m_scales(scalesOf(m_trend)), m_size(size)
{ }

void TrendPlot::setTrend(FlutterTrend trend)
{
    m_trend = std::move(trend);
    m_scales = scalesOf(m_trend);
}

QString TrendPlot::title() const
{
    return QStringLiteral("Flutter trend");
}

void TrendPlot::Draw(DeviceContext& context) const
{
    context.fillRectangle({QPoint(0, 0), m_size}, trendGround);
    TrendPainter(m_trend, m_scales, m_size, context).draw();
}

} // namespace tarsil
