#include "analysis/XlsxParts.h"

#include "analysis/Sheet.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>

namespace tarsil {

namespace {

// What a spreadsheet holds at most.
constexpr std::size_t mostRows = 1048576;
constexpr std::size_t mostColumns = 16384;
constexpr std::size_t longestText = 32767; ///< in UTF-16

constexpr const char* contentTypes = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">
<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>
<Default Extension="xml" ContentType="application/xml"/>
<Override PartName="/docProps/app.xml" ContentType="application/vnd.openxmlformats-officedocument.extended-properties+xml"/>
<Override PartName="/docProps/core.xml" ContentType="application/vnd.openxmlformats-package.core-properties+xml"/>
<Override PartName="/xl/workbook.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>
<Override PartName="/xl/styles.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.styles+xml"/>
<Override PartName="/xl/sharedStrings.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sharedStrings+xml"/>
<Override PartName="/xl/worksheets/sheet1.xml" ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.worksheet+xml"/>
</Types>
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

/// A date of its own would make two equal reports differ.
constexpr const char* description = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">
<dc:title>Flutter speeds</dc:title>
<dcterms:created xsi:type="dcterms:W3CDTF">1980-01-01T00:00:00Z</dcterms:created>
<dcterms:modified xsi:type="dcterms:W3CDTF">1980-01-01T00:00:00Z</dcterms:modified>
</cp:coreProperties>
)";

constexpr const char* workbook = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<workbook xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main" xmlns:r="http://schemas.openxmlformats.org/officeDocument/2006/relationships">
<sheets><sheet name="Flutter" sheetId="1" r:id="rId1"/></sheets>
</workbook>
)";

constexpr const char* workbookRelations = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">
<Relationship Id="rId1" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/worksheet" Target="worksheets/sheet1.xml"/>
<Relationship Id="rId2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/styles" Target="styles.xml"/>
<Relationship Id="rId3" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/sharedStrings" Target="sharedStrings.xml"/>
</Relationships>
)";

/// Style 0 is the usual one, style 1 that of the headings.
constexpr const char* styles = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<styleSheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">
<fonts count="2">
<font><sz val="11"/><name val="Calibri"/><family val="2"/></font>
<font><b/><sz val="11"/><name val="Calibri"/><family val="2"/></font>
</fonts>
<fills count="2">
<fill><patternFill patternType="none"/></fill>
<fill><patternFill patternType="gray125"/></fill>
</fills>
<borders count="1"><border><left/><right/><top/><bottom/><diagonal/></border></borders>
<cellStyleXfs count="1"><xf numFmtId="0" fontId="0" fillId="0" borderId="0"/></cellStyleXfs>
<cellXfs count="2">
<xf numFmtId="0" fontId="0" fillId="0" borderId="0" xfId="0"/>
<xf numFmtId="0" fontId="1" fillId="0" borderId="0" xfId="0" applyFont="1"/>
</cellXfs>
<cellStyles count="1"><cellStyle name="Normal" xfId="0" builtinId="0"/></cellStyles>
</styleSheet>
)";

/// The first row stays in sight.
constexpr const char* pageBegin = R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<worksheet xmlns="http://schemas.openxmlformats.org/spreadsheetml/2006/main">
<sheetViews><sheetView tabSelected="1" workbookViewId="0">
<pane ySplit="1" topLeftCell="A2" activePane="bottomLeft" state="frozen"/>
<selection pane="bottomLeft"/>
</sheetView></sheetViews>
<sheetFormatPr defaultRowHeight="15"/>
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
        else if (c == '\r') // which readers of XML take for a line feed otherwise
            xml += "&#13;";
        else
            xml += c;
    }
    return xml + "</t>";
}

/// Wide enough for the content, as long as it is no novel.
double widthOf(const Sheet& sheet, std::size_t column)
{
    constexpr std::size_t narrowest = 8;
    constexpr std::size_t widest = 60;
    constexpr std::size_t widestNumber = 12; // a spreadsheet rounds what it shows
    constexpr double margin = 2;
    std::size_t width = narrowest;
    for (std::size_t row = 1; row <= sheet.rowCount(); ++row) {
        const Sheet::Cell& cell = sheet.cell(row, column);
        std::size_t length = Sheet::textOf(cell).size();
        if (std::holds_alternative<double>(cell))
            length = std::min(length, widestNumber);
        width = std::max(width, std::min(length, widest));
    }
    return static_cast<double>(width) + margin;
}

/// Writes the page with the cells, and gathers the texts that they refer to by position.
class PageWriter
{
public:
    PageWriter(const Sheet& sheet, std::string_view path) : m_sheet(sheet), m_path(path) { }

    std::string page();

    /// Of the page that has been written.
    std::string texts() const;

private:
    std::string columns() const;
    std::string rows();
    std::string cell(std::size_t row, std::size_t column);
    std::size_t positionOf(const std::string& text);
    [[noreturn]] void fail(const char* what) const;

    const Sheet& m_sheet;
    std::string_view m_path;
    std::map<std::string, std::size_t> m_positions;
    std::vector<std::string> m_texts;
    std::size_t m_uses = 0;
};

std::string PageWriter::page()
{
    if (m_sheet.rowCount() > mostRows || m_sheet.columnCount() > mostColumns)
        fail("more rows or columns than a spreadsheet holds");
    return pageBegin + columns() + "<sheetData>" + rows() + "</sheetData></worksheet>\n";
}

std::string PageWriter::columns() const
{
    std::string xml;
    for (std::size_t column = 1; column <= m_sheet.columnCount(); ++column) {
        const std::string number = textOf(column);
        xml.append("<col min=\"").append(number).append("\" max=\"").append(number);
        xml.append("\" width=\"").append(textOf(widthOf(m_sheet, column)));
        xml.append("\" customWidth=\"1\"/>");
    }
    return xml.empty() ? xml : "<cols>" + xml + "</cols>";
}

std::string PageWriter::rows()
{
    std::string xml;
    for (std::size_t row = 1; row <= m_sheet.rowCount(); ++row) {
        xml.append("<row r=\"").append(textOf(row)).append("\">");
        for (std::size_t column = 1; column <= m_sheet.columnCount(); ++column)
            xml.append(cell(row, column));
        xml.append("</row>");
    }
    return xml;
}

std::string PageWriter::cell(std::size_t row, std::size_t column)
{
    const Sheet::Cell& cell = m_sheet.cell(row, column);
    const std::string begin =
        "<c r=\"" + referenceOf(row, column) + (row == 1 ? "\" s=\"1\"" : "\"");
    if (const auto* number = std::get_if<double>(&cell)) {
        if (!std::isfinite(*number)) // the spreadsheet's own value for it
            return begin + " t=\"e\"><v>#NUM!</v></c>";
        return begin + "><v>" + textOf(*number) + "</v></c>";
    }
    const auto* text = std::get_if<std::string>(&cell);
    if (text == nullptr || text->empty())
        return {};
    return begin + " t=\"s\"><v>" + textOf(positionOf(*text)) + "</v></c>";
}

std::size_t PageWriter::positionOf(const std::string& text)
{
    ++m_uses;
    const auto [known, isNew] = m_positions.try_emplace(text, m_texts.size());
    if (isNew) {
        const std::string utf8 = decodeText(text);
        if (utf16FromUtf8(utf8).size() > longestText)
            fail("a text longer than 32767 characters, which no cell holds");
        m_texts.push_back(xlsxText(utf8));
    }
    return known->second;
}

std::string PageWriter::texts() const
{
    std::string xml = textsBegin;
    xml.append(" count=\"").append(textOf(m_uses)).append("\" uniqueCount=\"");
    xml.append(textOf(m_texts.size())).append("\">");
    for (const std::string& text : m_texts)
        xml.append("<si>").append(text).append("</si>");
    return xml + "</sst>\n";
}

void PageWriter::fail(const char* what) const
{
    throw RunTimeError(ErrorNumber::InvalidProcedureCall, "SheetWriter",
                       std::string(m_path) + ": " + what);
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

std::vector<ArchivePart> xlsxParts(const Sheet& sheet, std::string_view path)
{
    PageWriter writer(sheet, path);
    std::string page = writer.page();
    return {{"[Content_Types].xml", contentTypes},
            {"_rels/.rels", packageRelations},
            {"docProps/app.xml", program},
            {"docProps/core.xml", description},
            {"xl/workbook.xml", workbook},
            {"xl/_rels/workbook.xml.rels", workbookRelations},
            {"xl/styles.xml", styles},
            {"xl/sharedStrings.xml", writer.texts()},
            {"xl/worksheets/sheet1.xml", std::move(page)}};
}

} // namespace tarsil
