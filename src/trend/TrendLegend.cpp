// SPDX-License-Identifier: Apache-2.0
#include "trend/TrendLegend.h"

#include "base/numbers/Numbers.h"
#include "surface/DeviceContext.h"
#include "trend/TrendSymbols.h"

#include <QString>

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

constexpr ColorValue legendInk = 0;
constexpr int legendLine = 17; ///< pixels from one entry to the next
constexpr int sampleWidth = 30;
constexpr int sampleGap = 8;

constexpr std::array<std::pair<TrendSymbol, const char*>, 5> symbolTexts = {
    {{TrendSymbol::Flutter, "flutter"},
     {TrendSymbol::Divergence, "divergence"},
     {TrendSymbol::Interval, "somewhere between: different roots"},
     {TrendSymbol::FirstSpeed, "unstable from the first speed"},
     {TrendSymbol::None, "none up to the last speed"}}};

/// Draws entries from the top of an area downwards.
class LegendWriter
{
public:
    LegendWriter(const QRect& area, DeviceContext& context) : m_area(area), m_context(context) { }

    void addLevels(const FlutterTrend& trend)
    {
        const std::vector<float>& levels = trend.settings.levels;
        for (std::size_t i = 0; i < levels.size(); ++i)
            addLine({penstyle::solid, 3, levelColor(i)},
                    QStringLiteral("g = ") + QString::fromStdString(shortestText(levels[i])));
    }

    void addGroups(const FlutterTrend& trend)
    {
        if (trend.groups.size() < 2)
            return;
        for (std::size_t i = 0; i < trend.groups.size(); ++i)
            addLine({groupStyle(i), 0, legendInk}, QString::fromStdString(trend.groups[i]));
    }

    void addSymbols(const FlutterTrend& trend)
    {
        for (const auto& [symbol, text] : symbolTexts) {
            const bool occurs = std::any_of(
                trend.points.begin(), trend.points.end(), [wanted = symbol](const TrendPoint& one) {
                    return one.whyNotDrawn.empty() && symbolOf(one) == wanted;
                });
            if (occurs)
                addSymbol(symbol, QString::fromLatin1(text));
        }
    }

    void addLine(const Pen& pen, const QString& text)
    {
        m_context.drawLine(middle() - QPoint(sampleWidth / 2, 0),
                           middle() + QPoint(sampleWidth / 2, 0), pen);
        addText(text);
    }

    void addText(const QString& text)
    {
        const int left = m_area.left() + sampleWidth + sampleGap;
        const QString shown = fittingText(text, m_area.right() - left, m_context);
        const int height = m_context.textExtent(shown, Font()).height();
        m_context.drawText({left, middle().y() - height / 2}, shown, Font(), legendInk,
                           TextAlignment::TopLeft);
        m_top += legendLine;
    }

    void addGap() { m_top += legendLine / 2; }

private:
    void addSymbol(TrendSymbol symbol, const QString& text)
    {
        constexpr int half = 5;
        const bool pointsUp = symbol == TrendSymbol::None;
        const bool isLimit = pointsUp || symbol == TrendSymbol::FirstSpeed;
        const QPoint shift(
            0, isLimit ? (pointsUp ? half : -half) : (symbol == TrendSymbol::Interval ? half : 0));
        drawSymbol(m_context, symbol, middle() + shift, middle() - QPoint(0, half), legendInk);
        addText(text);
    }

    QPoint middle() const
    {
        return {m_area.left() + sampleWidth / 2, m_area.top() + m_top + legendLine / 2};
    }

    QRect m_area;
    DeviceContext& m_context;
    int m_top = 0;
};

} // namespace

QString fittingText(const QString& text, int width, const DeviceContext& context)
{
    const auto fits = [&](const QString& shown) {
        return context.textExtent(shown, Font()).width() <= width;
    };
    if (fits(text))
        return text;
    QString shown;
    for (qsizetype kept = text.size() - 1; kept >= 0; --kept) {
        shown = text.left((kept + 1) / 2) + QStringLiteral("...") + text.right(kept / 2);
        if (fits(shown))
            break;
    }
    return shown;
}

void drawTrendLegend(const FlutterTrend& trend, const QRect& area, DeviceContext& context)
{
    LegendWriter legend(area, context);
    legend.addLevels(trend);
    legend.addGap();
    legend.addGroups(trend);
    legend.addGap();
    legend.addSymbols(trend);
    if (!trend.required.empty())
        legend.addLine({penstyle::solid, 2, legendInk},
                       QStringLiteral("required: ")
                           + QString::fromStdString(trend.requirementName));
}

} // namespace tarsil
