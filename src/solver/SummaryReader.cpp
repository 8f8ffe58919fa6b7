#include "solver/SummaryReader.h"

#include "base/files/FileLines.h"

#include <algorithm>

namespace tarsil::solver {

namespace {

/// Whether a piece may hold a title or a card that tells units.
bool holdsWords(std::string_view piece)
{
    const auto holds = [piece](std::string_view words) {
        return piece.find(words) != std::string_view::npos;
    };
    return holds(summaryTitle) || holds("AERO") || holds("VREF");
}

} // namespace

void SummaryScanner::read(std::string_view piece)
{
    if (m_reader.isInTable() || holdsWords(piece))
        readLines(piece);
    else
        skip(piece);
}

void SummaryScanner::readLines(std::string_view lines)
{
    while (!lines.empty()) {
        const std::size_t length = std::min(lines.find('\n'), lines.size() - 1) + 1;
        m_reader.readLine(lines.substr(0, length));
        lines.remove_prefix(length);
    }
}

/// Counts the lines, and keeps the last ones, which may belong to the title of the next piece.
void SummaryScanner::skip(std::string_view piece)
{
    std::size_t start = piece.size();
    for (std::size_t i = 0; i < linesAboveTitle && start > 0; ++i) {
        const std::size_t lineEnd =
            start > 1 ? piece.rfind('\n', start - 2) : std::string_view::npos;
        start = lineEnd == std::string_view::npos ? 0 : lineEnd + 1;
    }
    const auto* const first = piece.data();
    m_reader.passOver(static_cast<std::size_t>(std::count(first, first + start, '\n')));
    readLines(piece.substr(start));
}

SummaryFile readSummaries(std::string_view path)
{
    FileLines lines(path);
    SummaryScanner scanner;
    bool isBinary = false;
    bool isFirst = true;
    for (std::string_view piece = lines.next(); !piece.empty(); piece = lines.next()) {
        isBinary = isBinary || (isFirst && piece.find('\0') != std::string_view::npos);
        isFirst = false;
        scanner.read(piece);
    }
    lines.requireUnchanged();
    SummaryFile file = scanner.result();
    file.isBinary = isBinary;
    return file;
}

} // namespace tarsil::solver
