// SPDX-License-Identifier: Apache-2.0
#include "report/ReportPages.h"

#include "report/PageFlow.h"
#include "report/ReportText.h"
#include "report/TableColumns.h"
#include "report/TableFlow.h"
#include "vgfplot/DrawnPicture.h"

#include <algorithm>
#include <variant>

namespace tarsil {

namespace {

constexpr double headBaseline = 40;
constexpr double footBaseline = 30; ///< from the lower edge
constexpr double lineWidth = 0.5;
constexpr ReportFont edgeFont {8, false};
const QString black = QStringLiteral("#000000");
const QString grey = QStringLiteral("#5f5f5f");

/// Lays out the blocks of a document. Each row of a table is a step, and each other block; after a
/// stop the last block may be incomplete.
class BlockFlow
{
public:
    /// `tables` has the layout of each table, in the order of the document.
    BlockFlow(const std::vector<TableColumns>& tables, PageFlow& flow, StepCounter& steps)
        : m_nextTable(tables.begin()), m_flow(flow), m_steps(steps)
    { }

    void operator()(const ReportHeading& heading);
    void operator()(const ReportParagraph& paragraph);
    void operator()(const ReportTable& table) { flowTable(table, *m_nextTable++, m_flow, m_steps); }
    void operator()(const ReportPicture& picture);

private:
    void addLines(const QString& text, const ReportFont& font, const QString& color);

    std::vector<TableColumns>::const_iterator m_nextTable;
    PageFlow& m_flow;
    StepCounter& m_steps;
};

void BlockFlow::addLines(const QString& text, const ReportFont& font, const QString& color)
{
    for (const QString& line : wrapped(text, font, m_flow.area().width())) {
        m_flow.require(lineHeightOf(font));
        m_flow.addText(0, m_flow.y(), line, font, color);
        m_flow.skip(lineHeightOf(font));
    }
}

/// A heading stays with what follows it.
void BlockFlow::operator()(const ReportHeading& heading)
{
    constexpr double following = 60;
    const ReportFont font = headingFont(heading.level);
    m_flow.require(2 * lineHeightOf(font) + following);
    if (!m_flow.isAtTop())
        m_flow.skip(0.6 * font.points);
    addLines(shownText(heading.text), font, black);
    m_flow.skip(0.4 * font.points);
    m_steps.next();
}

void BlockFlow::operator()(const ReportParagraph& paragraph)
{
    const RowLook look = lookOf(paragraph.style);
    const ReportFont font {bodyFont.points, look.isBold};
    const QString text = shownText(paragraph.text);
    if (!look.fill.isEmpty()) {
        const auto lines = wrapped(text, font, m_flow.area().width()).size();
        const double height = static_cast<double>(lines) * lineHeightOf(font);
        m_flow.require(height);
        m_flow.addFill({m_flow.area().left(), m_flow.y(), m_flow.area().width(), height},
                       look.fill);
    }
    addLines(text, font, look.color);
    m_flow.skip(0.4 * font.points);
    m_steps.next();
}

void BlockFlow::operator()(const ReportPicture& picture)
{
    const QSizeF size = pictureSize(*picture.picture, m_flow.area().size());
    const double caption = lineHeightOf(captionFont);
    m_flow.require(size.height() + 2 * caption);
    const double left = m_flow.area().left() + (m_flow.area().width() - size.width()) / 2;
    m_flow.page().pictures.push_back({{{left, m_flow.y()}, size}, picture.picture.get()});
    m_flow.skip(size.height() + 0.4 * caption);
    addLines(shownText(picture.caption), captionFont, black);
    m_flow.skip(caption);
    m_steps.next();
}

/// Adds a text at one of the edges of a page: 0 at the left, 1 at the right, 0.5 in the middle.
void addEdgeText(ReportPage& page, double position, double baseline, const QString& text)
{
    const double space = page.size.width() - 2 * paper::sideMargin - widthOf(text, edgeFont);
    page.texts.push_back({{paper::sideMargin + position * space, baseline}, text, edgeFont, grey});
}

void addLine(ReportPage& page, double y)
{
    page.fills.push_back(
        {{paper::sideMargin, y, page.size.width() - 2 * paper::sideMargin, lineWidth}, gridColor});
}

/// A text cut to the space that head and foot have for it.
QString edgeText(const std::string& text)
{
    constexpr qsizetype most = 60;
    const QString whole = shownText(text);
    return whole.size() > most ? whole.left(most) + QChar(0x2026) : whole;
}

void addEdges(std::vector<ReportPage>& pages, const ReportContent& content)
{
    for (std::size_t i = 0; i < pages.size(); ++i) {
        ReportPage& page = pages[i];
        const double foot = page.size.height() - footBaseline;
        if (i > 0) {
            addEdgeText(page, 0, headBaseline, edgeText(content.workspace));
            addEdgeText(page, 1, headBaseline, edgeText(content.title));
            addLine(page, headBaseline + 4);
        }
        addLine(page, foot - 12);
        addEdgeText(page, 0, foot, edgeText(content.program));
        addEdgeText(page, 0.5, foot, edgeText(content.date));
        addEdgeText(page, 1, foot, QStringLiteral("Page %1 of %2").arg(i + 1).arg(pages.size()));
    }
}

} // namespace

QSizeF paper::sizeOf(bool isLandscape)
{
    return isLandscape ? QSizeF(longSide, shortSide) : QSizeF(shortSide, longSide);
}

QRectF paper::contentArea(bool isLandscape)
{
    return QRectF({}, sizeOf(isLandscape))
        .adjusted(sideMargin, topMargin, -sideMargin, -bottomMargin);
}

QSizeF pictureSize(const DrawnPicture& picture, QSizeF area)
{
    constexpr double mostOfHeight = 0.75;
    return QSizeF(picture.size())
        .scaled({area.width(), mostOfHeight * area.height()}, Qt::KeepAspectRatio);
}

ReportFont headingFont(int level)
{
    constexpr std::array<double, 3> sizes = {24, 15, 11.5};
    return {sizes.at(static_cast<std::size_t>(level)), true};
}

std::optional<std::vector<ReportPage>> reportPages(const ReportContent& content,
                                                   const Progress& progress)
{
    const auto tables = fitTables(content, partOf(progress, 0, 2));
    if (!tables)
        return std::nullopt;
    const Progress layout = partOf(progress, 1, 2);
    StepCounter steps(layout, stepCount(content, *tables) + 1);
    PageFlow flow;
    BlockFlow blocks(*tables, flow, steps);
    for (const ReportSection& section : content.sections) {
        flow.beginPage(section.isLandscape);
        for (const ReportBlock& block : section.blocks) {
            std::visit(blocks, block);
            if (steps.isStopped())
                return std::nullopt;
        }
    }
    std::vector<ReportPage> pages = flow.take();
    addEdges(pages, content);
    return pages;
}

} // namespace tarsil
