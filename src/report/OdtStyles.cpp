// SPDX-License-Identifier: Apache-2.0
#include "report/OdtStyles.h"

#include "report/OdtXml.h"
#include "report/ReportContent.h"
#include "report/ReportPages.h"
#include "report/ReportText.h"
#include "report/TableColumns.h"

#include <array>

namespace tarsil {

namespace {

constexpr int levels = 3;
constexpr double footHeight = 16;
const QString firstPage = QStringLiteral("First");
const QString portrait = QStringLiteral("Portrait");
const QString landscape = QStringLiteral("Landscape");
const QString rowColors[] = {QStringLiteral("#000000"), QStringLiteral("#5f5f5f")};

constexpr std::array<CellStyle, 6> allStyles = {CellStyle::Plain, CellStyle::Strong,
                                                CellStyle::Good,  CellStyle::Warning,
                                                CellStyle::Bad,   CellStyle::Quiet};

QString masterPage(bool isLandscape, bool isFirst)
{
    return isFirst ? firstPage : isLandscape ? landscape : portrait;
}

void addFont(OdtXml& xml, double points, bool isBold, const QString& color)
{
    xml.add("style:text-properties",
            {{"fo:font-size", pointsText(points)},
             {"fo:font-weight", isBold ? QStringLiteral("bold") : QStringLiteral("normal")},
             {"fo:color", color}});
}

void addPageHeading(OdtXml& xml, int level, bool isLandscape, bool isFirst)
{
    xml.add("style:style",
            {{"style:name", pageHeadingStyle(level, isLandscape, isFirst)},
             {"style:family", QStringLiteral("paragraph")},
             {"style:parent-style-name", headingStyle(level)},
             {"style:master-page-name", masterPage(isLandscape, isFirst)}});
}

void addCellText(OdtXml& xml, double points, const QString& color, bool isBold, bool isNumber)
{
    xml.begin("style:style",
              {{"style:name", cellTextStyle(points, color, isBold, isNumber)},
               {"style:family", QStringLiteral("paragraph")},
               {"style:parent-style-name", QStringLiteral("Standard")}});
    xml.add("style:paragraph-properties",
            {{"fo:text-align", isNumber ? QStringLiteral("end") : QStringLiteral("start")},
             {"fo:margin-bottom", pointsText(0)}});
    addFont(xml, points, isBold, color);
    xml.end();
}

/// The styles of the cells of one size and color.
void addCellTexts(OdtXml& xml, double points, const QString& color)
{
    for (const bool isBold : {false, true}) {
        addCellText(xml, points, color, isBold, false);
        addCellText(xml, points, color, isBold, true);
    }
}

void addCell(OdtXml& xml, const QString& fill)
{
    xml.begin("style:style",
              {{"style:name", cellStyle(fill)}, {"style:family", QStringLiteral("table-cell")}});
    xml.add("style:table-cell-properties",
            {{"fo:background-color", fill.isEmpty() ? QStringLiteral("transparent") : fill},
             {"fo:padding-left", pointsText(cellPadding)},
             {"fo:padding-right", pointsText(cellPadding)},
             {"fo:padding-top", pointsText(1)},
             {"fo:padding-bottom", pointsText(1)},
             {"fo:border-bottom", QStringLiteral("0.5pt solid ") + gridColor}});
    xml.end();
}

void addParagraphStyle(OdtXml& xml, const QString& name, const ReportFont& font,
                       const RowLook& look, bool isHeading)
{
    xml.begin("style:style",
              {{"style:name", name},
               {"style:family", QStringLiteral("paragraph")},
               {"style:parent-style-name", QStringLiteral("Standard")}});
    xml.add(
        "style:paragraph-properties",
        {{"fo:margin-top", pointsText(isHeading ? 0.6 * font.points : 0)},
         {"fo:margin-bottom", pointsText(0.4 * font.points)},
         {"fo:keep-with-next", isHeading ? QStringLiteral("always") : QStringLiteral("auto")},
         {"fo:background-color", look.fill.isEmpty() ? QStringLiteral("transparent") : look.fill}});
    addFont(xml, font.points, font.isBold, look.color);
    xml.end();
}

/// A style of head or foot with tabulators in the middle and at the right edge.
void addEdgeStyle(OdtXml& xml, const QString& name, bool isLandscape)
{
    const double width = paper::contentArea(isLandscape).width();
    xml.begin("style:style",
              {{"style:name", name},
               {"style:family", QStringLiteral("paragraph")},
               {"style:parent-style-name", QStringLiteral("Standard")}});
    xml.begin("style:paragraph-properties");
    xml.begin("style:tab-stops");
    xml.add("style:tab-stop",
            {{"style:position", pointsText(width / 2)}, {"style:type", QStringLiteral("center")}});
    xml.add("style:tab-stop",
            {{"style:position", pointsText(width)}, {"style:type", QStringLiteral("right")}});
    xml.end();
    xml.end();
    addFont(xml, 8, false, rowColors[1]);
    xml.end();
}

void addEdgeSize(OdtXml& xml, const char* element, const char* margin, const char* border)
{
    xml.begin(element);
    xml.add("style:header-footer-properties",
            {{"fo:min-height", pointsText(footHeight)},
             {margin, pointsText(8)},
             {border, QStringLiteral("0.5pt solid ") + gridColor}});
    xml.end();
}

void addPageLayout(OdtXml& xml, const QString& name, bool isLandscape, bool hasHead)
{
    const QSizeF size = paper::sizeOf(isLandscape);
    constexpr double edge = 28;
    xml.begin("style:page-layout", {{"style:name", name}});
    xml.add("style:page-layout-properties",
            {{"fo:page-width", pointsText(size.width())},
             {"fo:page-height", pointsText(size.height())},
             {"style:print-orientation",
              isLandscape ? QStringLiteral("landscape") : QStringLiteral("portrait")},
             {"fo:margin-left", pointsText(paper::sideMargin)},
             {"fo:margin-right", pointsText(paper::sideMargin)},
             {"fo:margin-top", pointsText(hasHead ? edge : paper::topMargin)},
             {"fo:margin-bottom", pointsText(edge)}});
    if (hasHead)
        addEdgeSize(xml, "style:header-style", "fo:margin-bottom", "fo:border-bottom");
    addEdgeSize(xml, "style:footer-style", "fo:margin-top", "fo:border-top");
    xml.end();
}

/// Three texts at the left, in the middle and at the right; the last one may be that of the page.
void addMasterPage(OdtXml& xml, const QString& name, const ReportContent& content, bool isLandscape,
                   bool hasHead)
{
    const QString style = isLandscape ? QStringLiteral("EdgeLandscape") : QStringLiteral("Edge");
    const QString next = name == firstPage ? portrait : name;
    xml.begin("style:master-page",
              {{"style:name", name},
               {"style:page-layout-name", QStringLiteral("Layout") + name},
               {"style:next-style-name", next}});
    if (hasHead) {
        xml.begin("style:header");
        xml.begin("text:p", {{"text:style-name", style}});
        xml.addText(shownText(content.workspace));
        xml.add("text:tab");
        xml.add("text:tab");
        xml.addText(shownText(content.title));
        xml.end();
        xml.end();
    }
    xml.begin("style:footer");
    xml.begin("text:p", {{"text:style-name", style}});
    xml.addText(shownText(content.program));
    xml.add("text:tab");
    xml.addText(shownText(content.date));
    xml.add("text:tab");
    xml.addText(QStringLiteral("Page "));
    xml.add("text:page-number", {{"text:select-page", QStringLiteral("current")}},
            QStringLiteral("1"));
    xml.addText(QStringLiteral(" of "));
    xml.add("text:page-count", {}, QStringLiteral("1"));
    xml.end();
    xml.end();
    xml.end();
}

void addNamedStyles(OdtXml& xml)
{
    xml.begin("style:style",
              {{"style:name", QStringLiteral("Standard")},
               {"style:family", QStringLiteral("paragraph")}});
    xml.add("style:text-properties",
            {{"style:font-name", QStringLiteral("Arial")},
             {"fo:font-size", pointsText(bodyFont.points)},
             {"fo:language", QStringLiteral("en")},
             {"fo:country", QStringLiteral("US")}});
    xml.end();
    for (int level = 0; level < levels; ++level)
        addParagraphStyle(xml, headingStyle(level), headingFont(level), lookOf(CellStyle::Plain),
                          true);
    for (const CellStyle style : allStyles)
        addParagraphStyle(xml, paragraphStyle(style), {bodyFont.points, lookOf(style).isBold},
                          lookOf(style), false);
    addParagraphStyle(xml, QStringLiteral("Caption"), captionFont, lookOf(CellStyle::Plain), false);
    addEdgeStyle(xml, QStringLiteral("Edge"), false);
    addEdgeStyle(xml, QStringLiteral("EdgeLandscape"), true);
}

} // namespace

QString headingStyle(int level)
{
    return level == 0 ? QStringLiteral("Title") : QStringLiteral("Heading_20_%1").arg(level);
}

QString pageHeadingStyle(int level, bool isLandscape, bool isFirst)
{
    return QStringLiteral("Begin%1%2").arg(masterPage(isLandscape, isFirst)).arg(level);
}

QString paragraphStyle(CellStyle style)
{
    return QStringLiteral("Text%1").arg(static_cast<int>(style));
}

QString cellTextStyle(double points, const QString& color, bool isBold, bool isNumber)
{
    return QStringLiteral("Cell%1%2%3%4")
        .arg(qRound(10 * points))
        .arg(color == rowColors[0] ? QString() : QStringLiteral("Quiet"),
             isBold ? QStringLiteral("Bold") : QString(),
             isNumber ? QStringLiteral("Number") : QString());
}

QString cellStyle(const QString& fill)
{
    return QStringLiteral("Ground") + fill.mid(1);
}

void addContentStyles(OdtXml& xml)
{
    for (int level = 0; level < levels; ++level) {
        addPageHeading(xml, level, false, true);
        addPageHeading(xml, level, false, false);
        addPageHeading(xml, level, true, false);
    }
    for (const double points : tableFontSizes) {
        for (const QString& color : rowColors)
            addCellTexts(xml, points, color);
    }
    xml.begin("style:style",
              {{"style:name", rowStyle}, {"style:family", QStringLiteral("table-row")}});
    xml.add("style:table-row-properties", {{"fo:keep-together", QStringLiteral("always")}});
    xml.end();
    addCell(xml, {});
    addCell(xml, headingFill);
    for (const CellStyle style : {CellStyle::Good, CellStyle::Warning, CellStyle::Bad})
        addCell(xml, lookOf(style).fill);
}

std::string odtStyles(const ReportContent& content)
{
    OdtXml xml("office:document-styles");
    xml.begin("office:font-face-decls");
    xml.add("style:font-face",
            {{"style:name", QStringLiteral("Arial")},
             {"svg:font-family", QStringLiteral("Arial")},
             {"style:font-family-generic", QStringLiteral("swiss")}});
    xml.end();
    xml.begin("office:styles");
    addNamedStyles(xml);
    xml.end();
    xml.begin("office:automatic-styles");
    addPageLayout(xml, QStringLiteral("Layout") + firstPage, false, false);
    addPageLayout(xml, QStringLiteral("Layout") + portrait, false, true);
    addPageLayout(xml, QStringLiteral("Layout") + landscape, true, true);
    xml.end();
    xml.begin("office:master-styles");
    addMasterPage(xml, firstPage, content, false, false);
    addMasterPage(xml, portrait, content, false, true);
    addMasterPage(xml, landscape, content, true, true);
    xml.end();
    return xml.finish();
}

} // namespace tarsil
