// SPDX-License-Identifier: Apache-2.0
#include "plot/EmfRichTextBox.h"

#include "base/user/RunTimeError.h"
#include "plot/RichTextLayout.h"
#include "rtf/RichTextEdit.h"
#include "rtf/RtfReader.h"
#include "rtf/RtfWriter.h"
#include "surface/PixelMath.h"
#include "surface/TextMetrics.h"

#include <algorithm>

namespace tarsil {

namespace {

bool isBreak(char16_t unit)
{
    return unit == u'\r' || unit == u'\n' || unit == u'\u2028' || unit == u'\u2029';
}

/// The characters of a text with one u'\n' for each break (CR LF, CR, LF or a separator) and
/// without control characters, which files would not keep.
std::u16string plainLines(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    std::u16string plain;
    for (const char16_t unit : text.toStdU16String()) {
        if (isBreak(unit))
            plain += u'\n';
        else if (unit >= u' ' || unit == u'\t')
            plain += unit;
    }
    return plain;
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
    m_changed.add(QStringLiteral("Font"));
    fitToText();
}

void emfRichTextBox::setForeColor(ColorValue color)
{
    m_foreColor = color;
    m_changed.add(QStringLiteral("ForeColor"));
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
    return rtfToStore(m_content);
}

void emfRichTextBox::setTextRTF(std::string_view rtf)
{
    setContent(readRtf(rtf, defaultFormat()));
}

void emfRichTextBox::setContent(RichText content)
{
    m_content = std::move(content);
    select({0, 0});
    m_changed.add(QStringLiteral("Text"));
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

void emfRichTextBox::select(Selection selection)
{
    m_selection = selection;
    m_insertion.reset();
}

void emfRichTextBox::setSelStart(int start)
{
    requireNotNegative(start, "SelStart");
    select({start, 0});
    m_changed.add(QStringLiteral("SelStart"));
}

int emfRichTextBox::SelLength() const
{
    return selection().length;
}

void emfRichTextBox::setSelLength(int length)
{
    requireNotNegative(length, "SelLength");
    select({SelStart(), length});
    m_changed.add(QStringLiteral("SelLength"));
}

QString emfRichTextBox::SelText() const
{
    const Selection selected = selection();
    return Text().mid(selected.start, selected.length);
}

TextRange emfRichTextBox::selectedRange() const
{
    const Selection selected = selection();
    return plainRange(plainText(m_content), static_cast<std::size_t>(selected.start),
                      static_cast<std::size_t>(selected.length));
}

/// Replacing text gets the look of the first replaced character, inserted text that of the
/// character before it.
TextFormat emfRichTextBox::insertionFormat() const
{
    if (m_insertion)
        return *m_insertion;
    const TextRange range = selectedRange();
    const bool isInserted = range.length == 0 && range.position > 0;
    return formatAt(m_content, isInserted ? range.position - 1 : range.position);
}

void emfRichTextBox::setSelText(const QString& text)
{
    const TextRange range = selectedRange();
    const std::u16string characters = plainLines(text);
    replaceText(m_content, range.position, range.length, characters, insertionFormat());
    const std::size_t end = shownPosition(plainText(m_content), range.position + characters.size());
    select({static_cast<int>(end), 0});
    m_changed.add(QStringLiteral("SelText"));
    fitToText();
}

ColorValue emfRichTextBox::SelColor() const
{
    return insertionFormat().color.value_or(m_foreColor);
}

void emfRichTextBox::setSelColor(ColorValue color)
{
    const TextRange range = selectedRange();
    if (range.length == 0) {
        m_insertion = insertionFormat();
        m_insertion->color = color;
    }
    changeFormat(m_content, range.position, range.length,
                 [color](TextFormat& format) { format.color = color; });
    m_changed.add(QStringLiteral("SelColor"));
}

double emfRichTextBox::unitsWidth() const
{
    return Width() * unitsPerPixel;
}

double emfRichTextBox::unitsHeight() const
{
    return Height() * unitsPerPixel;
}

void emfRichTextBox::setUnitsWidth(double width)
{
    m_leastSize.setWidth(roundToPixel(width / unitsPerPixel));
    m_changed.add(QStringLiteral("Width"));
    fitToText();
}

void emfRichTextBox::setUnitsHeight(double height)
{
    m_leastSize.setHeight(roundToPixel(height / unitsPerPixel));
    m_changed.add(QStringLiteral("Height"));
    fitToText();
}

void emfRichTextBox::setUnitsLeft(double left)
{
    Move(left, m_top);
}

void emfRichTextBox::setUnitsTop(double top)
{
    Move(m_left, top);
}

void emfRichTextBox::Move(double left, double top)
{
    m_wasMoved = true;
    m_changed.add(QStringLiteral("Left"));
    m_changed.add(QStringLiteral("Top"));
    place(left, top);
}

void emfRichTextBox::place(double left, double top)
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

emfRichTextBox::State emfRichTextBox::state() const
{
    return {m_content, m_font, m_foreColor, m_wasMoved, m_left, m_top};
}

void emfRichTextBox::setState(const State& state)
{
    m_font = state.font;
    m_foreColor = state.foreColor;
    setContent(state.content);
    m_wasMoved = state.wasMoved;
    place(state.left, state.top);
}

void emfRichTextBox::Clone(const emfRichTextBox& source)
{
    m_leastSize = source.m_leastSize;
    setState(source.state());
    m_selection = source.m_selection;
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
    m_textSize = isEmpty() ? metrics.extent(m_prompt, fontOf(m_content.last))
                           : layOutRichText(m_content, m_foreColor, measure).size;
    const QPoint position(roundToPixel(m_left / unitsPerPixel),
                          roundToPixel(m_top / unitsPerPixel));
    setGeometry({position, m_textSize.expandedTo(m_leastSize)});
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
