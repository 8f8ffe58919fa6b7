// SPDX-License-Identifier: Apache-2.0
#include "analysis/SheetWriter.h"

#include "analysis/Sheet.h"
#include "analysis/XlsxWriter.h"
#include "base/files/AtomicFile.h"
#include "base/files/PathNames.h"
#include "base/text/AsciiText.h"
#include "base/text/TextCodec.h"
#include "base/user/RunTimeError.h"

#include <string>

namespace tarsil {

namespace {

std::string lowerCaseExtension(std::string_view path)
{
    return asciiLower(pathText(nativePath(path).extension()));
}

std::string csvField(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos)
        return text;
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"')
            result += c;
        result += c;
    }
    return result + '"';
}

/// Puts an apostrophe before a text that a spreadsheet would run as a formula.
std::string asText(const std::string& text)
{
    constexpr std::string_view beginningsOfFormulas = "=+-@\t\r";
    const bool isFormula =
        !text.empty() && beginningsOfFormulas.find(text.front()) != std::string_view::npos;
    return isFormula ? "'" + text : text;
}

std::string csvCell(const Sheet::Cell& cell)
{
    const auto* const text = std::get_if<std::string>(&cell);
    return text != nullptr ? csvField(asText(*text)) : Sheet::textOf(cell);
}

std::string csvText(const Sheet& sheet)
{
    std::string text;
    for (std::size_t row = 1; row <= sheet.rowCount(); ++row) {
        for (std::size_t column = 1; column <= sheet.columnCount(); ++column) {
            if (column > 1)
                text += ',';
            text += csvCell(sheet.cell(row, column));
        }
        text += "\r\n";
    }
    return text;
}

} // namespace

void writeSheet(const Sheet& sheet, std::string_view path)
{
    const Sheet* const only = &sheet;
    writeSheets({&only, 1}, path);
}

bool writeSheets(std::span<const Sheet* const> sheets, std::string_view path,
                 const Progress& progress)
{
    const std::string extension = lowerCaseExtension(path);
    if (extension == ".xlsx")
        return writeXlsx(sheets, path, progress);
    if (extension != ".csv")
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "SheetWriter",
                           std::string(path) + " ends neither in .xlsx nor in .csv");
    writeFile(path, encodeText(csvText(*sheets.front())));
    return true;
}

} // namespace tarsil
