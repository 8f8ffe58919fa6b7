// SPDX-License-Identifier: Apache-2.0
#include "batch/JsonWriter.h"

#include "base/numbers/Numbers.h"
#include "base/text/TextCodec.h"

#include <algorithm>
#include <ostream>

namespace tarsil::batch {

namespace {

std::string escaped(char16_t unit)
{
    switch (unit) {
    case u'"':
        return "\\\"";
    case u'\\':
        return "\\\\";
    case u'\n':
        return "\\n";
    case u'\r':
        return "\\r";
    case u'\t':
        return "\\t";
    default:
        break;
    }
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    std::string text = "\\u";
    for (const unsigned shift : {12U, 8U, 4U, 0U})
        text += hexadecimal[(static_cast<unsigned>(unit) >> shift) & 0xFU];
    return text;
}

/// Whether a unit must be escaped in JSON, or could change a terminal.
bool needsEscape(char16_t unit)
{
    return unit == u'"' || unit == u'\\' || isControlCharacter(unit);
}

} // namespace

void JsonWriter::key(std::string_view name)
{
    text(name);
    m_out << ':';
    m_needsComma = false;
}

void JsonWriter::text(std::string_view value)
{
    separate();
    m_out << '"';
    const std::u16string units = utf16FromUtf8(decodeText(value));
    for (std::u16string_view rest = units; !rest.empty();) {
        const auto plainEnd = std::find_if(rest.begin(), rest.end(), needsEscape);
        const auto plain = static_cast<std::size_t>(plainEnd - rest.begin());
        m_out << utf8FromUtf16(rest.substr(0, plain));
        rest.remove_prefix(plain);
        if (!rest.empty()) {
            m_out << escaped(rest.front());
            rest.remove_prefix(1);
        }
    }
    m_out << '"';
}

void JsonWriter::text(std::string_view name, std::string_view value)
{
    key(name);
    text(value);
}

void JsonWriter::number(std::string_view name, std::string_view digits)
{
    key(name);
    number(digits);
}

void JsonWriter::number(std::string_view name, float value)
{
    number(name, shortestText(value));
}

void JsonWriter::boolean(std::string_view name, bool value)
{
    key(name);
    boolean(value);
}

void JsonWriter::begin(char bracket)
{
    separate();
    m_out << bracket;
    m_needsComma = false;
}

void JsonWriter::end(char bracket)
{
    m_out << bracket;
    m_needsComma = true;
}

void JsonWriter::plain(std::string_view value)
{
    separate();
    m_out << value;
}

void JsonWriter::separate()
{
    if (m_needsComma)
        m_out << ',';
    m_needsComma = true;
}

} // namespace tarsil::batch
