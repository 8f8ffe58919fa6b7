#include "workspace/IniText.h"

#include "runtime/RtfStoredValue.h"
#include "runtime/TextCodec.h"
#include "runtime/TextStream.h"

#include <cstddef>

namespace tarsil {

namespace {

std::string_view withoutBlanks(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view withoutQuotes(std::string_view value)
{
    if (value.size() >= 2 && value.front() == '"' && value.back() == '"')
        return value.substr(1, value.size() - 2);
    return value;
}

/// A name as it is compared: only the letters of ASCII have a case here.
std::string comparable(std::string_view name)
{
    std::string text(name);
    for (char& c : text) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return text;
}

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// Where a value ends that is decoded: at the limit, or before the character that crosses it.
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
    while (!stream.atEndOfStream())
        addLine(withoutBlanks(stream.readLine()), current);
}

void IniText::addLine(std::string_view line, Section*& current)
{
    if (line.starts_with('[')) {
        const std::size_t end = line.find(']');
        if (end != std::string_view::npos)
            current = &m_sections[comparable(withoutBlanks(line.substr(1, end - 1)))];
        return;
    }
    const std::size_t sign = line.find('=');
    if (current == nullptr || sign == std::string_view::npos)
        return;
    // Does nothing where the key is there already: the first one wins.
    current->try_emplace(comparable(withoutBlanks(line.substr(0, sign))),
                         withoutQuotes(withoutBlanks(line.substr(sign + 1))));
}

std::optional<std::string_view> IniText::wholeValue(std::string_view section,
                                                    std::string_view key) const
{
    const auto keys = m_sections.find(comparable(section));
    if (keys == m_sections.end())
        return std::nullopt;
    const auto value = keys->second.find(comparable(key));
    if (value == keys->second.end())
        return std::nullopt;
    return value->second;
}

std::optional<std::string_view> IniText::bytes(std::string_view section, std::string_view key) const
{
    const auto value = wholeValue(section, key);
    return value ? std::optional(value->substr(0, mostStoredBytes)) : std::nullopt;
}

std::optional<std::string> IniText::text(std::string_view section, std::string_view key) const
{
    const auto value = wholeValue(section, key);
    return value ? std::optional(decodeText(value->substr(0, endOfText(*value)))) : std::nullopt;
}

} // namespace tarsil
