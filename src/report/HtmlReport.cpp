// SPDX-License-Identifier: Apache-2.0
#include "report/HtmlReport.h"

#include "report/ReportContent.h"
#include "report/ReportText.h"
#include "report/WatchedPicture.h"
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

/// Writes blocks as HTML elements. Each row of a table is a step, and each other block; after a
/// stop the page is incomplete.
class HtmlBlocks
{
public:
    explicit HtmlBlocks(StepCounter& steps) : m_steps(steps) { }

    void operator()(const ReportHeading& heading);
    void operator()(const ReportParagraph& paragraph);
    void operator()(const ReportTable& table);
    void operator()(const ReportPicture& picture);

    void beginSection() { m_html += QStringLiteral("<section>\n"); }
    void endSection() { m_html += QStringLiteral("</section>\n"); }

    /// The elements so far, in UTF-8.
    std::string takeBytes();

private:
    void addRow(const ReportTable& table, std::size_t row);
    void endStep();

    StepCounter& m_steps;
    QString m_html; ///< what is not in the bytes yet
    std::string m_bytes;
    int m_pictureCount = 0;
};

void HtmlBlocks::endStep()
{
    m_bytes += m_html.toStdString();
    m_html.clear();
    m_steps.next();
}

std::string HtmlBlocks::takeBytes()
{
    m_bytes += m_html.toStdString();
    return std::move(m_bytes);
}

void HtmlBlocks::operator()(const ReportHeading& heading)
{
    m_html += QStringLiteral("<h%1>%2</h%1>\n")
                  .arg(QString::number(heading.level + 1), shownText(heading.text).toHtmlEscaped());
    endStep();
}

void HtmlBlocks::operator()(const ReportParagraph& paragraph)
{
    m_html += QStringLiteral("<p%1>%2</p>\n")
                  .arg(classOf(paragraph.style), shownText(paragraph.text).toHtmlEscaped());
    endStep();
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
    endStep();
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
    const std::size_t rows = table.cells.rowCount();
    for (std::size_t row = table.hasHeadings ? 2 : 1; row <= rows && !m_steps.isStopped(); ++row)
        addRow(table, row);
    m_html += QStringLiteral("</tbody>\n</table></div>\n");
}

/// The picture without the declaration of XML. Its ids get a prefix, because those of all pictures
/// share the page; a quote in a text is escaped, so that only ids are matched.
void HtmlBlocks::operator()(const ReportPicture& picture)
{
    QString svg = QString::fromUtf8(
        pictureBytes(WatchedPicture(*picture.picture, m_steps), PictureFormat::Svg));
    svg.remove(0, svg.indexOf(QStringLiteral("<svg")));
    const QString prefix = QStringLiteral("picture%1-").arg(++m_pictureCount);
    svg.replace(QStringLiteral("id=\"clip"), QStringLiteral("id=\"%1clip").arg(prefix));
    svg.replace(QStringLiteral("clip-path=\"url(#clip"),
                QStringLiteral("clip-path=\"url(#%1clip").arg(prefix));
    m_html += QStringLiteral("<figure>\n") + svg + QStringLiteral("<figcaption>")
        + shownText(picture.caption).toHtmlEscaped() + QStringLiteral("</figcaption>\n</figure>\n");
    endStep();
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
    StepCounter steps(progress, stepCount(content) + 1);
    HtmlBlocks blocks(steps);
    for (const ReportSection& section : content.sections) {
        blocks.beginSection();
        for (const ReportBlock& block : section.blocks) {
            std::visit(blocks, block);
            if (steps.isStopped())
                return std::nullopt;
        }
        blocks.endSection();
    }
    const QString foot =
        QStringLiteral("<footer><p>%1 &middot; %2</p></footer>\n</body>\n</html>\n")
            .arg(shownText(content.program).toHtmlEscaped(),
                 shownText(content.date).toHtmlEscaped());
    return head(content).toStdString() + blocks.takeBytes() + foot.toStdString();
}

} // namespace tarsil
