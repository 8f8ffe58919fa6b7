// SPDX-License-Identifier: Apache-2.0
#include "analysis/XlsxParts.h"

#include "analysis/Sheet.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <map>
#include <utility>

namespace tarsil {

namespace {

// The limits of a spreadsheet.
constexpr std::size_t mostRows = 1048576;
constexpr std::size_t mostColumns = 16384;
constexpr std::size_t longestText = 32767; ///< UTF-16 units

/// Ends after the part of the workbook; the pages follow.
constexpr const char* contentTypesBegin = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">
<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>
<Default Extension="xml" ContentType="application/xml"/>
<Override PartName="/docProps/app.xml" ContentType="application/vnd.openxmlformats-officedocument.extended-properties+xml"/>
<Override PartName="/docProps/core.xml" ContentType="application/vnd.openxmlformats-package.core-properties+xml"/>
<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>
<Override PartName="/xl/styles.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"/>
<Override PartName="/xl/sharedStrings.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml"/>
)";

constexpr const char* packageRelations = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument" Target="xl/workbook.xml"/>
<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties" Target="docProps/core.xml"/>
<Relationship Id="rId3" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/extended-properties" Target="docProps/app.xml"/>
</Relationships>
)";

constexpr const char* program = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties"><Application>Tarsil</Application></Properties>
)";

/// A fixed date, so that equal reports give equal files.
constexpr const char* description = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
<dc:title>Flutter speeds</dc:title>
<dcterms:created xsi:type="dcterms:W3CDTF">1980-01-01T00:00:00Z</dcterms:created>
<dcterms:modified xsi:type="dcterms:W3CDTF">1980-01-01T00:00:00Z</dcterms:modified>
</cp:coreProperties>
)";

constexpr const char* workbookBegin = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">
)";

constexpr const char* workbookRelationsBegin =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
<Relationship Id="styles" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles" Target="styles.xml"/>
<Relationship Id="texts" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings" Target="sharedStrings.xml"/>
)";

/// One style for each `CellStyle`, in their order.
constexpr const char* styles = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">
<fonts count="3">
<font><sz val="11"/><name val="Calibri"/><family val="2"/></font>
<font><b/><sz val="11"/><name val="Calibri"/><family val="2"/></font>
<font><sz val="11"/><color rgb="FF5F5F5F"/><name val="Calibri"/><family val="2"/></font>
</fonts>
<fills count="5">
<fill><patternFill patternType="none"/></fill>
<fill><patternFill patternType="gray125"/></fill>
<fill><patternFill patternType="solid"><fgColor rgb="FFC6EFCE"/></patternFill></fill>
<fill><patternFill patternType="solid"><fgColor rgb="FFFFEB9C"/></patternFill></fill>
<fill><patternFill patternType="solid"><fgColor rgb="FFFFC7CE"/></patternFill></fill>
</fills>
<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>
<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>
<cellXfs count="6">
<xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>
<xf numFmtId="0" fontId="1" fillId="0" borderId="0" xfId="0" applyFont="1"/>
<xf numFmtId="0" fontId="0" fillId="2" borderId="0" xfId="0" applyFill="1"/>
<xf numFmtId="0" fontId="0" fillId="3" borderId="0" xfId="0" applyFill="1"/>
<xf numFmtId="0" fontId="0" fillId="4" borderId="0" xfId="0" applyFill="1"/>
<xf numFmtId="0" fontId="2" fillId="0" borderId="0" xfId="0" applyFont="1"/>
</cellXfs>
<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles>
</styleSheet>
)";

constexpr const char* pageBegin = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">
<sheetPr><pageSetUpPr fitToPage="1"/></sheetPr>
<sheetViews><sheetView )";

constexpr const char* firstPageOnly = R"(tabSelected="1" )";

/// The first row is frozen.
constexpr const char* pageView = R"(workbookViewId="0">
<pane ySplit="1" topLeftCell="A2" activePane="bottomLeft" state="frozen"/>
<selection pane="bottomLeft"/>
</sheetView></sheetViews>
<sheetFormatPr defaultRowHeight="15"/>
)";

/// A printed page is landscape and as wide as the sheet; its foot has the names of file and sheet,
/// the date, and the number of the page.
constexpr const char* pageEnd = R"(
<pageMargins left="0.5" right="0.5" top="0.6" bottom="0.75" header="0.3" footer="0.3"/>
<pageSetup orientation="landscape" fitToHeight="0"/>
<headerFooter><oddFooter>&amp;L&amp;F, &amp;A&amp;C&amp;D&amp;RPage &amp;P of &amp;N</oddFooter></headerFooter>
</worksheet>
)";

constexpr const char* textsBegin = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<sst xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main")";

template <typename Number>
std::string textOf(Number number)
{
    std::array<char, 32> buffer {};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

/// "B3" for row 3, column 2.
std::string referenceOf(std::size_t row, std::size_t column)
{
    std::string letters;
    for (; column > 0; column = (column - 1) / 26)
        letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
    return letters + textOf(row);
}

bool isEscape(std::string_view text)
{
    constexpr std::size_t length = 7; // _x0041_
    return text.size() >= length && text[1] == 'x' && text[length - 1] == '_'
        && text.substr(2, 4).find_first_not_of("0123456789ABCDEFabcdef") == std::string_view::npos;
}

bool fitsIntoXml(char16_t unit)
{
    return unit == u'\t' || unit == u'\n' || unit == u'\r' || (unit >= u' ' && unit < 0xFFFE);
}

std::string textElement(const std::string& text)
{
    std::string xml = "<t xml:space=\"preserve\">";
    for (const char c : text) {
        if (c == '&')
            xml += "&amp;";
        else if (c == '<')
            xml += "&lt;";
        else if (c == '>')
            xml += "&gt;";
        else if (c == '\r') // XML readers would convert it to a line feed
            xml += "&#13;";
        else
            xml += c;
    }
    return xml + "</t>";
}

/// Whether a text extends over the empty cell to its right, which is also how it is printed. In the
/// last column and in the headings it needs a width of its own.
bool extendsBeyond(const Sheet& sheet, std::size_t row, std::size_t column)
{
    return row > 1 && column < sheet.columnCount()
        && std::holds_alternative<std::string>(sheet.cell(row, column))
        && Sheet::textOf(sheet.cell(row, column + 1)).empty();
}

/// Wide enough for the longest cell, up to a limit.
double widthOf(const Sheet& sheet, std::size_t column)
{
    constexpr std::size_t narrowest = 8;
    constexpr std::size_t widest = 60;
    constexpr std::size_t widestNumber = 12; // a spreadsheet rounds the numbers that it shows
    constexpr double margin = 2;
    std::size_t width = narrowest;
    for (std::size_t row = 1; row <= sheet.rowCount(); ++row) {
        if (extendsBeyond(sheet, row, column))
            continue;
        const Sheet::Cell& cell = sheet.cell(row, column);
        std::size_t length = Sheet::textOf(cell).size();
        if (std::holds_alternative<double>(cell))
            length = std::min(length, widestNumber);
        width = std::max(width, std::min(length, widest));
    }
    return static_cast<double>(width) + margin;
}

[[noreturn]] void failWriting(std::string_view path, const char* what)
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "SheetWriter",
                       std::string(path) + ": " + what);
}

/// The texts of a workbook, which the cells of all pages refer to by index.
class SharedTexts
{
public:
    explicit SharedTexts(std::string_view path) : m_path(path) { }

    std::size_t positionOf(const std::string& text);

    /// The string table of all texts so far.
    std::string xml() const;

private:
    std::string_view m_path;
    std::map<std::string, std::size_t> m_positions;
    std::vector<std::string> m_texts;
    std::size_t m_uses = 0;
};

std::size_t SharedTexts::positionOf(const std::string& text)
{
    ++m_uses;
    const auto [known, isNew] = m_positions.try_emplace(text, m_texts.size());
    if (isNew) {
        const std::string utf8 = decodeText(text);
        if (utf16FromUtf8(utf8).size() > longestText)
            failWriting(m_path, "a text longer than 32767 characters, the limit of a cell");
        m_texts.push_back(xlsxText(utf8));
    }
    return known->second;
}

std::string SharedTexts::xml() const
{
    std::string xml = textsBegin;
    xml.append(" count=\"").append(textOf(m_uses)).append("\" uniqueCount=\"");
    xml.append(textOf(m_texts.size())).append("\">");
    for (const std::string& text : m_texts)
        xml.append("<si>").append(text).append("</si>");
    return xml + "</sst>\n";
}

/// Writes a page with its cells. Each column and each row is a step; after a stop the page is
/// incomplete.
class PageWriter
{
public:
    PageWriter(const Sheet& sheet, SharedTexts& texts, StepCounter& steps)
        : m_sheet(sheet), m_texts(texts), m_steps(steps)
    { }

    std::string page(bool isFirst);

private:
    std::string columns() const;
    std::string rows();
    std::string cell(std::size_t row, std::size_t column);

    const Sheet& m_sheet;
    SharedTexts& m_texts;
    StepCounter& m_steps;
};

std::string PageWriter::page(bool isFirst)
{
    return pageBegin + std::string(isFirst ? firstPageOnly : "") + pageView + columns()
        + "<sheetData>" + rows() + "</sheetData>" + pageEnd;
}

std::string PageWriter::columns() const
{
    std::string xml;
    const std::size_t count = m_sheet.columnCount();
    for (std::size_t column = 1; column <= count && !m_steps.isStopped(); ++column) {
        const std::string number = textOf(column);
        xml.append("<col min=\"").append(number).append("\" max=\"").append(number);
        xml.append("\" width=\"").append(textOf(widthOf(m_sheet, column)));
        xml.append("\" customWidth=\"1\"/>");
        m_steps.next();
    }
    return xml.empty() ? xml : "<cols>" + xml + "</cols>";
}

std::string PageWriter::rows()
{
    std::string xml;
    for (std::size_t row = 1; row <= m_sheet.rowCount() && !m_steps.isStopped(); ++row) {
        xml.append("<row r=\"").append(textOf(row)).append("\">");
        for (std::size_t column = 1; column <= m_sheet.columnCount(); ++column)
            xml.append(cell(row, column));
        xml.append("</row>");
        m_steps.next();
    }
    return xml;
}

std::string styleAttribute(CellStyle style)
{
    return style == CellStyle::Plain ? "" : " s=\"" + textOf(static_cast<int>(style)) + "\"";
}

std::string PageWriter::cell(std::size_t row, std::size_t column)
{
    const Sheet::Cell& cell = m_sheet.cell(row, column);
    const std::string begin =
        "<c r=\"" + referenceOf(row, column) + "\"" + styleAttribute(m_sheet.rowStyle(row));
    if (const auto* number = std::get_if<double>(&cell)) {
        if (!std::isfinite(*number)) // what a spreadsheet shows for such a value
            return begin + " t=\"e\"><v>#NUM!</v></c>";
        return begin + "><v>" + textOf(*number) + "</v></c>";
    }
    const auto* text = std::get_if<std::string>(&cell);
    if (text == nullptr || text->empty())
        return {};
    return begin + " t=\"s\"><v>" + textOf(m_texts.positionOf(*text)) + "</v></c>";
}

/// Collects the parts that name the pages.
class WorkbookWriter
{
public:
    void addPage(const Sheet& sheet);

    std::size_t pageCount() const { return m_count; }
    std::string types() const { return contentTypesBegin + m_types + "</Types>\n"; }
    std::string relations() const
    {
        return workbookRelationsBegin + m_relations + "</Relationships>\n";
    }
    std::string workbook() const
    {
        return workbookBegin
            + ("<sheets>" + m_pages + "</sheets>\n<definedNames>" + m_names
               + "</definedNames>\n</workbook>\n");
    }

private:
    std::size_t m_count = 0;
    std::string m_types;
    std::string m_relations;
    std::string m_pages;
    std::string m_names;
};

void WorkbookWriter::addPage(const Sheet& sheet)
{
    // The headings are repeated on each printed page. Sheets are counted from 0 here.
    m_names += "<definedName name=\"_xlnm.Print_Titles\" localSheetId=\"" + textOf(m_count) + "\">'"
        + sheet.title() + "'!$1:$1</definedName>";
    const std::string number = textOf(++m_count);
    m_types += "<Override PartName=\"/xl/worksheets/sheet" + number
        + ".xml\" ContentType=\"application/vnd.openxmlformats-officedocument.spreadsheetml."
          "worksheet+xml\"/>\n";
    m_relations += "<Relationship Id=\"page" + number
        + "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/"
          "worksheet\" Target=\"worksheets/sheet"
        + number + ".xml\"/>\n";
    m_pages += "<sheet name=\"" + sheet.title() + "\" sheetId=\"" + number + "\" r:id=\"page"
        + number + "\"/>";
}

std::size_t stepsOf(std::span<const Sheet* const> sheets)
{
    std::size_t steps = 0;
    for (const Sheet* sheet : sheets)
        steps += sheet->columnCount() + sheet->rowCount();
    return steps;
}

} // namespace

std::string xlsxText(std::string_view utf8)
{
    constexpr char16_t replacement = 0xFFFD;
    std::u16string units = utf16FromUtf8(utf8);
    std::replace_if(
        units.begin(), units.end(), [](char16_t unit) { return !fitsIntoXml(unit); }, replacement);
    const std::string text = utf8FromUtf16(units);
    std::string runs;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '_' || !isEscape({text.data() + i, text.size() - i}))
            continue;
        runs += "<r>" + textElement(text.substr(begin, i + 1 - begin)) + "</r>";
        begin = i + 1;
    }
    const std::string rest = textElement(text.substr(begin));
    return runs.empty() ? rest : runs + "<r>" + rest + "</r>";
}

std::optional<std::vector<ArchivePart>> xlsxParts(std::span<const Sheet* const> sheets,
                                                  std::string_view path, const Progress& progress)
{
    StepCounter steps(progress, stepsOf(sheets) + 1);
    WorkbookWriter workbook;
    SharedTexts texts(path);
    std::vector<ArchivePart> pages;
    for (const Sheet* sheet : sheets) {
        if (sheet->rowCount() > mostRows || sheet->columnCount() > mostColumns)
            failWriting(path, "more rows or columns than a spreadsheet can have");
        workbook.addPage(*sheet);
        pages.push_back({"xl/worksheets/sheet" + textOf(workbook.pageCount()) + ".xml",
                         PageWriter(*sheet, texts, steps).page(pages.empty())});
        if (steps.isStopped())
            return std::nullopt;
    }
    std::vector<ArchivePart> parts = {{"[Content_Types].xml", workbook.types()},
                                      {"_rels/.rels", packageRelations},
                                      {"docProps/app.xml", program},
                                      {"docProps/core.xml", description},
                                      {"xl/workbook.xml", workbook.workbook()},
                                      {"xl/_rels/workbook.xml.rels", workbook.relations()},
                                      {"xl/styles.xml", styles},
                                      {"xl/sharedStrings.xml", texts.xml()}};
    std::move(pages.begin(), pages.end(), std::back_inserter(parts));
    return parts;
}

} // namespace tarsil
