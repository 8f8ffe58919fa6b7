// SPDX-License-Identifier: Apache-2.0
#include "solver/RowText.h"

#include "base/numbers/Numbers.h"
#include "base/text/QuotedText.h"

#include <array>

namespace tarsil::solver {

namespace {

constexpr std::size_t mostFields = numbersOfRowWithDensity + 1;

struct Fields
{
    std::array<std::string_view, mostFields> texts;
    std::size_t count = 0; ///< up to `mostFields`, which no row has
};

Fields splitAtBlanks(std::string_view line)
{
    Fields fields;
    std::size_t position = line.find_first_not_of(' ');
    while (position != std::string_view::npos && fields.count < mostFields) {
        const std::size_t end = std::min(line.find(' ', position), line.size());
        fields.texts[fields.count++] = line.substr(position, end - position);
        position = line.find_first_not_of(' ', end);
    }
    return fields;
}

/// Whether a field is printed without digits: full of stars, or as infinity.
bool isPrintedInfinity(std::string_view text)
{
    if (!text.empty() && (text.front() == '-' || text.front() == '+'))
        text.remove_prefix(1);
    return text == "INF" || text == "INFINITE" || text == "INFINITY"
        || (!text.empty() && text.find_first_not_of('*') == std::string_view::npos);
}

/// The values of a row in printed order.
using Values = std::array<double*, numbersOfRowWithDensity>;

Values valuesOf(SummaryRow& row, std::size_t count)
{
    if (count == numbersOfRow)
        return {&row.k, &row.inverseK, &row.speed, &row.damping, &row.frequency, &row.re, &row.im};
    return {&row.k,       &row.inverseK,  &row.density, &row.mach, &row.speed,
            &row.damping, &row.frequency, &row.re,      &row.im};
}

constexpr std::size_t reducedFrequencies = 2; ///< values that may be infinite

/// Whether a field begins with a note on the whole system.
bool isSystemNote(std::string_view line)
{
    return line.find("UNSTABL-SYSTEM") != std::string_view::npos
        || line.find("STABLE-SYSTEM-") != std::string_view::npos;
}

RowKind readValues(const Fields& fields, std::size_t count, SummaryRow& row, std::string& reason)
{
    const Values values = valuesOf(row, count);
    RowKind kind = RowKind::Row;
    for (std::size_t i = 0; i < count; ++i) {
        if (parsePrintedNumber(fields.texts[i], *values[i]))
            continue;
        *values[i] = notPrinted;
        if (!isPrintedInfinity(fields.texts[i])) {
            reason = quotedText(fields.texts[i]) + " is not a number";
            return RowKind::NoRow;
        }
        if (i >= reducedFrequencies) {
            reason = quotedText(fields.texts[i]) + " is no value";
            kind = RowKind::Unusable;
        }
    }
    return kind;
}

} // namespace

bool parsePrintedNumber(std::string_view text, double& value)
{
    if (parseDouble(text, value) == NumberStatus::Ok)
        return true;
    const std::size_t sign = text.find_last_of("+-");
    if (sign == std::string_view::npos || sign == 0 || text.find_first_of("EeDd") < sign)
        return false;
    const std::string withExponent =
        std::string(text.substr(0, sign)) + "E" + std::string(text.substr(sign));
    return parseDouble(withExponent, value) == NumberStatus::Ok;
}

RowKind parseRow(std::string_view line, std::size_t count, SummaryRow& row, std::string& reason)
{
    const Fields fields = splitAtBlanks(line);
    if (fields.count == 0)
        return RowKind::Blank;
    if (line.front() != ' ') {
        reason = "column 1 is not blank";
        return RowKind::NoRow;
    }
    if (isSystemNote(line))
        return RowKind::SystemNote;
    if (fields.count != count) {
        reason = "a row has " + std::to_string(count) + " numbers";
        return RowKind::NoRow;
    }
    return readValues(fields, count, row, reason);
}

} // namespace tarsil::solver
