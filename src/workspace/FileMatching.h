// SPDX-License-Identifier: Apache-2.0
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

/// For each path of a workspace at which there is no file, finds the nearby file that it means: the
/// one that shares the longest tail of folders with it, besides the name. A wrong file is worse
/// than none, so a path gets a file only if
///
/// - the shared tail distinguishes the path from all others of the workspace: if several are
///   named "wing.ev2", a file must be in a folder of the right name;
/// - no other file shares as much, unless one is beside the workspace;
/// - the file does not belong to another path.
///
/// Equal spelling is preferred to names that differ only in case. Time is that of sorting paths and
/// files; memory is about their size.
class FileMatching
{
public:
    // Paths and files have "/" as separator.

    /// `folder` is that of the workspace.
    explicit FileMatching(std::string folder) : m_folder(std::move(folder)) { }

    /// Adds a path of the workspace and the file at it.
    void addPresent(std::string_view path, const std::string& file);

    /// Adds a path of the workspace that needs a file. The first one has index 0.
    void addPath(std::string_view path);

    /// Adds a candidate; a repeated one has no effect.
    void addFile(const std::string& file);

    /// Returns the files by the indices of the paths that get one.
    std::map<std::size_t, std::string> match();

private:
    struct Candidate
    {
        std::string file;
        std::string identity; ///< equal for all paths to one file
    };

    /// A file whose shared tail with a path distinguishes that path from all others.
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
    std::vector<std::string> m_wanted; ///< tails of paths that need a file
    std::vector<std::string> m_present; ///< tails of paths that have one
    std::vector<Candidate> m_candidates;
    std::unordered_set<std::string> m_added; ///< files that were added
    std::unordered_map<std::string, std::size_t>
        m_taken; ///< identities of assigned files, with their round
    std::size_t m_round = 0; ///< of matching; a round is one length of tails
    std::set<std::size_t> m_settled; ///< paths that have met a file
    std::map<std::size_t, std::string> m_matches;
};

} // namespace tarsil
