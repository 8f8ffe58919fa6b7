// SPDX-License-Identifier: Apache-2.0
#include "workspace/PathTails.h"

#include "base/text/CaseFolding.h"
#include "base/text/TextCodec.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace tarsil {

namespace {

constexpr std::size_t everything = std::numeric_limits<std::size_t>::max();

/// A path or a file, sorted by tails.
struct TailEntry
{
    std::string_view tail;
    std::size_t number;
    bool isPath;
    std::size_t namesAsBefore = 0; ///< number of leading components shared with the previous entry
};

std::size_t sharedNames(std::string_view a, std::string_view b)
{
    const auto end = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first;
    return static_cast<std::size_t>(std::count(a.begin(), end, '/'));
}

std::vector<TailEntry> inOrder(const std::vector<std::string>& paths,
                               const std::vector<std::string>& files)
{
    std::vector<TailEntry> entries;
    entries.reserve(paths.size() + files.size());
    for (std::size_t i = 0; i < paths.size(); ++i)
        entries.push_back({paths[i], i, true});
    for (std::size_t i = 0; i < files.size(); ++i)
        entries.push_back({files[i], i, false});
    std::sort(entries.begin(), entries.end(),
              [](const TailEntry& a, const TailEntry& b) { return a.tail < b.tail; });
    for (std::size_t i = 1; i < entries.size(); ++i)
        entries[i].namesAsBefore = sharedNames(entries[i - 1].tail, entries[i].tail);
    return entries;
}

/// Calls `meet` for each entry with the last path before it in this direction and the number of
/// components that they share: the minimum over all adjacent entries in between.
template <typename Meet>
void sweep(const std::vector<TailEntry>& entries, bool isForwards, Meet meet)
{
    const TailEntry* path = nullptr;
    std::size_t names = everything;
    for (std::size_t step = 0; step < entries.size(); ++step) {
        const std::size_t index = isForwards ? step : entries.size() - 1 - step;
        const TailEntry& entry = entries[index];
        if (step > 0)
            names = std::min(names, entries[isForwards ? index : index + 1].namesAsBefore);
        if (path != nullptr)
            meet(entry, *path, names);
        if (entry.isPath) {
            path = &entry;
            names = everything;
        }
    }
}

} // namespace

std::string tailOf(std::string_view path)
{
    std::string tail;
    tail.reserve(path.size() + 2);
    const bool hasRoot = path.starts_with('/');
    path.remove_prefix(std::min(path.find_first_not_of('/'), path.size()));
    for (bool isMore = !path.empty(); isMore;) {
        const std::size_t slash = path.rfind('/');
        isMore = slash != std::string_view::npos;
        tail.append(path.substr(isMore ? slash + 1 : 0)) += '/';
        path = path.substr(0, isMore ? path.find_last_not_of('/', slash) + 1 : 0);
    }
    if (hasRoot)
        tail.append(1, '\0') += '/';
    return tail;
}

std::string withoutCaseOfNames(std::string_view tail)
{
    if (isUtf8(tail))
        return withoutCase(tail);
    std::string folded; // names that are not text do not spoil the others
    while (!tail.empty()) {
        const std::size_t size = tail.find('/') + 1;
        folded += withoutCase(tail.substr(0, size));
        tail.remove_prefix(size);
    }
    return folded;
}

std::vector<SharedTail> sharedTails(const std::vector<std::string>& paths,
                                    const std::vector<std::string>& files)
{
    const std::vector<TailEntry> entries = inOrder(paths, files);
    std::vector<std::size_t> withOthers(
        paths.size()); // components that a path shares with another one
    std::vector<SharedTail> shared(files.size());
    for (const bool isForwards : {true, false}) {
        sweep(entries, isForwards,
              [&](const TailEntry& entry, const TailEntry& path, std::size_t names) {
                  if (entry.isPath)
                      withOthers[entry.number] = std::max(withOthers[entry.number], names);
                  else if (names > shared[entry.number].names)
                      shared[entry.number] = {path.number, names};
              });
    }
    for (SharedTail& one : shared) {
        if (one.names > 0 && one.names <= withOthers[one.path])
            one.names = 0;
    }
    return shared;
}

} // namespace tarsil
