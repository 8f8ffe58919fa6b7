// SPDX-License-Identifier: Apache-2.0
#include "support/RecordingContext.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>

namespace tarsil::test {

namespace {

std::string textOf(QPoint point)
{
    return std::to_string(point.x()) + "," + std::to_string(point.y());
}

std::string textOf(const QRect& rectangle)
{
    return textOf(rectangle.topLeft()) + " " + std::to_string(rectangle.width()) + "x"
        + std::to_string(rectangle.height());
}

std::string colorText(ColorValue color)
{
    std::array<char, 8> text {};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", static_cast<unsigned>(color & 0xFF),
                  static_cast<unsigned>((color >> 8) & 0xFF),
                  static_cast<unsigned>((color >> 16) & 0xFF));
    return text.data();
}

std::string textOf(const Pen& pen)
{
    constexpr std::array<const char*, 6> names = {"solid",    "dash",         "dot",
                                                  "dash-dot", "dash-dot-dot", "none"};
    const auto index = static_cast<std::size_t>(pen.style);
    const std::string style = index < names.size() ? names[index] : std::to_string(pen.style);
    return style + " " + std::to_string(pen.width) + " " + colorText(pen.color);
}

std::string textOf(const Font& font)
{
    std::string text = font.family.toStdString() + " ";
    std::array<char, 32> points {};
    std::snprintf(points.data(), points.size(), "%.0f", font.points);
    text += points.data();
    if (font.bold)
        text += " bold";
    if (font.italic)
        text += " italic";
    if (font.underline)
        text += " underline";
    if (font.strikeOut)
        text += " strikeOut";
    return text;
}

std::string textOf(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::TopLeft:
        return "TopLeft";
    case TextAlignment::TopRight:
        return "TopRight";
    case TextAlignment::TopCenter:
        return "TopCenter";
    case TextAlignment::BottomCenter:
        return "BottomCenter";
    case TextAlignment::BaselineLeft:
        return "BaselineLeft";
    }
    return std::to_string(static_cast<int>(alignment));
}

/// The upper left corner of a text.
QPoint cornerOf(QPoint reference, QSize extent, TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::TopRight:
        return reference - QPoint(extent.width(), 0);
    case TextAlignment::TopCenter:
        return reference - QPoint(extent.width() / 2, 0);
    case TextAlignment::BottomCenter:
        return reference - QPoint(extent.width() / 2, extent.height());
    case TextAlignment::BaselineLeft:
        return reference - QPoint(0, RecordingContext::ascent);
    case TextAlignment::TopLeft:
        break;
    }
    return reference;
}

} // namespace

std::vector<std::string> RecordingContext::drawingCalls() const
{
    std::vector<std::string> drawing;
    std::copy_if(m_calls.begin(), m_calls.end(), std::back_inserter(drawing),
                 [](const std::string& call) {
                     return !call.starts_with("origin ") && !call.starts_with("clip ");
                 });
    return drawing;
}

std::vector<RecordingContext::Stroke> RecordingContext::strokesFrom(QPoint origin) const
{
    std::vector<Stroke> strokes;
    std::copy_if(m_strokes.begin(), m_strokes.end(), std::back_inserter(strokes),
                 [origin](const Stroke& stroke) { return stroke.origin == origin; });
    return strokes;
}

void RecordingContext::addInk(const QRect& rectangle)
{
    const QRect placed = rectangle.translated(m_origin);
    m_ink |= m_clip ? placed & *m_clip : placed;
}

void RecordingContext::drawLine(QPoint from, QPoint to, const Pen& pen)
{
    m_calls.push_back("line " + textOf(from) + " " + textOf(to) + " " + textOf(pen));
    m_strokes.push_back({m_origin, from + m_origin, to + m_origin});
    const QPoint upperLeft(std::min(from.x(), to.x()), std::min(from.y(), to.y()));
    const QPoint lowerRight(std::max(from.x(), to.x()), std::max(from.y(), to.y()));
    if (pen.style != penstyle::none)
        addInk({upperLeft, lowerRight});
}

void RecordingContext::drawText(QPoint reference, const QString& text, const Font& font,
                                ColorValue color, TextAlignment alignment)
{
    m_calls.push_back("text " + textOf(alignment) + " " + textOf(reference) + " " + textOf(font)
                      + " " + colorText(color) + " " + text.toStdString());
    const QSize extent = textExtent(text, font);
    if (!extent.isEmpty())
        addInk({cornerOf(reference, extent, alignment), QSize(extent.width(), ascent)});
}

QSize RecordingContext::textExtent(const QString& text, const Font& /*font*/) const
{
    return {static_cast<int>(text.size()) * characterWidth, ascent + descent};
}

int RecordingContext::textAscent(const Font& /*font*/) const
{
    return ascent;
}

void RecordingContext::fillRectangle(const QRect& rectangle, ColorValue color)
{
    m_calls.push_back("fill " + textOf(rectangle) + " " + colorText(color));
    addInk(rectangle);
}

void RecordingContext::setClip(const QRect& rectangle)
{
    m_calls.push_back("clip " + textOf(rectangle));
    m_clip = rectangle;
}

void RecordingContext::clearClip()
{
    m_calls.emplace_back("clip none");
    m_clip.reset();
}

void RecordingContext::setOrigin(QPoint origin)
{
    m_calls.push_back("origin " + textOf(origin));
    m_origin = origin;
}

} // namespace tarsil::test
