// SPDX-License-Identifier: Apache-2.0

// Printed flutter summaries: text without tables, and tables compared with an mmap + from_chars
// reader.

#include "RatioTable.h"
#include "solver/SummaryReader.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace tarsil;
namespace fs = std::filesystem;

constexpr std::size_t megabyte = 1000 * 1000;
constexpr std::size_t textSize = 200 * megabyte;
constexpr std::size_t tableSize = 100 * megabyte;
constexpr int turns = 5;
constexpr int numbersOfRow = 7;

/// A file that is removed with this object.
class TemporaryFile
{
public:
    explicit TemporaryFile(const std::string& name)
        : m_path(fs::temp_directory_path() / (name + std::to_string(::getpid())))
    { }
    ~TemporaryFile() { fs::remove(m_path); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const fs::path& path() const { return m_path; }

private:
    fs::path m_path;
};

void writeText(const fs::path& path)
{
    std::string piece;
    for (int i = 0; i < 10000; ++i)
        piece += "      " + std::to_string(100000 + i)
            + "        1.234567E-03    -2.345678E+01     0.0          3.456789E+00     0.0\n";
    std::ofstream file(path, std::ios::binary);
    for (std::size_t size = 0; size < textSize; size += piece.size())
        file << piece;
}

void writeTables(const fs::path& path)
{
    constexpr int rowsOfPage = 36;
    std::ofstream file(path, std::ios::binary);
    std::size_t size = 0;
    for (int point = 1; size < tableSize; ++point) {
        std::string page =
            "1    WING                    MARCH  23, 2022  MSC Nastran  3/11/18   PAGE     1\n"
            "      CLEAN\n0     RUN                                   SUBCASE 1\n"
            "0                                      FLUTTER  SUMMARY\n"
            "       POINT =    "
            + std::to_string(point)
            + "     MACH NUMBER =  0.3000     DENSITY RATIO =  1.0000E+00     METHOD = PK\n\n\n"
              "       KFREQ            1./KFREQ         VELOCITY            DAMPING\n";
        for (int row = 0; row < rowsOfPage; ++row) {
            char text[160];
            std::snprintf(
                text, sizeof text,
                "        %6.4f       %13.7E     %13.7E    %14.7E     %13.7E    %14.7E     "
                "%13.7E\n",
                0.5 / (row + 1), 2.0 * (row + 1), 10.0 * (row + 1), -0.01 * row - 1e-3,
                5 + 0.1 * row, -1.5 - row, 31.4 + row);
            page += text;
        }
        file << page;
        size += page.size();
    }
}

void addNumbers(const char* field, const char* end, std::vector<double>& values)
{
    for (int i = 0; i < numbersOfRow; ++i) {
        while (*field == ' ')
            ++field;
        double value = 0;
        field = std::from_chars(field, end, value).ptr;
        values.push_back(value);
    }
}

/// Reads seven numbers from each line that begins with eight blanks.
std::size_t readWithFromChars(const fs::path& path)
{
    const int file = ::open(path.c_str(), O_RDONLY);
    const std::size_t size = fs::file_size(path);
    void* const memory = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, file, 0);
    const char* position = static_cast<const char*>(memory);
    const char* const end = position + size;
    std::vector<double> values;
    while (position < end) {
        const char* lineEnd = static_cast<const char*>(
            std::memchr(position, '\n', static_cast<std::size_t>(end - position)));
        lineEnd = lineEnd == nullptr ? end : lineEnd;
        if (lineEnd - position > 100 && std::memcmp(position, "        0.", 10) == 0)
            addNumbers(position, lineEnd, values);
        position = lineEnd + 1;
    }
    ::munmap(memory, size);
    ::close(file);
    return values.size() / numbersOfRow;
}

std::size_t rowsOf(const solver::SummaryFile& file)
{
    std::size_t rows = 0;
    for (const solver::SummaryTable& table : file.tables)
        rows += table.rows.size();
    return rows;
}

} // namespace

int main()
{
    const TemporaryFile text("tarsil-benchmark-text");
    writeText(text.path());
    std::size_t lines = 0;
    double best = 1e9;
    for (int turn = 0; turn < turns; ++turn)
        best = std::min(best, benchmarks::seconds([&] {
                            lines += solver::readSummaries(text.path().string()).lines;
                        }));
    char speed[32];
    std::snprintf(speed, sizeof speed, "%.0f MB/s",
                  static_cast<double>(fs::file_size(text.path())) / megabyte / best);
    benchmarks::printRow("solver output without tables", "", speed, ">= 300 MB/s");

    const TemporaryFile tables("tarsil-benchmark-tables");
    writeTables(tables.path());
    std::size_t measured = 0;
    std::size_t reference = 0;
    const benchmarks::Pair times = benchmarks::bestOfTurns(
        turns, [&] { measured = rowsOf(solver::readSummaries(tables.path().string())); },
        [&] { reference = readWithFromChars(tables.path()); });
    benchmarks::printRow("flutter summaries of 100 MB", "mmap + from_chars", times, "<= 2");
    return measured == reference && lines > 0 ? 0 : 1;
}
