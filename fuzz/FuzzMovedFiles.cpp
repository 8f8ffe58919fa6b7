// SPDX-License-Identifier: Apache-2.0

// Moved files: each line of the input is a path of a workspace whose file is missing, after "+" one
// whose file exists, or after "=" a file that was found.

#include "FuzzTarget.h"

#include "workspace/FileMatching.h"
#include "workspace/FoundFiles.h"
#include "workspace/PathTails.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

using namespace tarsil;

constexpr std::size_t mostLines = 60; // the reference compares all pairs

struct Lines
{
    std::vector<std::string> missing;
    std::vector<std::string> present;
    std::vector<std::string> files;
};

/// A path without links, so that it identifies its own file.
std::string nowhere(std::string_view path)
{
    return std::string("/tarsil-fuzz-nowhere/").append(path);
}

Lines linesOf(std::string_view text)
{
    Lines lines;
    for (std::size_t count = 0; !text.empty() && count < mostLines; ++count) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.find('\0') != std::string_view::npos)
            continue; // no path can contain this
        if (line.starts_with('='))
            lines.files.push_back(nowhere(line.substr(1)));
        else if (line.starts_with('+'))
            lines.present.push_back(nowhere(line.substr(1)));
        else
            lines.missing.emplace_back(line);
    }
    return lines;
}

std::size_t namesShared(std::string_view a, std::string_view b)
{
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return static_cast<std::size_t>(std::count(a.begin(), end, '/'));
}

/// The reference: compares all pairs.
void requireSharedTails(const std::vector<std::string>& paths,
                        const std::vector<std::string>& files)
{
    const std::vector<SharedTail> shared = sharedTails(paths, files);
    fuzz::require(shared.size() == files.size(), "an answer for each file");
    for (std::size_t i = 0; i < files.size(); ++i) {
        std::size_t most = 0;
        std::size_t withMost = 0;
        for (const std::string& path : paths) {
            const std::size_t names = namesShared(path, files[i]);
            withMost = names > most ? 1 : withMost + (names == most ? 1 : 0);
            most = std::max(most, names);
        }
        const bool isOne = most > 0 && withMost == 1;
        fuzz::require(shared[i].names == (isOne ? most : 0), "most names of one path alone");
        fuzz::require(!isOne || namesShared(paths[shared[i].path], files[i]) == most,
                      "the path that shares them");
    }
}

std::string lastName(const std::string& path)
{
    const std::string tail = tailOf(path);
    return withoutCaseOfNames(tail.substr(0, tail.find('/') + 1));
}

void requireOwnFiles(const Lines& lines)
{
    FileMatching matching("/tarsil-fuzz-nowhere");
    for (const std::string& path : lines.present)
        matching.addPresent(path, path);
    for (const std::string& path : lines.missing)
        matching.addPath(path);
    for (const std::string& file : lines.files)
        matching.addFile(file);
    std::set<std::string> given(lines.present.begin(), lines.present.end());
    for (const auto& [path, file] : matching.match()) {
        fuzz::require(path < lines.missing.size(), "only wanted paths get files");
        fuzz::require(given.insert(file).second, "no two paths get one file");
        fuzz::require(std::find(lines.files.begin(), lines.files.end(), file) != lines.files.end(),
                      "only files that are there");
        fuzz::require(lastName(file) == lastName(lines.missing[path]),
                      "a file has the name of its path");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const Lines lines = linesOf(fuzz::textOf(data, size));
    std::vector<std::string> paths;
    std::vector<std::string> files;
    for (const std::string& path : lines.missing)
        paths.push_back(tailOf(path));
    for (const std::string& file : lines.files)
        files.push_back(tailOf(file));
    requireSharedTails(paths, files);
    requireOwnFiles(lines);
    const auto found = foundFiles(lines.missing, "/tarsil-fuzz-nowhere/case.tsw");
    fuzz::require(found.size() == lines.missing.size(), "a place for each path");
    return 0;
}
