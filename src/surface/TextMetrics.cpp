// SPDX-License-Identifier: Apache-2.0
#include "surface/TextMetrics.h"

#include "surface/PixelMath.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace tarsil {

namespace {

/// Limits larger than any picture; they keep sums of positions in range.
constexpr double largestLetters = 10000;
constexpr int longestText = 1 << 26;

int widthOf(const QString& text, const QFontMetrics& metrics)
{
    return std::clamp(metrics.horizontalAdvance(text), 0, longestText);
}

bool isNothing(QChar unit)
{
    return unit.category() == QChar::Other_Control || unit == QChar::LineSeparator
        || unit == QChar::ParagraphSeparator || unit.isNonCharacter();
}

int advanceAt(const QString& text, qsizetype index, const QFontMetrics& metrics)
{
    const bool isPair = text[index].isHighSurrogate();
    return isPair ? metrics.horizontalAdvance(text.mid(index, 2))
                  : metrics.horizontalAdvance(text[index]);
}

/// Scales the advances to a sum of `width`.
void stretch(std::vector<int>& advances, int width)
{
    const auto sum = std::accumulate(advances.begin(), advances.end(), std::int64_t {0});
    if (sum == width || advances.empty())
        return;
    if (sum == 0) {
        advances.front() = width;
        return;
    }
    std::int64_t position = 0;
    std::int64_t written = 0;
    for (int& advance : advances) {
        position += advance;
        advance = static_cast<int>(position * width / sum - written);
        written += advance;
    }
}

} // namespace

QString drawableText(const QString& text)
{
    QString result = text;
    for (qsizetype i = 0; i < result.size(); ++i) {
        const QChar unit = result[i];
        const bool isPair =
            unit.isHighSurrogate() && i + 1 < result.size() && result[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else if (unit.isSurrogate())
            result[i] = QChar::ReplacementCharacter;
        else if (isNothing(unit))
            result[i] = u' ';
    }
    return result;
}

int pixelSize(const Font& font)
{
    const double pixels = pixelsOfPoints(font.points);
    return pixels > 1 ? static_cast<int>(std::lround(std::min(pixels, largestLetters))) : 1;
}

QFont screenFont(const Font& font)
{
    QFont result(font.family);
    result.setPixelSize(pixelSize(font));
    result.setBold(font.bold);
    result.setItalic(font.italic);
    result.setUnderline(font.underline);
    result.setStrikeOut(font.strikeOut);
    result.setHintingPreference(QFont::PreferFullHinting);
    result.setKerning(false);
    return result;
}

TextMetrics::TextMetrics() : m_qtFont(screenFont(m_font)), m_metrics(m_qtFont) { }

const QFont& TextMetrics::qtFont(const Font& font) const
{
    metricsOf(font);
    return m_qtFont;
}

QSize TextMetrics::extent(const QString& text, const Font& font) const
{
    const QFontMetrics& metrics = metricsOf(font);
    return {widthOf(drawableText(text), metrics), metrics.ascent() + metrics.descent()};
}

int TextMetrics::ascent(const Font& font) const
{
    return metricsOf(font).ascent();
}

std::vector<int> TextMetrics::advances(const QString& text, const Font& font) const
{
    const QFontMetrics& metrics = metricsOf(font);
    const QString drawn = drawableText(text);
    std::vector<int> result;
    result.reserve(static_cast<std::size_t>(drawn.size()));
    for (qsizetype i = 0; i < drawn.size(); ++i)
        result.push_back(drawn[i].isLowSurrogate() ? 0 : advanceAt(drawn, i, metrics));
    stretch(result, widthOf(drawn, metrics));
    return result;
}

QRect TextMetrics::box(QPoint reference, const QString& text, const Font& font,
                       TextAlignment alignment) const
{
    return textRectangle(reference, extent(text, font), ascent(font), alignment);
}

QRect TextMetrics::reach(const QRect& box, const Font& font)
{
    const int leaning = 1 + pixelSize(font) / 8;
    return box.adjusted(-leaning, -leaning, leaning, leaning);
}

const QFontMetrics& TextMetrics::metricsOf(const Font& font) const
{
    if (!(font == m_font)) {
        m_font = font;
        m_qtFont = screenFont(font);
        m_metrics = QFontMetrics(m_qtFont);
    }
    return m_metrics;
}

} // namespace tarsil
