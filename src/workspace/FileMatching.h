#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
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
/// Equal spelling goes before names that differ in their case alone.
class FileMatching
{
public:
    /// `folder` is that of the workspace.
    explicit FileMatching(std::filesystem::path folder) : m_folder(std::move(folder)) { }

    // `key` is the same for all spellings of one path.

    /// A file that is at the place of a path.
    void take(const std::string& key, const std::string& stored, const std::filesystem::path& file);

    /// A path that is to get a file.
    void addPath(const std::string& key, const std::string& stored);

    /// A file that can be got; the same one a second time changes nothing.
    void addFile(const std::filesystem::path& file);

    /// The files by the keys of the paths that get one.
    std::map<std::string, std::filesystem::path> match();

private:
    /// Folders and name from the last to the first, as they are and without case.
    struct Names
    {
        std::vector<std::string> exact;
        std::vector<std::string> caseless;
    };
    struct Wanted
    {
        std::string key;
        Names names;
        bool isSettled = false;
    };
    struct Candidate
    {
        std::filesystem::path file;
        std::string identity; ///< the same for two ways to one file
        Names names;
    };
    using NameList = std::vector<std::string> Names::*;

    static Names namesOf(const std::filesystem::path& path);
    static std::string tail(const std::vector<std::string>& names, std::size_t length);
    std::unordered_map<std::string, int> listedTails(std::size_t length, NameList names) const;
    void settle(std::size_t length, NameList names);
    void give(Wanted& wanted, const std::vector<const Candidate*>& candidates);
    const Candidate* onlyOne(const std::vector<const Candidate*>& candidates) const;

    std::filesystem::path m_folder;
    std::map<std::string, Names> m_listed; ///< all paths of the workspace by their keys
    std::vector<Wanted> m_wanted;
    std::vector<Candidate> m_candidates;
    std::set<std::string> m_added; ///< files that were added
    std::set<std::string> m_taken; ///< identities
    std::map<std::string, std::filesystem::path> m_matches;
};

} // namespace tarsil
