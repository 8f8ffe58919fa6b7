#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tarsil {

/// Finds for stored paths which of several files they mean, each file meant by one path at most: a
/// path gets the free file with which it shares most of its last folders besides the name, since
/// these tell namesakes apart. Equal spelling goes before names that differ in their case. Of files
/// that are equally good the first is taken; of paths that mean a file equally well the first gets
/// it, and the others none, for any other one could be wrong.
class FileMatching
{
public:
    /// A file that is nobody's any more.
    void take(const std::filesystem::path& file);

    /// A path that is to get a file.
    void addPath(const std::string& stored);

    /// A file that can be got; the same one a second time changes nothing.
    void addFile(const std::filesystem::path& file);

    /// The files by the stored paths that get one.
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
        std::string stored;
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
    void settle(std::size_t length, NameList names);
    void give(Wanted& wanted, const std::vector<const Candidate*>& candidates);

    std::vector<Wanted> m_wanted;
    std::vector<Candidate> m_candidates;
    std::set<std::string> m_added; ///< files that were added
    std::set<std::string> m_taken; ///< identities
    std::map<std::string, std::filesystem::path> m_matches;
};

} // namespace tarsil
