// SPDX-License-Identifier: Apache-2.0
#include "base/files/TemporaryNames.h"

#include <array>
#include <atomic>
#include <chrono>
#include <memory>

namespace tarsil {

namespace {

constexpr std::string_view prefix = ".tarsil-";
constexpr std::string_view suffix = ".tmp";

/// The path of an existing temporary file. Whoever takes a path out of its entry removes the file.
/// A path taken by `takeTemporaries` is not freed, because the process ends.
using Entry = std::atomic<const SystemPath*>;
static_assert(Entry::is_always_lock_free);

/// A file without an entry is removed only by its destructor.
std::array<Entry, 64> entries;

} // namespace

std::string temporaryName()
{
    static std::atomic<unsigned> counter = 0;
    const auto stamp = std::chrono::system_clock::now().time_since_epoch().count();
    std::string name(prefix);
    name.append(std::to_string(stamp)).append("-").append(std::to_string(counter++));
    return name.append(suffix);
}

bool isTemporaryName(std::string_view name)
{
    if (name.size() <= prefix.size() + suffix.size() || !name.starts_with(prefix)
        || !name.ends_with(suffix))
        return false;
    const std::string_view middle =
        name.substr(prefix.size(), name.size() - prefix.size() - suffix.size());
    return middle.find_first_not_of("0123456789-") == std::string_view::npos;
}

std::size_t enterTemporary(const std::filesystem::path& path)
{
    auto text = std::make_unique<const SystemPath>(path.native());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const SystemPath* expected = nullptr;
        if (entries[i].compare_exchange_strong(expected, text.get())) {
            static_cast<void>(text.release()); // the entry owns it
            return i;
        }
    }
    return noTemporary;
}

void leaveTemporary(std::size_t entry)
{
    if (entry < entries.size())
        const std::unique_ptr<const SystemPath> freed(entries[entry].exchange(nullptr));
}

void takeTemporaries(void (*remove)(const SystemPath& path))
{
    for (Entry& entry : entries) {
        const SystemPath* const path = entry.exchange(nullptr);
        if (path != nullptr)
            remove(*path);
    }
}

} // namespace tarsil
