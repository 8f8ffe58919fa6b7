// SPDX-License-Identifier: Apache-2.0
#include "report/OdtReport.h"

#include "analysis/ZipArchive.h"
#include "report/OdtStyles.h"
#include "report/OdtXml.h"
#include "report/ReportContent.h"
#include "report/ReportPages.h"
#include "report/ReportText.h"
#include "report/TableColumns.h"
#include "surface/PropertyDate.h"
#include "vgfplot/DrawnPicture.h"
#include "vgfplot/PictureWriter.h"

#include <iterator>
#include <numeric>
#include <utility>
#include <variant>
#include <vector>

namespace tarsil {

namespace {

constexpr const char* mimeType = "application/vnd.oasis.opendocument.text";

constexpr const char* manifestBegin = R"(<?xml version="1.0" encoding="UTF-8"?>
<manifest:manifest xmlns:manifest="urn:oasis:names:tc:opendocument:xmlns:manifest:1.0" manifest:version="1.2">
<manifest:file-entry manifest:full-path="/" manifest:version="1.2" manifest:media-type="application/vnd.oasis.opendocument.text"/>
<manifest:file-entry manifest:full-path="content.xml" manifest:media-type="text/xml"/>
<manifest:file-entry manifest:full-path="styles.xml" manifest:media-type="text/xml"/>
<manifest:file-entry manifest:full-path="meta.xml" manifest:media-type="text/xml"/>
)";

QString tableName(std::size_t number)
{
    return QStringLiteral("Table%1").arg(number);
}

QString columnName(std::size_t table, std::size_t column)
{
    return tableName(table) + QStringLiteral(".%1").arg(column);
}

/// A table of the content in one or several parts.
struct OdtTable
{
    const ReportTable* table = nullptr;
    TableColumns columns;
};

/// The tables of the content, in its order.
std::vector<OdtTable> tablesOf(const ReportContent& content)
{
    std::vector<OdtTable> tables;
    for (const ReportSection& section : content.sections) {
        const double width = paper::contentArea(section.isLandscape).width();
        for (const ReportBlock& block : section.blocks) {
            if (const auto* const table = std::get_if<ReportTable>(&block))
                tables.push_back({table, fitColumns(*table, width)});
        }
    }
    return tables;
}

/// Writes the content. Parts of tables are numbered from 1.
class OdtWriter
{
public:
    explicit OdtWriter(const ReportContent& content)
        : m_content(content), m_tables(tablesOf(content))
    { }

    /// The part "content.xml". Each block is a step; after a stop it is incomplete.
    std::string body(StepCounter& steps);

    /// The pictures; call after `body`.
    std::vector<ArchivePart> takePictures() { return std::move(m_pictures); }

private:
    void addTableStyles();
    void addTableStyle(const TablePart& part, std::size_t number);
    void addSection(const ReportSection& section, bool isFirst, StepCounter& steps);
    void addBlock(const ReportHeading& heading);
    void addBlock(const ReportParagraph& paragraph);
    void addBlock(const ReportTable& table);
    void addBlock(const ReportPicture& picture);
    void addPart(const OdtTable& table, const TablePart& part);
    void addRow(const OdtTable& table, const TablePart& part, std::size_t row);

    const ReportContent& m_content;
    std::vector<OdtTable> m_tables;
    std::size_t m_nextTable = 0;
    std::size_t m_partCount = 0;
    std::vector<ArchivePart> m_pictures;
    OdtXml m_xml {"office:document-content"};
    QString m_pageHeading; ///< the style of the next heading when it begins a page
    QSizeF m_area; ///< of the pages of the section
};

void OdtWriter::addTableStyle(const TablePart& part, std::size_t number)
{
    const double width = std::accumulate(part.widths.begin(), part.widths.end(), 0.0);
    m_xml.begin("style:style",
                {{"style:name", tableName(number)}, {"style:family", QStringLiteral("table")}});
    m_xml.add("style:table-properties",
              {{"style:width", pointsText(width)},
               {"table:align", QStringLiteral("left")},
               {"fo:margin-bottom", pointsText(10)},
               {"table:border-model", QStringLiteral("collapsing")}});
    m_xml.end();
    for (std::size_t i = 0; i < part.widths.size(); ++i) {
        m_xml.begin("style:style",
                    {{"style:name", columnName(number, i + 1)},
                     {"style:family", QStringLiteral("table-column")}});
        m_xml.add("style:table-column-properties",
                  {{"style:column-width", pointsText(part.widths[i])}});
        m_xml.end();
    }
}

void OdtWriter::addTableStyles()
{
    std::size_t number = 0;
    for (const OdtTable& table : m_tables) {
        for (const TablePart& part : table.columns.parts)
            addTableStyle(part, ++number);
    }
}

void OdtWriter::addBlock(const ReportHeading& heading)
{
    const QString style = m_pageHeading.isEmpty() ? headingStyle(heading.level) : m_pageHeading;
    m_pageHeading.clear();
    const QString text = shownText(heading.text);
    if (heading.level == 0)
        m_xml.add("text:p", {{"text:style-name", style}}, text);
    else
        m_xml.add(
            "text:h",
            {{"text:style-name", style}, {"text:outline-level", QString::number(heading.level)}},
            text);
}

void OdtWriter::addBlock(const ReportParagraph& paragraph)
{
    m_xml.add("text:p", {{"text:style-name", paragraphStyle(paragraph.style)}},
              shownText(paragraph.text));
}

void OdtWriter::addRow(const OdtTable& table, const TablePart& part, std::size_t row)
{
    const RowLook look = lookOf(table.table->cells.rowStyle(row));
    const bool hasHeadings = table.table->hasHeadings;
    const bool isHeading = row == 1 && hasHeadings;
    m_xml.begin("table:table-row", {{"table:style-name", rowStyle}});
    for (const RowCell& cell : rowCells(table.table->cells, row, part.columns)) {
        const bool isBold = look.isBold || isHeading || (!hasHeadings && cell.column == 0);
        m_xml.begin("table:table-cell",
                    {{"table:style-name", cellStyle(isHeading ? headingFill : look.fill)},
                     {"table:number-columns-spanned", QString::number(cell.span)},
                     {"office:value-type", QStringLiteral("string")}});
        m_xml.add("text:p",
                  {{"text:style-name",
                    cellTextStyle(table.columns.points, look.color, isBold, cell.isNumber)}},
                  cell.text);
        m_xml.end();
        for (std::size_t i = 1; i < cell.span; ++i)
            m_xml.add("table:covered-table-cell");
    }
    m_xml.end();
}

void OdtWriter::addPart(const OdtTable& table, const TablePart& part)
{
    const std::size_t number = ++m_partCount;
    m_xml.begin("table:table",
                {{"table:name", tableName(number)}, {"table:style-name", tableName(number)}});
    for (std::size_t i = 0; i < part.columns.size(); ++i)
        m_xml.add("table:table-column", {{"table:style-name", columnName(number, i + 1)}});
    const bool hasHeadings = table.table->hasHeadings;
    if (hasHeadings) {
        m_xml.begin("table:table-header-rows");
        addRow(table, part, 1);
        m_xml.end();
    }
    for (std::size_t row = hasHeadings ? 2 : 1; row <= table.table->cells.rowCount(); ++row)
        addRow(table, part, row);
    m_xml.end();
}

void OdtWriter::addBlock(const ReportTable& /*table*/)
{
    const OdtTable& table = m_tables[m_nextTable++];
    for (const TablePart& part : table.columns.parts)
        addPart(table, part);
}

void OdtWriter::addBlock(const ReportPicture& picture)
{
    const QString name = QStringLiteral("Pictures/picture%1.svg").arg(m_pictures.size() + 1);
    m_pictures.push_back(
        {name.toStdString(), pictureBytes(*picture.picture, PictureFormat::Svg).toStdString()});
    const QSizeF size = pictureSize(*picture.picture, m_area);
    const QString caption = shownText(picture.caption);
    m_xml.begin("text:p", {{"text:style-name", paragraphStyle(CellStyle::Plain)}});
    m_xml.begin("draw:frame",
                {{"draw:name", QStringLiteral("Picture%1").arg(m_pictures.size())},
                 {"text:anchor-type", QStringLiteral("as-char")},
                 {"svg:width", pointsText(size.width())},
                 {"svg:height", pointsText(size.height())}});
    m_xml.add("draw:image",
              {{"xlink:href", name},
               {"xlink:type", QStringLiteral("simple")},
               {"xlink:show", QStringLiteral("embed")},
               {"xlink:actuate", QStringLiteral("onLoad")}});
    m_xml.add("svg:title", {}, caption);
    m_xml.end();
    m_xml.end();
    m_xml.add("text:p", {{"text:style-name", QStringLiteral("Caption")}}, caption);
}

void OdtWriter::addSection(const ReportSection& section, bool isFirst, StepCounter& steps)
{
    const auto& heading = std::get<ReportHeading>(section.blocks.front());
    m_pageHeading = pageHeadingStyle(heading.level, section.isLandscape, isFirst);
    m_area = paper::contentArea(section.isLandscape).size();
    for (const ReportBlock& block : section.blocks) {
        std::visit([this](const auto& one) { addBlock(one); }, block);
        if (!steps.next())
            return;
    }
}

std::string OdtWriter::body(StepCounter& steps)
{
    m_xml.begin("office:automatic-styles");
    addContentStyles(m_xml);
    addTableStyles();
    m_xml.end();
    m_xml.begin("office:body");
    m_xml.begin("office:text");
    bool isFirst = true;
    for (const ReportSection& section : m_content.sections) {
        if (!steps.isStopped())
            addSection(section, std::exchange(isFirst, false), steps);
    }
    return m_xml.finish();
}

std::string metaOf(const ReportContent& content)
{
    const QString date = propertyDate(QString::fromStdString(content.date))
                             .toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss"));
    OdtXml xml("office:document-meta");
    xml.begin("office:meta");
    xml.add("meta:generator", {}, shownText(content.program));
    xml.add("dc:title", {}, shownText(content.title + ": " + content.workspace));
    xml.add("meta:creation-date", {}, date);
    xml.add("dc:date", {}, date);
    return xml.finish();
}

std::string manifestOf(const std::vector<ArchivePart>& pictures)
{
    std::string manifest = manifestBegin;
    for (const ArchivePart& picture : pictures)
        manifest += "<manifest:file-entry manifest:full-path=\"" + picture.name
            + "\" manifest:media-type=\"image/svg+xml\"/>\n";
    return manifest + "</manifest:manifest>\n";
}

} // namespace

std::optional<std::string> odtReport(const ReportContent& content, const Progress& progress)
{
    StepCounter steps(progress, blockCount(content) + 1);
    OdtWriter writer(content);
    std::string body = writer.body(steps);
    if (steps.isStopped())
        return std::nullopt;
    std::vector<ArchivePart> pictures = writer.takePictures();
    std::vector<ArchivePart> parts = {{"mimetype", mimeType, false},
                                      {"META-INF/manifest.xml", manifestOf(pictures)},
                                      {"meta.xml", metaOf(content)},
                                      {"styles.xml", odtStyles(content)},
                                      {"content.xml", std::move(body)}};
    std::move(pictures.begin(), pictures.end(), std::back_inserter(parts));
    return zipArchive(parts, "OdtReport");
}

} // namespace tarsil
