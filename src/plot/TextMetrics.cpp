#include "plot/TextMetrics.h"

#include "plot/PixelMath.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>

namespace tarsil {

namespace {

/// Distance of Qt's tab stops in pixels, where nothing else is asked for.
constexpr int tabStop = 80;
/// Letters larger than any picture, and a text longer than any: so sums of positions stay in range.
constexpr double largestLetters = 10000;
constexpr int longestText = 1 << 26;

int widthOf(const QString& text, const QFontMetrics& metrics)
{
    return std::clamp(metrics.horizontalAdvance(text), 0, longestText);
}

bool endsALine(QChar character)
{
    return character == u'\r' || character == u'\n' || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator;
}

/// The advance of the character that begins at `index`, from the position reached before it.
int advanceAt(const QString& text, qsizetype index, std::int64_t position,
              const QFontMetrics& metrics)
{
    const QChar character = text[index];
    if (endsALine(character))
        return 0;
    if (character == u'\t')
        return static_cast<int>(tabStop - position % tabStop);
    const bool isPair =
        character.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
    return isPair ? metrics.horizontalAdvance(text.mid(index, 2))
                  : metrics.horizontalAdvance(character);
}

/// Shares `width` out in the proportion that the advances have.
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
    return {widthOf(text, metrics), metrics.ascent() + metrics.descent()};
}

int TextMetrics::ascent(const Font& font) const
{
    return metricsOf(font).ascent();
}

std::vector<int> TextMetrics::advances(const QString& text, const Font& font) const
{
    const QFontMetrics& metrics = metricsOf(font);
    std::vector<int> result;
    result.reserve(static_cast<std::size_t>(text.size()));
    std::int64_t position = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isSecondUnit =
            i > 0 && text[i].isLowSurrogate() && text[i - 1].isHighSurrogate();
        result.push_back(isSecondUnit ? 0 : advanceAt(text, i, position, metrics));
        position += result.back();
    }
    stretch(result, widthOf(text, metrics));
    return result;
}

QRect TextMetrics::box(QPoint reference, const QString& text, const Font& font,
                       TextAlignment alignment) const
{
    return textRectangle(reference, extent(text, font), ascent(font), alignment);
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
