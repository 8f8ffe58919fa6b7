// SPDX-License-Identifier: Apache-2.0
#include "plot/RichTextLayout.h"

#include "rtf/SymbolFont.h"
#include "surface/DrawnFace.h"

#include <algorithm>

namespace tarsil {

namespace {

constexpr int tabStop = 48; // half an inch in pixels

class LineSetter
{
public:
    LineSetter(ColorValue automaticColor, const TextMeasure& measure)
        : m_automaticColor(automaticColor), m_measure(measure)
    { }

    void add(const TextRun& run)
    {
        const bool isSymbols = isSymbolFace(run.format.family);
        Font font = fontOf(run.format);
        if (isSymbols) // few machines have the font; any other font has the symbols
            font.family = Font().family;
        const ColorValue color = run.format.color.value_or(m_automaticColor);
        const std::u16string characters = isSymbols ? ordinarySigns(run.text) : run.text;
        std::u16string_view rest = characters;
        while (!rest.empty()) {
            const std::size_t end = std::min(rest.find_first_of(u"\n\t"), rest.size());
            addPiece(rest.substr(0, end), font, color);
            if (end < rest.size())
                addControl(rest[end], font);
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    RichTextLayout finish(const TextFormat& last)
    {
        if (m_lineHeight == 0)
            grow(fontOf(last));
        endLine();
        m_layout.size = {m_width, m_bottom};
        return std::move(m_layout);
    }

private:
    void addPiece(std::u16string_view characters, const Font& font, ColorValue color)
    {
        if (characters.empty())
            return;
        grow(font);
        const QString text =
            QString::fromUtf16(characters.data(), static_cast<qsizetype>(characters.size()));
        m_layout.pieces.push_back({QPoint(m_x, 0), text, font, color});
        m_x += m_measure.extent(text, font).width();
    }

    void addControl(char16_t control, const Font& font)
    {
        grow(font);
        if (control == u'\t')
            m_x = (m_x / tabStop + 1) * tabStop;
        else
            endLine();
    }

    void grow(const Font& font)
    {
        const int height = m_measure.extent(QStringLiteral("x"), font).height();
        const int ascent = m_measure.ascent(font);
        m_lineHeight = std::max(m_lineHeight, height);
        m_lineAscent = std::max(m_lineAscent, ascent);
        m_lineDescent = std::max(m_lineDescent, height - ascent);
    }

    void endLine()
    {
        if (m_isFirstLine)
            m_baseline = m_lineAscent;
        m_isFirstLine = false;
        for (; m_firstPiece < m_layout.pieces.size(); ++m_firstPiece)
            m_layout.pieces[m_firstPiece].baseline.setY(m_baseline);
        m_width = std::max(m_width, m_x);
        m_bottom = std::max(m_bottom, m_baseline + m_lineDescent);
        m_baseline += m_lineHeight;
        m_x = 0;
        m_lineHeight = 0;
        m_lineAscent = 0;
        m_lineDescent = 0;
    }

    ColorValue m_automaticColor;
    const TextMeasure& m_measure;
    RichTextLayout m_layout;
    std::size_t m_firstPiece = 0; ///< of the line being set
    bool m_isFirstLine = true;
    int m_x = 0;
    int m_baseline = 0;
    int m_lineHeight = 0;
    int m_lineAscent = 0;
    int m_lineDescent = 0;
    int m_width = 0;
    int m_bottom = 0;
};

} // namespace

Font fontOf(const TextFormat& format)
{
    return {drawnFace(QString::fromStdString(format.family)),
            format.points,
            format.bold,
            format.italic,
            format.underline,
            format.strikeOut};
}

RichTextLayout layOutRichText(const RichText& text, ColorValue automaticColor,
                              const TextMeasure& measure)
{
    LineSetter setter(automaticColor, measure);
    for (const TextRun& run : text.runs)
        setter.add(run);
    return setter.finish(text.last);
}

} // namespace tarsil
