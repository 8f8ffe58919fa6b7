// SPDX-License-Identifier: Apache-2.0
#include "workspace/IniText.h"

#include "base/files/TextStream.h"
#include "base/text/AsciiText.h"
#include "base/text/TextCodec.h"
#include "rtf/RtfStoredValue.h"

#include <cstddef>

namespace tarsil {

namespace {

std::string_view withoutQuotes(std::string_view value)
{
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        return value.substr(1, value.size() - 2);
    return value;
}

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The end of the decoded part of a value: the limit, or the start of the character across it.
std::size_t endOfText(std::string_view value)
{
    std::size_t end = mostStoredBytes;
    if (value.size() <= end)
        return value.size();
    if (isUtf8(value)) {
        while (continuesCharacter(value[end]))
            --end;
    }
    return end;
}

} // namespace

IniText::IniText(std::string_view bytes)
{
    TextStream stream(bytes, {});
    Section* current = nullptr;
    while (!stream.atEndOfStream()) {
        const std::string_view text = trimmed(stream.readLine());
        addLine(text, stream.lineNumber(), current);
    }
    m_lines = stream.lineNumber();
}

void IniText::addLine(std::string_view text, std::size_t line, Section*& current)
{
    if (text.starts_with('[')) {
        const std::size_t end = text.find(']');
        if (end != std::string_view::npos) {
            const std::string name = asciiLower(trimmed(text.substr(1, end - 1)));
            current = &m_sections.try_emplace(name, Section {line}).first->second;
        }
        return;
    }
    const std::size_t sign = text.find('=');
    if (current == nullptr || sign == std::string_view::npos)
        return;
    // no effect for an existing key: the first one wins
    current->entries.try_emplace(asciiLower(trimmed(text.substr(0, sign))),
                                 IniEntry {line, withoutQuotes(trimmed(text.substr(sign + 1)))});
}

std::optional<IniEntry> IniText::entry(std::string_view section, std::string_view key) const
{
    const auto found = m_sections.find(asciiLower(section));
    if (found == m_sections.end())
        return std::nullopt;
    const auto& entries = found->second.entries;
    const auto value = entries.find(asciiLower(key));
    return value == entries.end() ? std::nullopt : std::optional(value->second);
}

std::optional<std::size_t> IniText::lineOfSection(std::string_view section) const
{
    const auto found = m_sections.find(asciiLower(section));
    return found == m_sections.end() ? std::nullopt : std::optional(found->second.line);
}

std::optional<std::string_view> IniText::bytes(std::string_view section, std::string_view key) const
{
    const auto found = entry(section, key);
    return found ? std::optional(found->value.substr(0, mostStoredBytes)) : std::nullopt;
}

std::optional<std::string> IniText::text(std::string_view section, std::string_view key) const
{
    const auto found = entry(section, key);
    if (!found)
        return std::nullopt;
    return decodeText(found->value.substr(0, endOfText(found->value)));
}

std::optional<std::string> IniText::fields(std::string_view section, std::string_view key) const
{
    const auto found = entry(section, key);
    if (!found)
        return std::nullopt;
    std::string cut;
    for (std::string_view rest = found->value;;) {
        const std::size_t end = rest.find('\0');
        const std::string_view field = rest.substr(0, end);
        cut.append(field.substr(0, endOfText(field)));
        if (end == std::string_view::npos)
            return decodeText(cut);
        cut += '\0';
        rest.remove_prefix(end + 1);
    }
}

} // namespace tarsil
