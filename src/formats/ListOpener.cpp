// SPDX-License-Identifier: Apache-2.0
#include "formats/ListOpener.h"

#include "base/files/PathNames.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace tarsil {

namespace {

/// The open evolutions, indexed by what identifies their files.
class OpenFiles
{
public:
    explicit OpenFiles(const OwnedEvolutions& open)
    {
        for (const auto& evolution : open)
            add(*evolution);
    }

    void add(EVM& evolution)
    {
        const std::string path = evolution.path();
        m_byPath.emplace(path, &evolution);
        if (auto identity = fileIdentity(path))
            m_byIdentity.emplace(std::move(*identity), &evolution);
    }

    /// The evolution of the file at a path; null when it is not open.
    EVM* find(std::string_view path) const
    {
        const FilePath file = resolvePath(path);
        const auto same = m_byPath.find(joinPath(file.folder, file.name));
        if (same != m_byPath.end())
            return same->second;
        const auto identity = fileIdentity(path);
        const auto other = identity ? m_byIdentity.find(*identity) : m_byIdentity.end();
        return other == m_byIdentity.end() ? nullptr : other->second;
    }

private:
    std::unordered_map<std::string, EVM*> m_byPath; ///< by stored path
    std::unordered_map<std::string, EVM*> m_byIdentity;
};

/// Null when there is no evolution for the path.
EVM* openOne(const std::string& path, std::size_t index, OpenFiles& known, ListOpener& opener)
{
    if (!fileExists(path)) {
        opener.isMissing(index, path);
        return nullptr;
    }
    if (EVM* const open = known.find(path)) {
        opener.foundOpen(*open);
        return open;
    }
    EVM& evolution = opener.open(path);
    known.add(evolution);
    return &evolution;
}

} // namespace

ListOpener::~ListOpener() = default;

std::vector<EVM*> openListed(const OwnedEvolutions& open, const std::vector<std::string>& paths,
                             ListOpener& opener)
{
    OpenFiles known(open);
    std::vector<EVM*> evolutions(paths.size());
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (!opener.isWanted(i))
            continue;
        try {
            evolutions[i] = openOne(paths[i], i, known, opener);
        } catch (...) {
            opener.cannotOpen(i, std::current_exception());
        }
        if (!opener.isDone(i + 1))
            break;
    }
    return evolutions;
}

} // namespace tarsil
