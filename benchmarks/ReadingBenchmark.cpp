// SPDX-License-Identifier: Apache-2.0

// Reading: 100 MB of each layout compared with a from_chars reader and a getline reader, 500 files
// compared with cat, and the memory held.

#include "GeneratedFiles.h"
#include "RatioTable.h"
#include "ReferenceReaders.h"
#include "base/files/PathNames.h"
#include "formats/EvolutionFile.h"
#include "model/EVM.h"

#include <fcntl.h>
#include <malloc.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <limits>
#include <memory>
#include <optional>

namespace {

using namespace tarsil;
using namespace tarsil::benchmarks;
namespace fs = std::filesystem;

constexpr std::size_t megabyte = 1000 * 1000;
constexpr int turns = 7;

/// A folder that is removed with its contents.
class TemporaryFolder
{
public:
    TemporaryFolder()
        : m_path(fs::temp_directory_path() / ("tarsil-benchmark-" + std::to_string(::getpid())))
    {
        fs::create_directory(m_path);
    }
    ~TemporaryFolder() { fs::remove_all(m_path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string file(const std::string& name) const { return (m_path / name).string(); }

private:
    fs::path m_path;
};

/// Makes the heap keep released memory. Otherwise every turn of both readers starts with the system
/// clearing pages, which takes as long as the reading and hides it.
void keepReleasedMemory()
{
    constexpr int all = std::numeric_limits<int>::max();
    ::mallopt(M_MMAP_THRESHOLD, all);
    ::mallopt(M_TRIM_THRESHOLD, all);
}

std::unique_ptr<EVM> readEvolution(const std::string& path, Layout layout)
{
    auto evolution = std::make_unique<EVM>();
    FilePath file = resolvePath(path);
    evolution->Folder = std::move(file.folder);
    evolution->FileName = std::move(file.name);
    if (layout == Layout::Semicolons)
        contructFromSemicolonFile(*evolution);
    else
        Contruct(*evolution);
    return evolution;
}

bool sameBits(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

bool sameValues(const Point& a, const Point& b)
{
    const std::array left {a.kfreq, a.re, a.im, a.speed, a.G, a.f};
    const std::array right {b.kfreq, b.re, b.im, b.speed, b.G, b.f};
    return std::equal(left.begin(), left.end(), right.begin(), sameBits)
        && std::equal(a.mpf.begin(), a.mpf.end(), b.mpf.begin(), b.mpf.end());
}

void requireSame(const EVM& evolution, const ReferenceModes& modes, Layout layout)
{
    bool same = evolution.Modes.size() == modes.size() && !modes.empty();
    for (std::size_t i = 0; same && i < modes.size(); ++i)
        same = std::equal(modes[i].begin(), modes[i].end(), evolution.Modes[i]->Points.begin(),
                          evolution.Modes[i]->Points.end(), sameValues);
    if (same)
        return;
    std::cerr << layoutName(layout) << ": the readers found different values\n";
    std::exit(EXIT_FAILURE);
}

/// The time of reading without releasing the result.
template <typename Read>
double readingTime(Read read)
{
    decltype(read()) result;
    return seconds([&] { result = read(); });
}

void measureLayout(const TemporaryFolder& folder, Layout layout)
{
    const std::string path = folder.file("large" + std::string(extension(layout)));
    writeLargeEvolution(path, layout, 100 * megabyte);
    const auto own = [&] { return readEvolution(path, layout); };
    requireSame(*own(), readWithFromChars(path, layout), layout);
    constexpr double never = std::numeric_limits<double>::max();
    Pair againstFromChars {never, never};
    Pair againstStof {never, never};
    for (int turn = 0; turn < turns; ++turn) {
        againstFromChars.measured = std::min(againstFromChars.measured, readingTime(own));
        againstFromChars.reference =
            std::min(againstFromChars.reference,
                     readingTime([&] { return readWithFromChars(path, layout); }));
        if (turn < 2)
            againstStof.reference = std::min(
                againstStof.reference, readingTime([&] { return readWithStof(path, layout); }));
    }
    againstStof.measured = againstFromChars.measured;
    const std::string what = "reading 100 MB, " + std::string(layoutName(layout));
    printRow(what, "mmap and from_chars", againstFromChars, "at most 0.60");
    printRow(what, "getline and stof", againstStof, "at most 0.17");
    fs::remove(path);
}

std::size_t allocatedBytes()
{
    const struct mallinfo2 info = ::mallinfo2();
    return info.uordblks + info.hblkhd;
}

void measureMemory(const TemporaryFolder& folder, Layout layout)
{
    const std::string path = folder.file("memory" + std::string(extension(layout)));
    writeLargeEvolution(path, layout, 100 * megabyte);
    const std::size_t before = allocatedBytes();
    const auto evolution = readEvolution(path, layout);
    const std::size_t after = allocatedBytes();
    std::size_t points = 0;
    for (const auto& mode : evolution->Modes)
        points += mode->Points.size();
    const double beyond =
        (static_cast<double>(after - before) - 64.0 * static_cast<double>(points)) / (1 << 20);
    char text[40];
    std::snprintf(text, sizeof text, "%.2f MiB", beyond);
    printRow("memory held, " + std::string(layoutName(layout)),
             std::to_string(points) + " points of 64 bytes", text, "at most 5 MiB");
    fs::remove(path);
}

/// Runs `cat` of the files to /dev/null.
void runCat(std::vector<std::string>& files)
{
    std::string program = "cat";
    std::vector<char*> arguments {program.data()};
    for (std::string& file : files)
        arguments.push_back(file.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    int status = 0;
    if (posix_spawnp(&child, "cat", &actions, nullptr, arguments.data(), environ) != 0
        || waitpid(child, &status, 0) != child || status != 0) {
        std::cerr << "cat cannot be run\n";
        std::exit(EXIT_FAILURE);
    }
    posix_spawn_file_actions_destroy(&actions);
}

/// The seconds for each of `count` files, all kept in memory as in the program.
double timePerFile(const std::vector<std::string>& files, std::size_t first, std::size_t count)
{
    OwnedEvolutions evolutions;
    const double all = seconds([&] {
        for (std::size_t i = first; i < first + count; ++i)
            evolutions.push_back(openEvolution(files[i % files.size()]));
    });
    return all / static_cast<double>(count);
}

/// The mean over groups of ten files, so that no text is in the cache.
double timePerFileOfTen(const std::vector<std::string>& files)
{
    double sum = 0;
    for (std::size_t first = 0; first < files.size(); first += 10)
        sum += timePerFile(files, first, 10);
    return sum / (static_cast<double>(files.size()) / 10);
}

void measureManyFiles(const TemporaryFolder& folder, Layout layout)
{
    std::vector<std::string> files;
    for (int i = 0; i < 500; ++i) {
        files.push_back(folder.file(std::to_string(i) + std::string(extension(layout))));
        writeEvolution(files.back(), layout, 40, 60);
    }
    const std::string name(layoutName(layout));
    Pair times {std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    for (int turn = 0; turn < turns; ++turn) {
        times.reference = std::min(times.reference, seconds([&] { runCat(files); }));
        times.measured = std::min(times.measured, 500 * timePerFile(files, 0, 500));
    }
    printRow("reading 500 files of 40 x 60, " + name, "cat of them", times, "at most 15");
    Pair perFile {std::numeric_limits<double>::max(), std::numeric_limits<double>::max()};
    for (int turn = 0; turn < 4; ++turn) {
        perFile.reference = std::min(perFile.reference, timePerFileOfTen(files));
        perFile.measured = std::min(perFile.measured, timePerFile(files, 0, 5000));
    }
    printRow("one file of 5000, " + name, "one file of 10", perFile, "near 1");
    for (const std::string& file : files)
        fs::remove(file);
}

} // namespace

int main()
{
    keepReleasedMemory();
    const TemporaryFolder folder;
    for (const Layout layout :
         {Layout::FixedColumns, Layout::Sections, Layout::SectionsWith21Fields,
          Layout::SectionsWith26Fields, Layout::Semicolons})
        measureLayout(folder, layout);
    for (const Layout layout : {Layout::FixedColumns, Layout::SectionsWith21Fields}) {
        measureManyFiles(folder, layout);
        measureMemory(folder, layout);
    }
    return EXIT_SUCCESS;
}
