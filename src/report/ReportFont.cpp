// SPDX-License-Identifier: Apache-2.0
#include "report/ReportFont.h"

#include "report/WordBreaks.h"

#include <QFontMetricsF>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>

namespace tarsil {

namespace {

constexpr double leading = 1.25; ///< line height in sizes of the font
constexpr double toBaseline = 0.95; ///< its baseline

} // namespace

QFont pageFont(const ReportFont& font)
{
    QFont result(QStringLiteral("Arial"));
    result.setPixelSize(qRound(font.points * pixelsPerPoint));
    result.setBold(font.isBold);
    result.setHintingPreference(QFont::PreferNoHinting);
    result.setKerning(false);
    return result;
}

double widthOf(const QString& text, const ReportFont& font)
{
    return QFontMetricsF(pageFont(font)).horizontalAdvance(text) / pixelsPerPoint;
}

double wordWidthOf(const QString& text, const ReportFont& font)
{
    double widest = 0;
    for (const QString& word : text.split(u' '))
        widest = std::max(widest, widthOf(word, font));
    return widest;
}

double lineHeightOf(const ReportFont& font)
{
    return leading * font.points;
}

double ascentOf(const ReportFont& font)
{
    return toBaseline * font.points;
}

std::vector<QString> wrapped(const QString& text, const ReportFont& font, double width)
{
    const QString breakable = withWordBreaks(text, font, width);
    QTextLayout layout(breakable, pageFont(font));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    std::vector<QString> lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width * pixelsPerPoint);
        QString shown = breakable.mid(line.textStart(), line.textLength());
        lines.push_back(shown.remove(wordBreak).trimmed());
    }
    layout.endLayout();
    if (lines.empty())
        lines.emplace_back();
    return lines;
}

} // namespace tarsil
