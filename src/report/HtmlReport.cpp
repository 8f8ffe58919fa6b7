// SPDX-License-Identifier: Apache-2.0
#include "report/HtmlReport.h"

#include "report/ReportContent.h"
#include "report/ReportText.h"
#include "vgfplot/DrawnPicture.h"
#include "vgfplot/PictureWriter.h"

#include <array>
#include <numeric>
#include <utility>
#include <variant>
#include <vector>

namespace tarsil {

namespace {

const QString styleSheet = QStringLiteral(R"(
body { font-family: Arial, "Liberation Sans", Helvetica, sans-serif; font-size: 10pt; color: #000;
  max-width: 75em; margin: 2em auto; padding: 0 1em; }
h1 { font-size: 24pt; margin: 1em 0 0.4em; }
h2 { font-size: 15pt; margin: 2em 0 0.5em; border-bottom: 1px solid #c4cad1; }
h3 { font-size: 11.5pt; margin: 1.5em 0 0.5em; }
table { border-collapse: collapse; margin: 0.5em 0 1.5em; font-size: 8.5pt; }
th, td { border-bottom: 1px solid #c4cad1; padding: 0.15em 0.5em; text-align: left; vertical-align: top; }
thead th { background: #dde4ec; vertical-align: bottom; }
tbody th { white-space: nowrap; }
td { overflow-wrap: anywhere; }
td.number { text-align: right; white-space: nowrap; overflow-wrap: normal; }
.strong { font-weight: bold; }
.good { background: #c6efce; }
.warning { background: #ffeb9c; }
.bad { background: #ffc7ce; }
.quiet { color: #5f5f5f; }
figure { margin: 1em 0; }
figure svg { max-width: 100%; height: auto; }
figcaption { font-weight: bold; font-size: 9pt; margin-top: 0.5em; }
.wide { overflow-x: auto; }
footer { border-top: 1px solid #c4cad1; color: #5f5f5f; font-size: 8pt; margin-top: 3em; }
@media print {
  @page { size: A4 landscape; margin: 15mm; }
  section { break-before: page; }
  section:first-of-type { break-before: auto; }
  body { max-width: none; margin: 0; }
  table { font-size: 6.5pt; }
  thead { display: table-header-group; }
  tr, figure { break-inside: avoid; }
  .wide { overflow: visible; }
}
)");

/// The class of rows with a style; empty for plain ones.
QString classOf(CellStyle style)
{
    constexpr std::array<std::pair<CellStyle, const char*>, 5> classes = {
        {{CellStyle::Strong, "strong"},
         {CellStyle::Good, "good"},
         {CellStyle::Warning, "warning"},
         {CellStyle::Bad, "bad"},
         {CellStyle::Quiet, "quiet"}}};
    for (const auto& [known, name] : classes) {
        if (known == style)
            return QStringLiteral(" class=\"%1\"").arg(QLatin1String(name));
    }
    return {};
}

std::vector<std::size_t> columnsOf(const Sheet& sheet)
{
    std::vector<std::size_t> columns(sheet.columnCount());
    std::iota(columns.begin(), columns.end(), std::size_t {1});
    return columns;
}

/// Writes blocks as HTML elements.
class HtmlBlocks
{
public:
    void operator()(const ReportHeading& heading);
    void operator()(const ReportParagraph& paragraph);
    void operator()(const ReportTable& table);
    void operator()(const ReportPicture& picture);

    void beginSection() { m_html += QStringLiteral("<section>\n"); }
    void endSection() { m_html += QStringLiteral("</section>\n"); }

    const QString& html() const { return m_html; }

private:
    void addRow(const ReportTable& table, std::size_t row);

    QString m_html;
    int m_pictureCount = 0;
};

void HtmlBlocks::operator()(const ReportHeading& heading)
{
    m_html += QStringLiteral("<h%1>%2</h%1>\n")
                  .arg(QString::number(heading.level + 1), shownText(heading.text).toHtmlEscaped());
}

void HtmlBlocks::operator()(const ReportParagraph& paragraph)
{
    m_html += QStringLiteral("<p%1>%2</p>\n")
                  .arg(classOf(paragraph.style), shownText(paragraph.text).toHtmlEscaped());
}

void HtmlBlocks::addRow(const ReportTable& table, std::size_t row)
{
    const bool isHeading = row == 1 && table.hasHeadings;
    m_html += isHeading ? QStringLiteral("<tr>")
                        : QStringLiteral("<tr%1>").arg(classOf(table.cells.rowStyle(row)));
    for (const RowCell& cell : rowCells(table.cells, row, columnsOf(table.cells))) {
        const bool isLabel = isHeading || (!table.hasHeadings && cell.column == 0);
        const QString element = isLabel ? QStringLiteral("th") : QStringLiteral("td");
        m_html += u'<' + element;
        if (cell.span > 1)
            m_html += QStringLiteral(" colspan=\"%1\"").arg(cell.span);
        if (cell.isNumber)
            m_html += QStringLiteral(" class=\"number\"");
        m_html += u'>' + cell.text.toHtmlEscaped() + QStringLiteral("</") + element + u'>';
    }
    m_html += QStringLiteral("</tr>\n");
}

void HtmlBlocks::operator()(const ReportTable& table)
{
    m_html += QStringLiteral("<div class=\"wide\"><table>\n");
    if (table.hasHeadings) {
        m_html += QStringLiteral("<thead>\n");
        addRow(table, 1);
        m_html += QStringLiteral("</thead>\n");
    }
    m_html += QStringLiteral("<tbody>\n");
    for (std::size_t row = table.hasHeadings ? 2 : 1; row <= table.cells.rowCount(); ++row)
        addRow(table, row);
    m_html += QStringLiteral("</tbody>\n</table></div>\n");
}

/// The picture without the declaration of XML. Its ids get a prefix, because those of all pictures
/// share the page; a quote in a text is escaped, so that only ids are matched.
void HtmlBlocks::operator()(const ReportPicture& picture)
{
    QString svg = QString::fromUtf8(pictureBytes(*picture.picture, PictureFormat::Svg));
    svg.remove(0, svg.indexOf(QStringLiteral("<svg")));
    const QString prefix = QStringLiteral("picture%1-").arg(++m_pictureCount);
    svg.replace(QStringLiteral("id=\"clip"), QStringLiteral("id=\"%1clip").arg(prefix));
    svg.replace(QStringLiteral("clip-path=\"url(#clip"),
                QStringLiteral("clip-path=\"url(#%1clip").arg(prefix));
    m_html += QStringLiteral("<figure>\n") + svg + QStringLiteral("<figcaption>")
        + shownText(picture.caption).toHtmlEscaped() + QStringLiteral("</figcaption>\n</figure>\n");
}

QString head(const ReportContent& content)
{
    const QString title = shownText(content.title + ": " + content.workspace);
    return QStringLiteral("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                          "<meta name=\"generator\" content=\"")
        + shownText(content.program).toHtmlEscaped() + QStringLiteral("\">\n<title>")
        + title.toHtmlEscaped() + QStringLiteral("</title>\n<style>") + styleSheet
        + QStringLiteral("</style>\n</head>\n<body>\n");
}

} // namespace

std::optional<std::string> htmlReport(const ReportContent& content, const Progress& progress)
{
    StepCounter steps(progress, blockCount(content) + 1);
    HtmlBlocks blocks;
    for (const ReportSection& section : content.sections) {
        blocks.beginSection();
        for (const ReportBlock& block : section.blocks) {
            std::visit(blocks, block);
            if (!steps.next())
                return std::nullopt;
        }
        blocks.endSection();
    }
    const QString foot =
        QStringLiteral("<footer><p>%1 &middot; %2</p></footer>\n</body>\n</html>\n")
            .arg(shownText(content.program).toHtmlEscaped(),
                 shownText(content.date).toHtmlEscaped());
    return (head(content) + blocks.html() + foot).toStdString();
}

} // namespace tarsil
