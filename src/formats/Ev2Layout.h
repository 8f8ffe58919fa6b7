#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarsil::ev2layout {

constexpr std::string_view processingHeader = "[PROCESSING DATA INFO]";
constexpr std::string_view modelHeader = "[MODEL DATA INFO]";
constexpr std::string_view resultHeader = "[RESULT DATA SUMMARY]";
constexpr std::size_t headingLines = 4;

constexpr std::size_t mostFieldsWithoutFactors = 11;
constexpr std::size_t fieldsOfNarrowRow = 21; ///< factors in every second field from 10 on
constexpr std::size_t fieldsOfWideRow = 26; ///< factors in every third field from 10 on
constexpr std::size_t narrowStep = 2;
constexpr std::size_t wideStep = 3;

/// A key=value line: the text before the first "=", and the text after it.
struct KeyValue
{
    std::string_view key;
    std::string_view value;
};

inline KeyValue splitAtFirstEqual(std::string_view line)
{
    const std::size_t place = line.find('=');
    if (place == std::string_view::npos)
        return {line, {}};
    return {line.substr(0, place), line.substr(place + 1)};
}

/// The index of a list entry: the text between the parentheses of its key. Either parenthesis
/// separates, the second piece counts; none when there is no parenthesis.
inline std::optional<std::string_view> entryKey(std::string_view key)
{
    const std::size_t open = key.find_first_of("()");
    if (open == std::string_view::npos)
        return std::nullopt;
    const std::string_view rest = key.substr(open + 1);
    return rest.substr(0, rest.find_first_of("()"));
}

/// How many fields apart the participation factors of a row of so many fields are; 0: it has none.
constexpr std::size_t factorStep(std::size_t fields)
{
    if (fields == fieldsOfNarrowRow)
        return narrowStep;
    return fields == fieldsOfWideRow ? wideStep : 0;
}

} // namespace tarsil::ev2layout
