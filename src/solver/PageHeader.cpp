// SPDX-License-Identifier: Apache-2.0
#include "solver/PageHeader.h"

#include "base/text/TextCodec.h"
#include "solver/RowText.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace tarsil::solver {

namespace {

constexpr std::string_view blanks = " \t";

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The text of a line without its carriage control in column 1.
std::string_view withoutCarriageControl(std::string_view line)
{
    return line.empty() ? line : line.substr(1);
}

/// The end of a line "SUBCASE 12" or "SUBCASE = 12": the position of the word, and the number.
struct SubcaseEnd
{
    std::size_t position;
    std::string_view number;
};

std::optional<SubcaseEnd> subcaseEnd(std::string_view line)
{
    constexpr std::string_view word = "SUBCASE";
    const std::string_view text = line.substr(0, line.find_last_not_of(blanks) + 1);
    const std::size_t position = text.rfind(word);
    if (position == std::string_view::npos)
        return std::nullopt;
    std::string_view rest = trimmed(text.substr(position + word.size()));
    if (!rest.empty() && rest.front() == '=')
        rest = trimmed(rest.substr(1));
    if (rest.empty() || !std::all_of(rest.begin(), rest.end(), isDigit))
        return std::nullopt;
    return SubcaseEnd {position, rest};
}

constexpr std::array<std::string_view, 12> months = {"JAN", "FEB", "MAR", "APR", "MAY", "JUN",
                                                     "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};

bool isLetter(char c)
{
    return std::isalpha(static_cast<unsigned char>(c)) != 0;
}

/// The end of a date like "MARCH  23, 2022" at a position; npos when there is none.
std::size_t endOfDate(std::string_view text, std::size_t position)
{
    const auto skip = [&text](std::size_t from, auto isPart) {
        while (from < text.size() && isPart(text[from]))
            ++from;
        return from;
    };
    const auto isBlank = [](char c) { return c == ' '; };
    const std::size_t day = skip(skip(position, isLetter), isBlank);
    const std::size_t comma = skip(day, isDigit);
    if (comma == day || comma >= text.size() || text[comma] != ',')
        return std::string_view::npos;
    const std::size_t year = skip(comma + 1, isBlank);
    const std::size_t end = skip(year, isDigit);
    return end == year ? std::string_view::npos : end;
}

struct DateRange
{
    std::size_t first;
    std::size_t end;
};

/// The last date in a text.
std::optional<DateRange> dateIn(std::string_view text)
{
    for (std::size_t i = text.size(); i-- > 0;) {
        const bool startsWord = isLetter(text[i]) && (i == 0 || !isLetter(text[i - 1]));
        if (!startsWord
            || std::find(months.begin(), months.end(), text.substr(i, 3)) == months.end())
            continue;
        if (const std::size_t end = endOfDate(text, i); end != std::string_view::npos)
            return DateRange {i, end};
    }
    return std::nullopt;
}

std::string_view withoutSlashes(std::string_view text)
{
    constexpr std::string_view around = " \t/";
    const std::size_t first = text.find_first_not_of(around);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(around) - first + 1);
}

/// Parses the first line of a page: title, date, solver, page; or title / solver / date / page.
void readFirstLine(std::string_view line, SummaryTable& table)
{
    std::string_view text = withoutCarriageControl(line);
    const std::size_t page = text.rfind("PAGE");
    if (page != std::string_view::npos)
        text = text.substr(0, page);
    const std::optional<DateRange> date = dateIn(text);
    if (!date) {
        table.title = decodeText(trimmed(text));
        return;
    }
    table.date = decodeText(text.substr(date->first, date->end - date->first));
    std::string_view title = text.substr(0, date->first);
    std::string_view banner = withoutSlashes(text.substr(date->end));
    if (banner.empty()) {
        const std::string_view before = withoutSlashes(title);
        const std::size_t slash = before.find('/');
        if (slash != std::string_view::npos) {
            banner = withoutSlashes(before.substr(slash));
            title = before.substr(0, slash);
        }
    }
    table.title = decodeText(trimmed(title));
    table.banner = decodeText(banner);
}

std::string labelOf(std::string_view line)
{
    const std::optional<SubcaseEnd> subcase = subcaseEnd(line);
    const std::string_view text = subcase ? line.substr(0, subcase->position) : line;
    return decodeText(trimmed(withoutCarriageControl(text)));
}

/// The text after "NAME =" in a line; empty when the line has none.
std::optional<std::string_view> valueAfter(std::string_view line, std::string_view name)
{
    for (std::size_t i = line.find(name); i != std::string_view::npos; i = line.find(name, i + 1)) {
        std::string_view rest = trimmed(line.substr(i + name.size()));
        if (rest.empty() || rest.front() != '=')
            continue;
        rest = trimmed(rest.substr(1));
        return rest.substr(0, rest.find_first_of(blanks));
    }
    return std::nullopt;
}

std::optional<double> numberAfter(std::string_view line, std::string_view name)
{
    const std::optional<std::string_view> text = valueAfter(line, name);
    double value = 0;
    if (!text || !parsePrintedNumber(*text, value))
        return std::nullopt;
    return value;
}

} // namespace

bool isSummaryTitle(std::string_view line)
{
    return line.substr(0, line.find_last_not_of(blanks) + 1).ends_with(summaryTitle);
}

void readPageHeader(const LinesAbove& lines, SummaryTable& table)
{
    for (const std::string_view line : lines) {
        if (const std::optional<SubcaseEnd> subcase = subcaseEnd(line))
            table.key.subcase = std::string(subcase->number);
    }
    const auto first = std::find_if(lines.rbegin(), lines.rend(), [](std::string_view line) {
        return !line.empty() && line.front() == '1';
    });
    if (first == lines.rend())
        return;
    readFirstLine(*first, table);
    const auto after = static_cast<std::size_t>(first - lines.rbegin());
    if (after >= 1)
        table.subtitle =
            decodeText(trimmed(withoutCarriageControl(lines[linesAboveTitle - after])));
    if (after >= 2)
        table.label = labelOf(lines[linesAboveTitle - after + 1]);
}

bool readPointLine(std::string_view line, SummaryTable& table)
{
    const std::optional<std::string_view> pointText = valueAfter(line, "POINT");
    const std::optional<std::string_view> method = valueAfter(line, "METHOD");
    if (!pointText || !method || method->empty())
        return false;
    std::int32_t point = 0;
    const char* const end = pointText->data() + pointText->size();
    const auto [stop, error] = std::from_chars(pointText->data(), end, point);
    if (error != std::errc() || stop != end)
        return false;
    table.point = point;
    table.key.method = std::string(*method);
    table.key.mach = numberAfter(line, "MACH NUMBER");
    table.key.sigmaValue = numberAfter(line, "SIGMA VALUE");
    table.key.densityRatio = numberAfter(line, "DENSITY RATIO");
    return true;
}

} // namespace tarsil::solver
