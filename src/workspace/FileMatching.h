#pragma once

#include "workspace/FileIdentities.h"

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tarsil {

/// Finds for the paths that a workspace lists, and where nothing is, which of the files near it
/// they mean: the one that shares most of its last folders, besides the name. A wrong file is worse
/// than none, so a path gets a file only when
///
/// - what they share tells the path from every other one that the workspace lists: where several
///   are called "wing.ev2", a file must be in a folder of the right name;
/// - no other file shares as much, unless one is beside the workspace;
/// - the file is no other path's.
///
/// Equal spelling goes before names that differ in their case alone. It takes the
/// time of sorting the paths and files, and about their memory.
class FileMatching
{
public:
    // Paths and files are texts with "/" between their names.

    /// `folder` is that of the workspace.
    explicit FileMatching(std::string folder) : m_folder(std::move(folder)) { }

    /// A path of the workspace, and the file that is there.
    void take(std::string_view path, const std::string& file);

    /// A path of the workspace that is to get a file; the first one has the number 0.
    void addPath(std::string_view path);

    /// A file that can be got; the same one a second time changes nothing.
    void addFile(const std::string& file);

    /// The files by the numbers of the paths that get one.
    std::map<std::size_t, std::string> match();

private:
    struct Candidate
    {
        std::string file;
        std::string identity; ///< the same for two ways to one file
    };

    /// A file that shares so many names with a path that they tell it from all others.
    struct Meeting
    {
        std::size_t names;
        bool isCaseless;
        std::size_t path;
        std::size_t candidate;
    };

    std::vector<Meeting> meetings() const;
    void settle(std::size_t path, std::vector<std::size_t> candidates);
    bool isFree(std::size_t candidate) const;
    const Candidate* onlyOne(const std::vector<std::size_t>& candidates) const;

    std::string m_folder;
    FileIdentities m_identities;
    std::vector<std::string> m_wanted; ///< tails of paths that are to get a file
    std::vector<std::string> m_present; ///< tails of paths that have theirs
    std::vector<Candidate> m_candidates;
    std::unordered_set<std::string> m_added; ///< files that were added
    std::unordered_map<std::string, std::size_t> m_taken; ///< identities, and in which round
    std::size_t m_round = 0; ///< of matching, each of one number of names
    std::set<std::size_t> m_settled; ///< paths that have met a file
    std::map<std::size_t, std::string> m_matches;
};

} // namespace tarsil
