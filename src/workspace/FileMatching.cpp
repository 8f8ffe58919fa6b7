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

void FileMatching::take(const std::string& key, const std::string& stored, const fs::path& file)
{
    m_listed.emplace(key, namesOf(nativePath(stored)));
    m_taken.insert(identityOf(file));
}

void FileMatching::addPath(const std::string& key, const std::string& stored)
{
    m_listed.emplace(key, namesOf(nativePath(stored)));
    m_wanted.push_back({key, namesOf(nativePath(stored))});
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

/// How many paths of the workspace have the same last names, so many.
std::unordered_map<std::string, int> FileMatching::listedTails(std::size_t length,
                                                               NameList names) const
{
    std::unordered_map<std::string, int> tails;
    for (const auto& [key, listed] : m_listed)
        ++tails[tail(listed.*names, length)];
    return tails;
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
    const auto listed = listedTails(length, names);
    for (Wanted& wanted : m_wanted) {
        const std::string text = tail(wanted.names.*names, length);
        const auto place = free.find(text);
        if (!wanted.isSettled && place != free.end() && listed.at(text) == 1)
            give(wanted, place->second);
    }
}

/// A path that means several files gets none of them, nor one that it means less.
void FileMatching::give(Wanted& wanted, const std::vector<const Candidate*>& candidates)
{
    wanted.isSettled = true;
    const Candidate* const chosen = onlyOne(candidates);
    if (chosen != nullptr && m_taken.insert(chosen->identity).second)
        m_matches.emplace(wanted.key, chosen->file);
}

/// The file of them all, which may be there by several ways, or the one beside the workspace; null
/// when they are several.
const FileMatching::Candidate*
FileMatching::onlyOne(const std::vector<const Candidate*>& candidates) const
{
    const auto beside =
        std::find_if(candidates.begin(), candidates.end(),
                     [this](const Candidate* one) { return one->file.parent_path() == m_folder; });
    if (beside != candidates.end())
        return *beside;
    const bool isOne = std::all_of(candidates.begin(), candidates.end(), [&](const Candidate* one) {
        return one->identity == candidates.front()->identity;
    });
    return isOne ? candidates.front() : nullptr;
}

} // namespace tarsil
