// SPDX-License-Identifier: Apache-2.0

// Random folders and random workspaces: each path must get the file that a direct implementation of
// the rules finds.

#include "workspace/FoundFiles.h"

#include "base/files/AtomicFile.h"
#include "base/files/PathNames.h"
#include "base/text/CaseFolding.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <random>
#include <set>

using namespace tarsil;

namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

/// The components of a path from the last to the first.
Names namesOf(const std::string& path, bool isCaseless)
{
    Names names;
    for (const fs::path& name : nativePath(path))
        names.insert(names.begin(), isCaseless ? withoutCase(pathText(name)) : pathText(name));
    return names;
}

/// A path with its components, as the rules compare them.
struct KnownPath
{
    explicit KnownPath(const std::string& text)
        : path(text), isThere(fileExists(text)), exact(namesOf(text, false)),
          caseless(namesOf(text, true))
    {
        if (isThere)
            identity = fs::canonical(nativePath(text));
        if (hasWindowsPaths)
            identity = nativePath(withoutCase(pathText(identity)));
    }

    std::string path;
    bool isThere;
    fs::path identity;
    Names exact;
    Names caseless;
};

bool shareNames(const KnownPath& a, const KnownPath& b, bool isCaseless, std::size_t count)
{
    const Names& left = isCaseless ? a.caseless : a.exact;
    const Names& right = isCaseless ? b.caseless : b.exact;
    return left.size() >= count && right.size() >= count
        && std::equal(left.begin(), left.begin() + static_cast<std::ptrdiff_t>(count),
                      right.begin());
}

/// A direct implementation of the rules, one length of path tails after the other.
class PlainMatching
{
public:
    PlainMatching(const std::vector<std::string>& stored, fs::path folder)
        : m_stored(stored.begin(), stored.end()), m_folder(std::move(folder))
    {
        for (const KnownPath& path : m_stored) {
            if (path.isThere)
                m_taken.insert(path.identity);
        }
        // By depth, and within a depth by name.
        std::vector<fs::path> folders {m_folder};
        for (std::size_t i = 0; i < folders.size(); ++i) {
            std::set<fs::path> entries;
            for (const auto& entry : fs::directory_iterator(folders[i]))
                entries.insert(entry.path());
            for (const fs::path& entry : entries) {
                if (fs::is_directory(entry) && !fs::is_symlink(entry))
                    folders.push_back(entry);
                else if (fs::is_regular_file(entry))
                    m_files.emplace_back(pathText(entry));
            }
        }
    }

    std::vector<std::string> match()
    {
        constexpr std::size_t mostNames = 20;
        for (std::size_t count = mostNames; count > 0; --count) {
            matchRound(count, false);
            matchRound(count, true);
        }
        std::vector<std::string> files;
        for (const KnownPath& path : m_stored)
            files.push_back(m_found.contains(path.path) ? m_found[path.path] : path.path);
        return files;
    }

private:
    void matchRound(std::size_t count, bool isCaseless)
    {
        const std::set<fs::path> taken = m_taken;
        for (const KnownPath& path : m_stored) {
            std::vector<const KnownPath*> candidates;
            for (const KnownPath& file : m_files) {
                if (!taken.contains(file.identity) && shareNames(path, file, isCaseless, count))
                    candidates.push_back(&file);
            }
            if (!candidates.empty() && isOnlyOne(path, count, isCaseless) && !path.isThere
                && m_settled.insert(path.path).second)
                give(path.path, candidates);
        }
    }

    bool isOnlyOne(const KnownPath& path, std::size_t count, bool isCaseless) const
    {
        return std::all_of(m_stored.begin(), m_stored.end(), [&](const KnownPath& other) {
            return &other == &path || !shareNames(path, other, isCaseless, count);
        });
    }

    void give(const std::string& path, const std::vector<const KnownPath*>& candidates)
    {
        const KnownPath* const first = candidates.front();
        const auto beside =
            std::find_if(candidates.begin(), candidates.end(), [this](const KnownPath* file) {
                return fs::path(file->path).parent_path() == m_folder;
            });
        const bool isOne =
            std::all_of(candidates.begin(), candidates.end(), [first](const KnownPath* file) {
                return file->identity == first->identity;
            });
        const KnownPath* const chosen = beside == candidates.end() ? first : *beside;
        if ((isOne || beside != candidates.end()) && m_taken.insert(chosen->identity).second)
            m_found[path] = chosen->path;
    }

    std::vector<KnownPath> m_stored;
    fs::path m_folder;
    std::vector<KnownPath> m_files;
    std::set<fs::path> m_taken;
    std::set<std::string> m_settled;
    std::map<std::string, std::string> m_found;
};

class RandomWorkspace
{
public:
    explicit RandomWorkspace(unsigned seed) : m_random(seed)
    {
        fs::create_directory(m_folder.path() / "ws");
        const std::size_t count = pick(12);
        for (std::size_t i = 0; i < count; ++i)
            addFile();
        const std::size_t paths = pick(8);
        for (std::size_t i = 0; i < paths; ++i)
            addPath();
    }

    fs::path folder() const { return m_folder.path() / "ws"; }
    const std::vector<std::string>& stored() const { return m_stored; }

private:
    std::size_t pick(std::size_t count)
    {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(m_random);
    }

    template <std::size_t size>
    std::string oneOf(const char* const (&texts)[size])
    {
        return texts[pick(size)];
    }

    std::string folders()
    {
        std::string path;
        for (std::size_t i = pick(4); i > 0; --i)
            path += oneOf({"a", "A", "b", "\u00fc", "\u00dc"}) + '/';
        return path;
    }

    std::string name() { return oneOf({"w.ev2", "W.ev2", "t.ev2", "\u00fc.ev2", "\u00dc.ev2"}); }

    void addFile()
    {
        const fs::path below = folder() / folders();
        const fs::path file = below / name();
        std::error_code failed; // the name exists already, as a file or folder
        fs::create_directories(below, failed);
        const std::size_t kind = pick(10);
        if (kind == 0 && !m_files.empty())
            fs::create_symlink(m_files[pick(m_files.size())], file, failed);
        else if (kind == 1 && !m_files.empty())
            fs::create_hard_link(m_files[pick(m_files.size())], file, failed);
        else if (!fs::exists(file, failed))
            m_folder.write(fs::relative(file, m_folder.path()).string(), "x");
        if (fs::is_regular_file(file, failed))
            m_files.push_back(file);
    }

    void addPath()
    {
        const bool isThere = !m_files.empty() && pick(5) == 0;
        const std::string path = isThere ? pathText(m_files[pick(m_files.size())])
                                         : oneOf({"/gone/", "/", "/x/a/"}) + folders() + name();
        if (std::find(m_stored.begin(), m_stored.end(), path) == m_stored.end())
            m_stored.push_back(path);
    }

    std::mt19937 m_random;
    test::TemporaryFolder m_folder;
    std::vector<fs::path> m_files;
    std::vector<std::string> m_stored;
};

} // namespace

TEST(MovedFiles, areThoseOfTheRules)
{
    std::size_t found = 0;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        const RandomWorkspace workspace(seed);
        const auto files = foundFiles(workspace.stored(), (workspace.folder() / "x.tsw").string());
        ASSERT_EQ(files, PlainMatching(workspace.stored(), workspace.folder()).match())
            << "seed " << seed;
        for (std::size_t i = 0; i < files.size(); ++i)
            found += files[i] != workspace.stored()[i] ? 1 : 0;
    }
    EXPECT_GT(found, hasWindowsPaths ? 80U : 130U) << "most of the rules are met";
}

#ifndef _WIN32 // where folders with long paths are not searched
TEST(MovedFiles, ofDeepFoldersAreFound)
{
    const test::TemporaryFolder folder;
    std::string deep;
    for (int i = 0; i < 400; ++i)
        deep += i % 3 == 0 ? "a/" : "b/";
    fs::create_directories(nativePath(folder.file("ws/" + deep)));
    std::vector<std::string> stored;
    std::vector<std::string> expected;
    for (int i = 0; i < 20; ++i) {
        const std::string name = std::to_string(i) + ".ev2";
        expected.push_back(folder.file("ws/" + deep + name));
        writeFile(expected.back(), "x");
        stored.push_back("/gone/" + deep + name);
    }
    EXPECT_EQ(foundFiles(stored, folder.file("ws/x.tsw")), expected);
}
#endif
