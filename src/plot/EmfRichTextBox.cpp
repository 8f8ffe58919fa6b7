#include "plot/EmfRichTextBox.h"

#include "plot/PainterContext.h"
#include "plot/PixelMath.h"

#include <QFontMetrics>
#include <QStringList>

#include <algorithm>

namespace tarsil {

namespace {

const QString lineBreak = QStringLiteral("\r\n");

QString withLineBreaks(QString text)
{
    text.replace(lineBreak, QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    return text.replace(u'\n', lineBreak);
}

} // namespace

void emfRichTextBox::setText(const QString& text)
{
    m_text = withLineBreaks(text);
    fitToText();
}

void emfRichTextBox::setFont(const tarsil::Font& font)
{
    m_font = font;
    fitToText();
}

void emfRichTextBox::setForeColor(ColorValue color)
{
    m_foreColor = color;
}

void emfRichTextBox::Move(double left, double top)
{
    m_left = left;
    m_top = top;
    fitToText();
}

void emfRichTextBox::Clone(const emfRichTextBox& source)
{
    m_text = source.m_text;
    m_font = source.m_font;
    m_foreColor = source.m_foreColor;
    Move(source.m_left, source.m_top);
}

void emfRichTextBox::setMinimumWidth(int pixels)
{
    m_minimumWidth = pixels;
    fitToText();
}

void emfRichTextBox::fitToText()
{
    const QFontMetrics metrics(screenFont(m_font));
    const QStringList lines = (m_text.isEmpty() ? m_prompt : m_text).split(lineBreak);
    int width = m_minimumWidth;
    for (const QString& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const int height = static_cast<int>(lines.size()) * (metrics.ascent() + metrics.descent());
    const QPoint position(roundToPixel(m_left / unitsPerPixel),
                          roundToPixel(m_top / unitsPerPixel));
    setGeometry({position, QSize(width, height)});
}

void emfRichTextBox::paint(DeviceContext& context) const
{
    // The first baseline stands one ascent below the upper edge, so that the line is seen whole.
    QPoint baseline(0, context.textAscent(m_font));
    for (const QString& line : m_text.split(lineBreak)) {
        context.drawText(baseline, line, m_font, m_foreColor, TextAlignment::BaselineLeft);
        baseline.ry() += context.textExtent(line, m_font).height();
    }
}

} // namespace tarsil
