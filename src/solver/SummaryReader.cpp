// SPDX-License-Identifier: Apache-2.0
#include "solver/SummaryReader.h"

#include "base/files/FileLines.h"
#include "base/files/InputFile.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarsil::solver {

namespace {

/// Whether a piece may contain a title, or a card about units.
bool holdsWords(std::string_view piece)
{
    const auto holds = [piece](std::string_view words) {
        return piece.find(words) != std::string_view::npos;
    };
    return holds(summaryTitle) || holds("AERO") || holds("VREF");
}

/// Whether the first bytes of a file contain a zero, which 8-bit text does not.
bool beginsBinary(std::string_view path)
{
    std::array<char, 4096> bytes {};
    InputFile file(path);
    const std::size_t count = std::min(bytes.size(), file.bytesLeft());
    file.read(bytes.data(), count);
    return std::string_view(bytes.data(), count).find('\0') != std::string_view::npos;
}

SummaryFile stopped()
{
    SummaryFile file;
    file.isStopped = true;
    return file;
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

/// Counts the lines and keeps the last ones, which may belong to a title in the next piece.
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

SummaryFile readSummaries(std::string_view path, const Progress& progress)
{
    if (beginsBinary(path)) {
        SummaryFile binary;
        binary.isBinary = true;
        return binary;
    }
    FileLines lines(path);
    const std::size_t size = lines.bytesLeft();
    SummaryScanner scanner;
    for (std::string_view piece = lines.next(); !piece.empty(); piece = lines.next()) {
        scanner.read(piece);
        if (lines.bytesLeft() > 0 && !goesOn(progress, size - lines.bytesLeft(), size))
            return stopped();
    }
    lines.requireUnchanged();
    return scanner.result();
}

} // namespace tarsil::solver
