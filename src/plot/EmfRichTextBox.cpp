#include "plot/EmfRichTextBox.h"

#include "plot/PixelMath.h"
#include "plot/RichTextEdit.h"
#include "plot/RichTextLayout.h"
#include "plot/RtfReader.h"
#include "plot/RtfWriter.h"
#include "plot/TextMetrics.h"
#include "runtime/RunTimeError.h"

#include <algorithm>

namespace tarsil {

namespace {

/// The characters of a text whose lines end in CR LF, CR or LF, with one u'\n' for each break.
std::u16string plainLines(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(u'\r', u'\n');
    return text.toStdU16String();
}

void requireNotNegative(int value, const char* what)
{
    if (value < 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "emfRichTextBox",
                           std::string(what) + " " + std::to_string(value));
}

} // namespace

emfRichTextBox::emfRichTextBox()
{
    m_content.last = defaultFormat();
    fitToText();
}

void emfRichTextBox::setFont(const tarsil::Font& font)
{
    m_font = font;
    const auto change = [this](TextFormat& format) {
        const auto color = format.color;
        format = defaultFormat();
        format.color = color;
    };
    changeFormat(m_content, 0, plainText(m_content).size(), change);
    change(m_content.last);
    m_changed.mark(QStringLiteral("Font"));
    fitToText();
}

void emfRichTextBox::setForeColor(ColorValue color)
{
    m_foreColor = color;
    m_changed.mark(QStringLiteral("ForeColor"));
}

QString emfRichTextBox::Text() const
{
    return QString::fromStdU16String(shownText(plainText(m_content)));
}

void emfRichTextBox::setText(const QString& text)
{
    RichText content {{}, defaultFormat()};
    replaceText(content, 0, 0, plainLines(text), defaultFormat());
    setContent(std::move(content));
}

std::string emfRichTextBox::TextRTF() const
{
    return writeRtf(m_content);
}

void emfRichTextBox::setTextRTF(std::string_view rtf)
{
    setContent(readRtf(rtf, defaultFormat()));
}

void emfRichTextBox::setContent(RichText content)
{
    m_content = std::move(content);
    m_selection = {0, 0};
    m_changed.mark(QStringLiteral("Text"));
    fitToText();
}

emfRichTextBox::Selection emfRichTextBox::selection() const
{
    const std::u16string plain = plainText(m_content);
    const int size = static_cast<int>(shownPosition(plain, plain.size()));
    const int start = std::min(m_selection.start, size);
    return {start, std::min(m_selection.length, size - start)};
}

int emfRichTextBox::SelStart() const
{
    return selection().start;
}

void emfRichTextBox::setSelStart(int start)
{
    requireNotNegative(start, "SelStart");
    m_selection = {start, 0};
    m_changed.mark(QStringLiteral("SelStart"));
}

int emfRichTextBox::SelLength() const
{
    return selection().length;
}

void emfRichTextBox::setSelLength(int length)
{
    requireNotNegative(length, "SelLength");
    m_selection = {SelStart(), length};
    m_changed.mark(QStringLiteral("SelLength"));
}

QString emfRichTextBox::SelText() const
{
    const Selection selected = selection();
    return Text().mid(selected.start, selected.length);
}

void emfRichTextBox::setSelText(const QString& text)
{
    const Selection selected = selection();
    const std::u16string plain = plainText(m_content);
    const TextRange range = plainRange(plain, static_cast<std::size_t>(selected.start),
                                       static_cast<std::size_t>(selected.length));
    const bool isAfterText = range.length == 0 && range.position > 0;
    const TextFormat format =
        formatAt(m_content, isAfterText ? range.position - 1 : range.position);
    const std::u16string characters = plainLines(text);
    replaceText(m_content, range.position, range.length, characters, format);
    const std::size_t end = shownPosition(plainText(m_content), range.position + characters.size());
    m_selection = {static_cast<int>(end), 0};
    m_changed.mark(QStringLiteral("SelText"));
    fitToText();
}

ColorValue emfRichTextBox::SelColor() const
{
    const Selection selected = selection();
    const TextRange range =
        plainRange(plainText(m_content), static_cast<std::size_t>(selected.start),
                   static_cast<std::size_t>(selected.length));
    return formatAt(m_content, range.position).color.value_or(m_foreColor);
}

void emfRichTextBox::setSelColor(ColorValue color)
{
    const Selection selected = selection();
    const TextRange range =
        plainRange(plainText(m_content), static_cast<std::size_t>(selected.start),
                   static_cast<std::size_t>(selected.length));
    changeFormat(m_content, range.position, range.length,
                 [color](TextFormat& format) { format.color = color; });
    m_changed.mark(QStringLiteral("SelColor"));
}

double emfRichTextBox::unitsWidth() const
{
    return Width() * unitsPerPixel;
}

double emfRichTextBox::unitsHeight() const
{
    return Height() * unitsPerPixel;
}

void emfRichTextBox::setUnitsSize(double width, double height)
{
    m_leastSize = {roundToPixel(width / unitsPerPixel), roundToPixel(height / unitsPerPixel)};
    fitToText();
}

void emfRichTextBox::Move(double left, double top)
{
    m_left = left;
    m_top = top;
    fitToText();
}

void emfRichTextBox::setPrompt(const QString& prompt)
{
    m_prompt = prompt;
    fitToText();
}

void emfRichTextBox::Clone(const emfRichTextBox& source)
{
    m_font = source.m_font;
    m_foreColor = source.m_foreColor;
    m_leastSize = source.m_leastSize;
    setContent(source.m_content);
    m_selection = source.m_selection;
    Move(source.m_left, source.m_top);
}

TextFormat emfRichTextBox::defaultFormat() const
{
    return {m_font.family.toStdString(),
            m_font.points,
            m_font.bold,
            m_font.italic,
            m_font.underline,
            m_font.strikeOut,
            {}};
}

void emfRichTextBox::fitToText()
{
    const TextMetrics metrics;
    const TextMeasure measure = {
        [&metrics](const QString& text, const tarsil::Font& font) {
            return metrics.extent(text, font);
        },
        [&metrics](const tarsil::Font& font) { return metrics.ascent(font); }};
    QSize size = layOutRichText(m_content, m_foreColor, measure).size;
    if (isEmpty())
        size = metrics.extent(m_prompt, fontOf(m_content.last));
    const QPoint position(roundToPixel(m_left / unitsPerPixel),
                          roundToPixel(m_top / unitsPerPixel));
    setGeometry({position, size.expandedTo(m_leastSize)});
}

void emfRichTextBox::paint(DeviceContext& context) const
{
    const TextMeasure measure = {
        [&context](const QString& text, const tarsil::Font& font) {
            return context.textExtent(text, font);
        },
        [&context](const tarsil::Font& font) { return context.textAscent(font); }};
    for (const TextPiece& piece : layOutRichText(m_content, m_foreColor, measure).pieces)
        context.drawText(piece.baseline, piece.text, piece.font, piece.color,
                         TextAlignment::BaselineLeft);
}

void emfRichTextBox::ReadProperties(const PropertyBag& bag)
{
    m_font = readProperty(bag, QStringLiteral("Font"), tarsil::Font {QStringLiteral("Arial"), 10});
    m_foreColor = readProperty(bag, QStringLiteral("ForeColor"), ColorValue {0});
    setText(readProperty(bag, QStringLiteral("Text"), QString()));
    setSelStart(readProperty(bag, QStringLiteral("SelStart"), 0));
    setSelLength(readProperty(bag, QStringLiteral("SelLength"), 0));
    m_changed.clear();
}

PropertyBag emfRichTextBox::WriteProperties() const
{
    return {{QStringLiteral("Font"), QVariant::fromValue(m_font)},
            {QStringLiteral("ForeColor"), m_foreColor},
            {QStringLiteral("Text"), Text()},
            {QStringLiteral("SelText"), SelText()},
            {QStringLiteral("SelLength"), SelLength()},
            {QStringLiteral("SelStart"), SelStart()}};
}

} // namespace tarsil
