// SPDX-License-Identifier: Apache-2.0
#include "workspace/FileMatching.h"

#include "workspace/PathTails.h"

#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

namespace tarsil {

void FileMatching::addPresent(std::string_view path, const std::string& file)
{
    m_present.push_back(tailOf(path));
    m_taken.emplace(m_identities.of(file), m_round);
}

void FileMatching::addPath(std::string_view path)
{
    m_wanted.push_back(tailOf(path));
}

void FileMatching::addFile(const std::string& file)
{
    if (m_added.insert(file).second)
        m_candidates.push_back({file, m_identities.of(file)});
}

/// Files that share longer tails come first, and equal spelling before names that differ in case.
/// All tails of one length form a round; a file assigned in a round can still be a candidate in it.
std::map<std::size_t, std::string> FileMatching::match()
{
    std::vector<Meeting> all = meetings();
    const auto order = [](const Meeting& meeting) {
        return std::tuple(~meeting.names, meeting.isCaseless, meeting.path, meeting.candidate);
    };
    std::sort(all.begin(), all.end(),
              [order](const Meeting& a, const Meeting& b) { return order(a) < order(b); });
    const auto isRound = [](const Meeting& a, const Meeting& b) {
        return a.names == b.names && a.isCaseless == b.isCaseless;
    };
    for (auto first = all.begin(); first != all.end();) {
        if (first == all.begin() || !isRound(*first, *std::prev(first)))
            ++m_round;
        std::vector<std::size_t> candidates;
        auto next = first;
        for (; next != all.end() && isRound(*first, *next) && first->path == next->path; ++next)
            candidates.push_back(next->candidate);
        settle(first->path, std::move(candidates));
        first = next;
    }
    return std::exchange(m_matches, {});
}

std::vector<FileMatching::Meeting> FileMatching::meetings() const
{
    std::vector<std::string> paths = m_wanted;
    paths.insert(paths.end(), m_present.begin(), m_present.end());
    std::vector<std::string> files;
    for (const Candidate& candidate : m_candidates)
        files.push_back(tailOf(candidate.file));
    std::vector<Meeting> all;
    for (const bool isCaseless : {false, true}) {
        if (isCaseless) {
            std::transform(paths.begin(), paths.end(), paths.begin(), withoutCaseOfNames);
            std::transform(files.begin(), files.end(), files.begin(), withoutCaseOfNames);
        }
        const std::vector<SharedTail> shared = sharedTails(paths, files);
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (shared[i].names > 0 && shared[i].path < m_wanted.size())
                all.push_back({shared[i].names, isCaseless, shared[i].path, i});
        }
    }
    return all;
}

/// A path with several candidates gets no file, also not a worse one later.
void FileMatching::settle(std::size_t path, std::vector<std::size_t> candidates)
{
    std::erase_if(candidates, [this](std::size_t candidate) { return !isFree(candidate); });
    if (candidates.empty() || !m_settled.insert(path).second)
        return;
    const Candidate* const chosen = onlyOne(candidates);
    if (chosen != nullptr && m_taken.emplace(chosen->identity, m_round).second)
        m_matches.emplace(path, chosen->file);
}

bool FileMatching::isFree(std::size_t candidate) const
{
    const auto taken = m_taken.find(m_candidates[candidate].identity);
    return taken == m_taken.end() || taken->second == m_round;
}

/// The only file among the candidates (which may be several paths to it), or the one beside the
/// workspace; null if there are several.
const FileMatching::Candidate*
FileMatching::onlyOne(const std::vector<std::size_t>& candidates) const
{
    const auto beside = std::find_if(candidates.begin(), candidates.end(), [this](std::size_t one) {
        return folderIn(m_candidates[one].file) == m_folder;
    });
    if (beside != candidates.end())
        return &m_candidates[*beside];
    const Candidate& first = m_candidates[candidates.front()];
    const bool isOne = std::all_of(candidates.begin(), candidates.end(), [&](std::size_t one) {
        return m_candidates[one].identity == first.identity;
    });
    return isOne ? &first : nullptr;
}

} // namespace tarsil
