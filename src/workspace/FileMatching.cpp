#include "workspace/FileMatching.h"

#include "runtime/CaseFolding.h"
#include "runtime/PathNames.h"

#include <algorithm>
#include <iterator>
#include <system_error>
#include <unordered_map>
#include <utility>

namespace tarsil {

namespace {

namespace fs = std::filesystem;

/// The path without links and steps up.
std::string identityOf(const fs::path& file)
{
    std::error_code failed;
    const fs::path real = fs::canonical(file, failed);
    return pathText(failed ? file : real);
}

} // namespace

FileMatching::Names FileMatching::namesOf(const fs::path& path)
{
    Names names;
    for (const fs::path& name : path)
        names.exact.push_back(pathText(name));
    std::reverse(names.exact.begin(), names.exact.end());
    std::transform(names.exact.begin(), names.exact.end(), std::back_inserter(names.caseless),
                   withoutCase);
    return names;
}

/// The last folders and the name as one text; empty when there are not so many.
std::string FileMatching::tail(const std::vector<std::string>& names, std::size_t length)
{
    std::string text;
    if (names.size() < length)
        return text;
    for (std::size_t i = 0; i < length; ++i)
        text.append(names[i]).append("/");
    return text;
}

void FileMatching::take(const fs::path& file)
{
    m_taken.insert(identityOf(file));
}

void FileMatching::addPath(const std::string& stored)
{
    m_wanted.push_back({stored, namesOf(nativePath(stored))});
}

void FileMatching::addFile(const fs::path& file)
{
    if (m_added.insert(pathText(file)).second)
        m_candidates.push_back({file, identityOf(file), namesOf(file)});
}

std::map<std::string, fs::path> FileMatching::match()
{
    std::size_t longest = 0;
    for (const Candidate& candidate : m_candidates)
        longest = std::max(longest, candidate.names.exact.size());
    for (std::size_t length = longest; length > 0; --length) {
        settle(length, &Names::exact);
        settle(length, &Names::caseless);
    }
    return std::exchange(m_matches, {});
}

/// Gives files to the paths whose last names, so many, are those of a free file.
void FileMatching::settle(std::size_t length, NameList names)
{
    std::unordered_map<std::string, std::vector<const Candidate*>> free;
    for (const Candidate& candidate : m_candidates) {
        const std::string text = tail(candidate.names.*names, length);
        if (!text.empty() && !m_taken.contains(candidate.identity))
            free[text].push_back(&candidate);
    }
    std::set<std::string> claimed;
    for (Wanted& wanted : m_wanted) {
        if (wanted.isSettled)
            continue;
        const auto place = free.find(tail(wanted.names.*names, length));
        if (place == free.end())
            continue;
        if (claimed.insert(place->first).second)
            give(wanted, place->second);
        else
            wanted.isSettled = true;
    }
}

void FileMatching::give(Wanted& wanted, const std::vector<const Candidate*>& candidates)
{
    for (const Candidate* const candidate : candidates) {
        if (m_taken.insert(candidate->identity).second) {
            m_matches.emplace(wanted.stored, candidate->file);
            wanted.isSettled = true;
            return;
        }
    }
}

} // namespace tarsil
