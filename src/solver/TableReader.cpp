// SPDX-License-Identifier: Apache-2.0
#include "solver/TableReader.h"

#include "base/text/QuotedText.h"
#include "solver/RowText.h"

#include <utility>

namespace tarsil::solver {

namespace {

/// The maximum distance of the POINT line from the title, and of the headings from the POINT line.
constexpr std::size_t linesOfHeading = 8;

constexpr std::size_t mostCards = 20;
constexpr std::size_t mostLogEntries = 1000;

std::string_view withoutLineEnd(std::string_view line)
{
    if (line.ends_with('\n'))
        line.remove_suffix(1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

/// Whether a line of the deck's echo, which may be numbered, is a card `name` whose first field
/// begins with one of these characters.
bool holdsCard(std::string_view line, std::string_view name, std::string_view firstOfRest)
{
    const std::size_t position = line.find(name);
    if (position == std::string_view::npos
        || line.substr(0, position).find_first_not_of(" -0123456789") != std::string_view::npos)
        return false;
    const std::string_view rest = line.substr(position + name.size());
    constexpr std::string_view separators = " *,";
    if (rest.empty() || separators.find(rest.front()) == std::string_view::npos)
        return false;
    const std::size_t field = rest.find_first_not_of(separators);
    return field != std::string_view::npos
        && firstOfRest.find(rest[field]) != std::string_view::npos;
}

/// Whether a line that is not a row begins like one, which is worth a remark.
bool isBrokenRow(std::string_view line)
{
    const std::size_t first = line.find_first_not_of(' ');
    double value = 0;
    return first != 0 && first != std::string_view::npos
        && parsePrintedNumber(line.substr(first, line.find(' ', first) - first), value);
}

} // namespace

void TableReader::readLine(std::string_view line)
{
    ++m_file.lines;
    const bool isWhole = line.ends_with('\n');
    line = withoutLineEnd(line);
    if (isSummaryTitle(line)) {
        if (m_state == State::BeforePointLine || m_state == State::BeforeHeadings)
            leaveOut("another summary begins before its rows");
        finishTable();
        startTable();
    } else {
        switch (m_state) {
        case State::BetweenTables:
            readCard(line);
            break;
        case State::BeforePointLine:
            readPoint(line);
            break;
        case State::BeforeHeadings:
            readHeadings(line);
            break;
        case State::BeforeRows:
        case State::InRows:
            readTableRow(line, isWhole);
            break;
        }
    }
    remember(line);
}

void TableReader::startTable()
{
    LinesAbove above;
    for (std::size_t i = 0; i < linesAboveTitle; ++i)
        above[i] = m_last[(m_nextOfLast + i) % linesAboveTitle];
    readPageHeader(above, m_table);
    m_table.firstLine = m_file.lines;
    m_linesLeft = linesOfHeading;
    m_state = State::BeforePointLine;
}

void TableReader::readPoint(std::string_view line)
{
    if (readPointLine(line, m_table)) {
        m_state = State::BeforeHeadings;
        m_linesLeft = linesOfHeading;
    } else if (--m_linesLeft == 0) {
        leaveOut("no line with POINT and METHOD follows its title");
    }
}

void TableReader::readHeadings(std::string_view line)
{
    if (line.find("KFREQ") != std::string_view::npos) {
        m_table.carriesDensity = line.find("DENSITY") != std::string_view::npos;
        m_state = State::BeforeRows;
    } else if (--m_linesLeft == 0) {
        leaveOut("it has no column headings");
    }
}

void TableReader::readTableRow(std::string_view line, bool isWhole)
{
    SummaryRow row;
    std::string reason;
    const std::size_t count = m_table.carriesDensity ? numbersOfRowWithDensity : numbersOfRow;
    switch (parseRow(line, count, row, reason)) {
    case RowKind::Row:
        if (isCutRow(line, isWhole)) {
            note(m_file.lines, "the file ends within this row, which is left out");
            break;
        }
        row.line = m_file.lines;
        m_table.rows.push_back(row);
        m_rowLengths[m_table.carriesDensity ? 1 : 0] = line.size();
        m_state = State::InRows;
        break;
    case RowKind::Blank:
        if (m_state == State::InRows)
            finishTable();
        break;
    case RowKind::Unusable:
        note(m_file.lines, "row left out: " + reason);
        break;
    case RowKind::SystemNote:
        note(m_file.lines, "row left out: " + quotedText(line.substr(line.find_first_not_of(' '))));
        break;
    case RowKind::NoRow:
        if (isBrokenRow(line))
            note(m_file.lines,
                 "the table of POINT " + std::to_string(m_table.point) + " ends here: " + reason);
        finishTable();
        break;
    }
}

/// The last row of a truncated file has fewer digits than the others, and so a wrong value.
bool TableReader::isCutRow(std::string_view line, bool isWhole) const
{
    const std::size_t usual = m_rowLengths[m_table.carriesDensity ? 1 : 0];
    return !isWhole && (usual == 0 || line.size() < usual);
}

/// Appends the table to those of the file; a continuation page is appended to its table.
void TableReader::finishTable()
{
    if (m_state == State::BeforeRows)
        note(m_table.firstLine, "summary left out: it has no rows");
    if (!m_table.rows.empty()) {
        m_table.lastLine = m_table.rows.back().line;
        if (!m_file.tables.empty() && m_file.tables.back().key == m_table.key
            && m_file.tables.back().point == m_table.point) {
            SummaryTable& before = m_file.tables.back();
            before.rows.insert(before.rows.end(), m_table.rows.begin(), m_table.rows.end());
            before.lastLine = m_table.lastLine;
        } else {
            m_file.tables.push_back(std::move(m_table));
        }
    }
    m_table = SummaryTable();
    m_state = State::BetweenTables;
}

void TableReader::leaveOut(std::string_view reason)
{
    note(m_table.firstLine, "summary left out: " + std::string(reason));
    m_table = SummaryTable();
    m_state = State::BetweenTables;
}

/// Stores a card of the echoed deck about units: AERO with numbers, or PARAM with VREF.
void TableReader::readCard(std::string_view line)
{
    const bool isCard = holdsCard(line, "AERO", "+-.0123456789") || holdsCard(line, "PARAM", "V");
    const bool tellsUnits = isCard
        && (line.find("PARAM") == std::string_view::npos
            || line.find("VREF") != std::string_view::npos);
    if (tellsUnits && m_file.cards.size() < mostCards)
        m_file.cards.push_back(
            {m_file.lines, std::string(line.substr(line.find_first_not_of(' ')))});
}

void TableReader::note(std::size_t line, std::string text)
{
    if (m_file.log.size() < mostLogEntries)
        m_file.log.push_back({line, std::move(text)});
    else
        ++m_unlisted;
}

void TableReader::remember(std::string_view line)
{
    m_last[m_nextOfLast].assign(line);
    m_nextOfLast = (m_nextOfLast + 1) % linesAboveTitle;
}

SummaryFile TableReader::result()
{
    if (m_state == State::BeforePointLine || m_state == State::BeforeHeadings)
        leaveOut("the file ends before its rows");
    finishTable();
    if (m_unlisted > 0)
        m_file.log.push_back(
            {m_file.lines,
             "and " + std::to_string(m_unlisted) + " more entries, which are not listed"});
    return std::move(m_file);
}

} // namespace tarsil::solver
