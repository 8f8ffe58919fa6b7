// SPDX-License-Identifier: Apache-2.0
#include "options/SettingsText.h"

#include <QByteArrayView>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view lineEnds = "\r\n";

std::string_view withoutBlanksAndLineEnds(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// Whether a two-character line end, in either order, starts here.
bool isLineEndOfTwo(std::string_view rest)
{
    return rest.starts_with("\r\n") || rest.starts_with("\n\r");
}

/// The extent of a line.
struct Extent
{
    std::size_t begin = 0;
    std::size_t equals = std::string_view::npos; ///< the first "=" outside quotes
    std::size_t end = 0;
    bool isClosed = true; ///< no quote or escape continues after the end
};

/// Scans the line that begins at `begin`, up to a line end or comment outside quotes and escapes.
Extent readLine(std::string_view bytes, std::size_t begin)
{
    Extent line {begin, std::string_view::npos, begin, true};
    bool isQuoted = false;
    bool isEscaped = false;
    std::size_t afterEscapedLineEnd = std::string_view::npos; // the next text continues the line
    for (; line.end < bytes.size(); ++line.end) {
        const char c = bytes[line.end];
        if (isEscaped) {
            isEscaped = false;
            if (isLineEndOfTwo(bytes.substr(line.end)))
                ++line.end;
            if (lineEnds.find(c) != std::string_view::npos)
                afterEscapedLineEnd = line.end + 1;
            continue;
        }
        if (!isQuoted && (c == ';' || lineEnds.find(c) != std::string_view::npos))
            break;
        isEscaped = c == '\\';
        isQuoted = isQuoted != (c == '"');
        if (c == '=' && !isQuoted && line.equals == std::string_view::npos)
            line.equals = line.end;
    }
    line.isClosed = !isQuoted && !isEscaped && line.end != afterEscapedLineEnd;
    return line;
}

bool isHex(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isOctal(char c)
{
    return c >= '0' && c <= '7';
}

/// Letters that stand for a control character after a backslash.
constexpr std::array<std::pair<char, char>, 11> escapes = {{{'a', '\a'},
                                                            {'b', '\b'},
                                                            {'f', '\f'},
                                                            {'n', '\n'},
                                                            {'r', '\r'},
                                                            {'t', '\t'},
                                                            {'v', '\v'},
                                                            {'"', '"'},
                                                            {'?', '?'},
                                                            {'\'', '\''},
                                                            {'\\', '\\'}}};

/// Splits a written value into its texts, which are separated by commas outside quotes.
class ValueReader
{
public:
    explicit ValueReader(std::string_view written) : m_rest(written) { }

    QStringList texts()
    {
        skipBlanks();
        while (!m_rest.empty())
            step();
        endText();
        return m_texts;
    }

private:
    void step()
    {
        const char c = take();
        if (c == '\\')
            readEscape();
        else if (c == '"')
            readQuote();
        else if (c == ',' && !m_inQuotes)
            endText();
        else
            readPlain(c);
    }

    char take()
    {
        const char c = m_rest.front();
        m_rest.remove_prefix(1);
        return c;
    }

    void skipBlanks()
    {
        while (!m_rest.empty() && (m_rest.front() == ' ' || m_rest.front() == '\t'))
            m_rest.remove_prefix(1);
    }

    void readQuote()
    {
        m_wasQuoted = true;
        m_inQuotes = !m_inQuotes;
        if (!m_inQuotes)
            skipBlanks();
    }

    /// Removes blanks at the end unless they are quoted or escaped.
    void endText()
    {
        while (!m_wasQuoted && m_text.size() > m_kept
               && (m_text.back() == u' ' || m_text.back() == u'\t'))
            m_text.chop(1);
        m_texts.append(std::exchange(m_text, {}));
        m_kept = 0;
        m_wasQuoted = false;
        skipBlanks();
    }

    void readPlain(char first)
    {
        const std::size_t length = std::min(m_rest.find_first_of("\\\","), m_rest.size());
        std::string bytes(1, first);
        bytes.append(m_rest.substr(0, length));
        m_rest.remove_prefix(length);
        m_text += QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    }

    void readEscape()
    {
        if (m_rest.empty())
            return;
        const bool isLineEnd = isLineEndOfTwo(m_rest);
        const char c = take();
        const auto known = std::find_if(escapes.begin(), escapes.end(),
                                        [c](const auto& escape) { return escape.first == c; });
        if (known != escapes.end())
            m_text += QLatin1Char(known->second);
        else if (c == 'x')
            readNumber(isHex, 16);
        else if (isOctal(c)) {
            m_rest = {m_rest.data() - 1, m_rest.size() + 1};
            readNumber(isOctal, 8);
        } else if (isLineEnd)
            m_rest.remove_prefix(1);
        m_kept = m_text.size();
    }

    void readNumber(bool (*isDigit)(char), int base)
    {
        std::size_t length = 0;
        while (length < m_rest.size() && isDigit(m_rest[length]))
            ++length;
        if (length > 0)
            m_text += QChar(
                static_cast<char16_t>(QByteArrayView(m_rest.data(), static_cast<qsizetype>(length))
                                          .toUInt(nullptr, base)));
        m_rest.remove_prefix(length);
    }

    std::string_view m_rest;
    QStringList m_texts;
    QString m_text;
    qsizetype m_kept = 0; ///< up to here the text was escaped
    bool m_inQuotes = false;
    bool m_wasQuoted = false;
};

/// A text that begins with "@" is written with a second one, to distinguish it from "@Rect(" etc.
std::optional<QString> plainText(const QString& written)
{
    if (written.startsWith(u"@@"))
        return written.sliced(1);
    if (!written.startsWith(u'@') || !written.endsWith(u')'))
        return written;
    if (written == u"@Invalid()")
        return QString();
    if (written.startsWith(u"@String("))
        return written.sliced(8).chopped(1);
    for (const QStringView kind :
         {u"@ByteArray(", u"@Variant(", u"@DateTime(", u"@Rect(", u"@Size(", u"@Point("}) {
        if (written.startsWith(kind))
            return std::nullopt;
    }
    return written;
}

void appendHex(std::string& result, char16_t character)
{
    result.append("\\x").append(QByteArray::number(character, 16).toStdString());
}

void appendEscaped(std::string& result, QChar character)
{
    const char16_t code = character.unicode();
    const auto known = std::find_if(escapes.begin(), escapes.end(), [code](const auto& escape) {
        return static_cast<char16_t>(escape.second) == code && code != u'?' && code != u'\'';
    });
    if (known != escapes.end())
        result.append({'\\', known->first});
    else
        appendHex(result, code);
}

bool isEscapedAlways(QChar c)
{
    constexpr char16_t byteOrderMark = 0xFEFF;
    return c < u' ' || c == u'"' || c == u'\\' || c == byteOrderMark || c.isSurrogate();
}

/// Escapes a value for the file. A digit after a hexadecimal escape would be read as part of it, so
/// it is escaped too.
std::string writtenValue(const QString& value)
{
    const QString text = value.startsWith(u'@') ? u'@' + value : value;
    std::string result;
    bool afterNumber = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const std::size_t before = result.size();
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            result.append(text.sliced(i++, 2).toStdString());
        else if (afterNumber && c < u'\x7F' && isHex(c.toLatin1()))
            appendHex(result, c.unicode());
        else if (isEscapedAlways(c))
            appendEscaped(result, c);
        else
            result.append(QString(c).toStdString());
        afterNumber = result.compare(before, 2, "\\x") == 0;
    }
    const bool hasBorders = result.starts_with(' ') || result.ends_with(' ');
    return hasBorders || result.find_first_of(";,=") != std::string::npos ? '"' + result + '"'
                                                                          : result;
}

} // namespace

SettingsText::SettingsText(std::string bytes) : m_bytes(std::move(bytes))
{
    split();
}

void SettingsText::split()
{
    m_lines.clear();
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    const std::string_view bytes = m_bytes;
    std::size_t position = bytes.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    while ((position = bytes.find_first_not_of(blanks, position)) != std::string_view::npos) {
        if (bytes[position] == ';') {
            position = std::min(bytes.find_first_of(lineEnds, position), bytes.size());
            continue;
        }
        const Extent line = readLine(bytes, position);
        m_isWhole = m_isWhole && line.isClosed;
        addLine(line.begin, line.equals, line.end);
        position = line.end;
    }
}

void SettingsText::addLine(std::size_t begin, std::size_t equals, std::size_t end)
{
    const std::string_view bytes = m_bytes;
    const std::string_view text = bytes.substr(begin, end - begin);
    Line line {m_lines.empty() ? std::string() : m_lines.back().section, std::nullopt, begin,
               equals, end};
    if (text.starts_with('[')) {
        const std::size_t close = text.find(']');
        m_isWhole = m_isWhole && close != std::string_view::npos;
        line.section = withoutBlanksAndLineEnds(text.substr(1, std::min(close, text.size()) - 1));
    } else if (equals == std::string_view::npos) {
        m_isWhole = false;
        return;
    } else {
        line.key = withoutBlanksAndLineEnds(text.substr(0, equals - begin));
    }
    m_lines.push_back(std::move(line));
    if (m_lines.back().key && !textOf(m_lines.back()))
        m_isWhole = false;
}

const SettingsText::Line* SettingsText::find(std::string_view section, std::string_view key) const
{
    const auto line = std::find_if(m_lines.rbegin(), m_lines.rend(), [&](const Line& one) {
        return one.section == section && one.key == key;
    });
    return line == m_lines.rend() ? nullptr : &*line;
}

const SettingsText::Line* SettingsText::lastOf(std::string_view section) const
{
    const auto line = std::find_if(m_lines.rbegin(), m_lines.rend(),
                                   [&](const Line& one) { return one.section == section; });
    return line == m_lines.rend() ? nullptr : &*line;
}

std::optional<QString> SettingsText::textOf(const Line& line) const
{
    const std::string_view bytes = m_bytes;
    const std::string_view written = bytes.substr(line.equals + 1, line.end - line.equals - 1);
    QStringList texts = ValueReader(written).texts();
    for (QString& text : texts) {
        const std::optional<QString> plain = plainText(text);
        if (!plain)
            return std::nullopt;
        text = *plain;
    }
    return texts.join(u',');
}

std::optional<QString> SettingsText::value(std::string_view section, std::string_view key) const
{
    const Line* const line = find(section, key);
    return line != nullptr ? textOf(*line) : std::nullopt;
}

void SettingsText::setValue(std::string_view section, std::string_view key, const QString& value)
{
    const std::string line = std::string(key) + '=' + writtenValue(value);
    if (const Line* const there = find(section, key)) {
        m_bytes.replace(there->begin, there->end - there->begin, line);
    } else if (const Line* const last = lastOf(section)) {
        m_bytes.insert(last->end, '\n' + line);
    } else {
        if (!m_bytes.empty() && !m_bytes.ends_with('\n'))
            m_bytes += '\n';
        m_bytes.append("[").append(section).append("]\n").append(line).append("\n");
    }
    split();
}

} // namespace tarsil
