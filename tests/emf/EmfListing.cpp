// SPDX-License-Identifier: Apache-2.0
#include "emf/EmfListing.h"

#include <array>
#include <cstdio>

namespace tarsil::test {

namespace {

std::string textOf(QPoint point)
{
    return " " + std::to_string(point.x()) + "," + std::to_string(point.y());
}

std::string corners(const QRect& rectangle)
{
    return textOf(rectangle.topLeft()) + textOf(rectangle.bottomRight());
}

std::string number(std::uint32_t value)
{
    return " " + std::to_string(value);
}

/// A colour has red in its low byte and 0 in its high byte.
std::string colorText(std::uint32_t color)
{
    std::array<char, 16> text {};
    std::snprintf(text.data(), text.size(), " #%02x%02x%02x", color & 0xFF, color >> 8 & 0xFF,
                  color >> 16);
    return text.data();
}

std::string penText(const EmfItem& item)
{
    constexpr std::array<const char*, 5> styles = {" solid", " dash", " dot", " dash-dot",
                                                   " dash-dot-dot"};
    return "pen" + number(item.word(8)) + styles.at(item.word(12)) + number(item.word(16))
        + colorText(item.word(24));
}

std::string fontText(const EmfItem& item)
{
    constexpr std::array<const char*, 3> styles = {" italic", " underline", " strikeOut"};
    std::string text = "font" + number(item.word(8)) + " " + std::to_string(item.integer(12))
        + number(item.word(28));
    for (std::size_t i = 0; i < styles.size(); ++i) {
        if (item.byte(32 + i) != 0)
            text += styles[i];
    }
    return text + " charset" + number(item.byte(35)) + " " + item.face().toStdString();
}

std::string polylineText(const EmfItem& item)
{
    std::string text = item.type() == emf::polyline ? "polyline" : "polyline16";
    for (const QPoint point : item.points())
        text += textOf(point);
    return text;
}

std::string shownText(const EmfItem& item)
{
    std::string text = "text" + textOf(item.point(36));
    for (const int advance : item.advances())
        text += " " + std::to_string(advance);
    return text + " " + item.shownText().toStdString();
}

std::string selectionText(std::uint32_t index)
{
    return index >= emf::stockBit ? "select stock" + number(index - emf::stockBit)
                                  : "select" + number(index);
}

std::string lineOf(const EmfItem& item)
{
    switch (item.type()) {
    case emf::saveDc:
        return "save";
    case emf::restoreDc:
        return "restore " + std::to_string(item.integer(8));
    case emf::setBkMode:
        return item.word(8) == 1 ? "background transparent" : "background opaque";
    case emf::setTextAlign:
        return "align" + number(item.word(8));
    case emf::setTextColor:
        return "color" + colorText(item.word(8));
    case emf::moveToEx:
        return "move" + textOf(item.point(8));
    case emf::lineTo:
        return "line" + textOf(item.point(8));
    case emf::extSelectClipRgn:
        return "clip region" + corners(item.rectangle(48));
    case emf::intersectClipRect:
        return "clip intersect" + corners(item.rectangle(8));
    case emf::createPen:
        return penText(item);
    case emf::createBrushIndirect:
        return "brush" + number(item.word(8)) + colorText(item.word(16));
    case emf::extCreateFontIndirectW:
        return fontText(item);
    case emf::selectObject:
        return selectionText(item.word(8));
    case emf::deleteObject:
        return "delete" + number(item.word(8));
    case emf::bitBlt:
        return "fill" + textOf(item.point(24)) + number(item.word(32)) + "x"
            + std::to_string(item.word(36));
    case emf::extTextOutW:
        return shownText(item);
    default:
        return polylineText(item);
    }
}

} // namespace

std::vector<std::string> listingOf(const EmfContents& contents)
{
    std::vector<std::string> lines;
    for (const EmfItem& item : contents.records) {
        if (item.type() != emf::header && item.type() != emf::endOfFile)
            lines.push_back(lineOf(item));
    }
    return lines;
}

std::vector<EmfItem> polylinesOf(const EmfContents& contents)
{
    std::vector<EmfItem> polylines;
    for (const EmfItem& item : contents.records) {
        if (item.type() == emf::polyline || item.type() == emf::polyline16)
            polylines.push_back(item);
    }
    return polylines;
}

} // namespace tarsil::test
