// SPDX-License-Identifier: Apache-2.0
#include "report/OdtReport.h"

#include "analysis/ZipArchive.h"
#include "report/OdtStyles.h"
#include "report/OdtXml.h"
#include "report/ReportContent.h"
#include "report/ReportPages.h"
#include "report/ReportText.h"
#include "report/TableColumns.h"
#include "report/WatchedPicture.h"
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

/// Writes the content. Parts of tables are numbered from 1. Each row of a part is a step, and each
/// other block; after a stop the content is incomplete.
class OdtWriter
{
public:
    /// `tables` has the layout of each table, in the order of the content.
    OdtWriter(const ReportContent& content, const std::vector<TableColumns>& tables,
              StepCounter& steps)
        : m_content(content), m_tables(tables), m_steps(steps)
    { }

    /// The part "content.xml".
    std::string body();

    /// The pictures; call after `body`.
    std::vector<ArchivePart> takePictures() { return std::move(m_pictures); }

private:
    void addTableStyles();
    void addTableStyle(const TablePart& part, std::size_t number);
    void addSection(const ReportSection& section, bool isFirst);
    void addBlock(const ReportHeading& heading);
    void addBlock(const ReportParagraph& paragraph);
    void addBlock(const ReportTable& table);
    void addBlock(const ReportPicture& picture);
    void addPart(const ReportTable& table, const TablePart& part, double points);
    void addRow(const ReportTable& table, const TablePart& part, double points, std::size_t row);

    const ReportContent& m_content;
    const std::vector<TableColumns>& m_tables;
    StepCounter& m_steps;
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
    for (const TableColumns& columns : m_tables) {
        for (const TablePart& part : columns.parts)
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
    m_steps.next();
}

void OdtWriter::addBlock(const ReportParagraph& paragraph)
{
    m_xml.add("text:p", {{"text:style-name", paragraphStyle(paragraph.style)}},
              shownText(paragraph.text));
    m_steps.next();
}

void OdtWriter::addRow(const ReportTable& table, const TablePart& part, double points,
                       std::size_t row)
{
    const RowLook look = lookOf(table.cells.rowStyle(row));
    const bool hasHeadings = table.hasHeadings;
    const bool isHeading = row == 1 && hasHeadings;
    m_xml.begin("table:table-row", {{"table:style-name", rowStyle}});
    for (const RowCell& cell : rowCells(table.cells, row, part.columns)) {
        const bool isBold = look.isBold || isHeading || (!hasHeadings && cell.column == 0);
        m_xml.begin("table:table-cell",
                    {{"table:style-name", cellStyle(isHeading ? headingFill : look.fill)},
                     {"table:number-columns-spanned", QString::number(cell.span)},
                     {"office:value-type", QStringLiteral("string")}});
        m_xml.add("text:p",
                  {{"text:style-name", cellTextStyle(points, look.color, isBold, cell.isNumber)}},
                  cell.text);
        m_xml.end();
        for (std::size_t i = 1; i < cell.span; ++i)
            m_xml.add("table:covered-table-cell");
    }
    m_xml.end();
    m_steps.next();
}

void OdtWriter::addPart(const ReportTable& table, const TablePart& part, double points)
{
    const std::size_t number = ++m_partCount;
    m_xml.begin("table:table",
                {{"table:name", tableName(number)}, {"table:style-name", tableName(number)}});
    for (std::size_t i = 0; i < part.columns.size(); ++i)
        m_xml.add("table:table-column", {{"table:style-name", columnName(number, i + 1)}});
    const bool hasHeadings = table.hasHeadings;
    if (hasHeadings) {
        m_xml.begin("table:table-header-rows");
        addRow(table, part, points, 1);
        m_xml.end();
    }
    const std::size_t rows = table.cells.rowCount();
    for (std::size_t row = hasHeadings ? 2 : 1; row <= rows && !m_steps.isStopped(); ++row)
        addRow(table, part, points, row);
    m_xml.end();
}

void OdtWriter::addBlock(const ReportTable& table)
{
    const TableColumns& columns = m_tables[m_nextTable++];
    for (const TablePart& part : columns.parts)
        addPart(table, part, columns.points);
}

void OdtWriter::addBlock(const ReportPicture& picture)
{
    const QString name = QStringLiteral("Pictures/picture%1.svg").arg(m_pictures.size() + 1);
    const WatchedPicture watched(*picture.picture, m_steps);
    m_pictures.push_back(
        {name.toStdString(), pictureBytes(watched, PictureFormat::Svg).toStdString()});
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
    m_steps.next();
}

void OdtWriter::addSection(const ReportSection& section, bool isFirst)
{
    const auto& heading = std::get<ReportHeading>(section.blocks.front());
    m_pageHeading = pageHeadingStyle(heading.level, section.isLandscape, isFirst);
    m_area = paper::contentArea(section.isLandscape).size();
    for (const ReportBlock& block : section.blocks) {
        std::visit([this](const auto& one) { addBlock(one); }, block);
        if (m_steps.isStopped())
            return;
    }
}

std::string OdtWriter::body()
{
    m_xml.begin("office:automatic-styles");
    addContentStyles(m_xml);
    addTableStyles();
    m_xml.end();
    m_xml.begin("office:body");
    m_xml.begin("office:text");
    bool isFirst = true;
    for (const ReportSection& section : m_content.sections) {
        if (!m_steps.isStopped())
            addSection(section, std::exchange(isFirst, false));
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
    constexpr std::size_t parts = 4; // of about the same time
    const auto tables = fitTables(content, partOf(progress, 0, parts, 2));
    if (!tables)
        return std::nullopt;
    const Progress writing = partOf(progress, 2, parts);
    StepCounter steps(writing, stepCount(content, *tables) + 1);
    OdtWriter writer(content, *tables, steps);
    std::string body = writer.body();
    if (steps.isStopped())
        return std::nullopt;
    std::vector<ArchivePart> pictures = writer.takePictures();
    std::vector<ArchivePart> files = {{"mimetype", mimeType, false},
                                      {"META-INF/manifest.xml", manifestOf(pictures)},
                                      {"meta.xml", metaOf(content)},
                                      {"styles.xml", odtStyles(content)},
                                      {"content.xml", std::move(body)}};
    std::move(pictures.begin(), pictures.end(), std::back_inserter(files));
    return zipArchive(files, "OdtReport", partOf(progress, 3, parts));
}

} // namespace tarsil
