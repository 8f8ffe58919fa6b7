// SPDX-License-Identifier: Apache-2.0
#include "rtf/RtfWriter.h"

#include "rtf/RtfBody.h"
#include "rtf/RtfOutput.h"
#include "rtf/RtfStoredValue.h"

#include <string_view>

namespace tarsil {

namespace {

/// The font table. Every entry names its character set, because some readers guess a wrong one.
std::string fontTable(const RtfBody& body, RtfForm form)
{
    std::string table = "{\\fonttbl";
    int number = 0;
    for (const std::string& family : body.families()) {
        table += "{\\f" + std::to_string(number++);
        table += form == RtfForm::Full ? "\\fnil" : "";
        table += RtfBody::isSymbolFamily(family) ? "\\fcharset2" : "\\fcharset0";
        table += rtfFontName(family) + ";}";
    }
    return table + "}";
}

std::string colorTable(const RtfBody& body)
{
    if (body.colors().empty())
        return {};
    // The empty first entry is the automatic colour.
    std::string table = "{\\colortbl ;";
    for (const ColorValue color : body.colors()) {
        table += "\\red" + std::to_string(color & 0xFF);
        table += "\\green" + std::to_string((color >> 8) & 0xFF);
        table += "\\blue" + std::to_string((color >> 16) & 0xFF) + ";";
    }
    return table + "}\r\n";
}

} // namespace

std::string writeRtf(const RichText& text, RtfForm form)
{
    RtfBody body;
    for (const TextRun& run : text.runs)
        body.append(run);
    body.end(text.last);
    std::string rtf = "{\\rtf1\\ansi\\ansicpg1252\\deff0" + fontTable(body, form) + "\r\n";
    rtf += colorTable(body);
    rtf += form == RtfForm::Full ? "\\viewkind4\\uc1\\pard" : "\\pard";
    return rtf + body.text() + "\\par\r\n}\r\n";
}

std::string rtfToStore(const RichText& text)
{
    std::string full = writeRtf(text, RtfForm::Full);
    if (storedValueFromRtf(full).size() <= mostStoredBytes)
        return full;
    return writeRtf(text, RtfForm::Short);
}

} // namespace tarsil
