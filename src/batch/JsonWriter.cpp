#include "batch/JsonWriter.h"

#include "runtime/Numbers.h"
#include "runtime/TextCodec.h"

#include <ostream>

namespace tarsil::batch {

namespace {

std::string escaped(char c)
{
    constexpr std::string_view hexadecimal = "0123456789abcdef";
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(c);
    if (code >= 0x20)
        return {c};
    return std::string("\\u00") + hexadecimal[code >> 4] + hexadecimal[code & 15];
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
    for (const char c : decodeText(value))
        m_out << escaped(c);
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
