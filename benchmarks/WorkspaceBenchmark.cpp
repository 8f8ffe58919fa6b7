// SPDX-License-Identifier: Apache-2.0

// Workspaces of many small files: opening one compared with reading its files alone, and the
// explorer's nodes for many files compared with few. Searches for moved files in the worst
// workspaces.

#include "GeneratedFiles.h"
#include "RatioTable.h"
#include "StrictUser.h"
#include "app/WorkspaceCommands.h"
#include "document/Document.h"
#include "explorer/WndEvolExplorer.h"
#include "formats/EvolutionFile.h"
#include "plotwindow/WndEvolPlot.h"
#include "workspace/FoundFiles.h"
#include "workspace/WorkspaceWriter.h"

#include <QApplication>
#include <QTemporaryDir>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>

namespace {

using namespace tarsil;
using namespace tarsil::benchmarks;

constexpr std::size_t fileCount = 1000;
constexpr int turns = 7;

/// A workspace of small files without plots.
struct ManyFiles
{
    QTemporaryDir folder;
    std::vector<std::string> files;
    std::string workspace;

    ManyFiles()
    {
        for (std::size_t i = 0; i < fileCount; ++i) {
            files.push_back(path(std::to_string(i) + ".evm"));
            writeEvolution(files.back(), Layout::FixedColumns, 4, 10);
        }
        workspace = path("many.tsw");
        WorkspaceRecord record;
        record.files = files;
        std::ofstream(workspace, std::ios::binary) << writeWorkspace(record, "benchmark").bytes;
    }

    std::string path(const std::string& name) const
    {
        return folder.filePath(QString::fromStdString(name)).toStdString();
    }
};

void openAll(OwnedEvolutions& evolutions, const ManyFiles& many, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        evolutions.push_back(openEvolution(many.files[i]));
}

/// The time to open it, without releasing what was open before.
double openingTime(const ManyFiles& many)
{
    StrictUser user;
    Document document;
    wndEvolPlot plots(document.plots(), user);
    wndEvolExplorer explorer(document, plots, user);
    WorkspaceCommands commands(document, user);
    return seconds([&] { commands.OpenWorkSpace(many.workspace); });
}

double readingTime(const ManyFiles& many)
{
    OwnedEvolutions evolutions;
    return seconds([&] { openAll(evolutions, many, fileCount); });
}

void measureOpening(const ManyFiles& many)
{
    constexpr double never = std::numeric_limits<double>::max();
    Pair times {never, never};
    for (int turn = 0; turn < turns; ++turn) {
        times.reference = std::min(times.reference, readingTime(many));
        times.measured = std::min(times.measured, openingTime(many));
    }
    printRow("opening a workspace of 1000 small files", "reading the files alone", times, "<= 3");
}

/// The seconds for each of `count` nodes.
double timePerNode(const ManyFiles& many, std::size_t count)
{
    StrictUser user;
    Document document;
    wndEvolPlot plots(document.plots(), user);
    const wndEvolExplorer explorer(document, plots, user);
    OwnedEvolutions evolutions;
    openAll(evolutions, many, count);
    return seconds([&] { document.evolutions().add(std::move(evolutions)); })
        / static_cast<double>(count);
}

void measureNodes(const ManyFiles& many)
{
    constexpr double never = std::numeric_limits<double>::max();
    Pair times {never, never};
    for (int turn = 0; turn < turns; ++turn) {
        times.reference = std::min(times.reference, timePerNode(many, 100));
        times.measured = std::min(times.measured, timePerNode(many, fileCount));
    }
    printRow("nodes of one evolution of 1000 in the explorer", "one of 100", times, "near 1");
}

std::string foldersOf(std::size_t count, std::size_t kind)
{
    std::string folders;
    for (std::size_t i = 0; i < count; ++i)
        folders += {static_cast<char>('a' + (i + kind) % 26), '/'};
    return folders;
}

double largestMemory()
{
    struct rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024; // MiB
}

/// Must run first, before anything else needs more memory.
void measureMissingFiles()
{
    constexpr std::size_t missing = 32767;
    constexpr std::size_t folders = 500;
    const QTemporaryDir place;
    std::vector<std::string> stored;
    for (std::size_t i = 0; i < missing; ++i)
        stored.push_back("D:/" + foldersOf(folders, i % folders) + std::to_string(i) + ".ev2");
    const std::string workspace = place.filePath(QStringLiteral("x.tsw")).toStdString();
    const double time = seconds([&] {
        if (foundFiles(stored, workspace) != stored)
            std::exit(EXIT_FAILURE);
    });
    char text[60];
    std::snprintf(text, sizeof text, "%.2f s, %.0f MiB", time, largestMemory());
    printRow("search for 32767 missing files of 500 folders", "", text, "at most 2 s, 300 MB");
}

void measureDeepFiles()
{
    constexpr std::size_t files = 1000;
    constexpr std::size_t depth = 400;
    const QTemporaryDir place;
    const std::string folder = place.path().toStdString() + "/" + foldersOf(depth, 0);
    std::filesystem::create_directories(folder);
    std::vector<std::string> stored;
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < files; ++i) {
        const std::string name = std::to_string(i) + ".ev2";
        std::ofstream(folder + name) << "x";
        expected.push_back(folder + name);
        stored.push_back("D:/gone/" + foldersOf(depth, 0) + name);
    }
    const std::string workspace = place.filePath(QStringLiteral("x.tsw")).toStdString();
    const double time = seconds([&] {
        if (foundFiles(stored, workspace) != expected)
            std::exit(EXIT_FAILURE);
    });
    char text[40];
    std::snprintf(text, sizeof text, "%.2f s", time);
    printRow("search for 1000 files at depth 400", "", text, "at most 1 s");
}

} // namespace

int main(int argc, char** argv)
{
    measureMissingFiles();
    measureDeepFiles();
    const QApplication application(argc, argv);
    const ManyFiles many;
    measureOpening(many);
    measureNodes(many);
    return EXIT_SUCCESS;
}
