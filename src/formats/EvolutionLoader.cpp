#include "formats/EvolutionLoader.h"

#include "base/files/PathNames.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "formats/EvolutionFile.h"
#include "formats/FormatTable.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view moduleName = "mdlMain";

/// The open evolutions by what leads to their files, so that one of thousands is found at once.
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

    /// The evolution of the file that a path leads to; null when it is not open.
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
    std::unordered_map<std::string, EVM*> m_byPath; ///< in stored form
    std::unordered_map<std::string, EVM*> m_byIdentity;
};

/// Loads files one after the other.
class Loader
{
public:
    Loader(const OwnedEvolutions& open, UserInterface& userInterface)
        : m_userInterface(userInterface), m_open(open)
    { }

    /// Says of each file by itself that it is missing, or of all of them at the end.
    enum class Missing { ToldOneByOne, ToldTogether };

    LoadedEvolutions load(const std::vector<std::string>& paths, Missing missing);

private:
    EVM* loadOne(const std::string& path, std::size_t number, Missing missing);
    void tellMissing() const;
    void tellFailures() const;

    UserInterface& m_userInterface;
    OpenFiles m_open;
    OwnedEvolutions m_added;
    std::vector<std::string> m_missing; ///< what they are called; not told yet
    std::vector<std::string> m_failures; ///< the reports of files that cannot be read
};

LoadedEvolutions Loader::load(const std::vector<std::string>& paths, Missing missing)
{
    const BusyStatus status(m_userInterface, mdlMain::openingStatus);
    std::vector<EVM*> evolutions;
    for (const std::string& path : paths) {
        EVM* evolution = nullptr;
        const std::size_t number = evolutions.size() + 1;
        if (auto failure =
                reportOf(moduleName, [&] { evolution = loadOne(path, number, missing); }))
            m_failures.push_back(std::move(*failure));
        evolutions.push_back(evolution);
        m_userInterface.showProgress(evolutions.size(), paths.size());
    }
    if (!m_missing.empty())
        tellMissing();
    if (!m_failures.empty())
        tellFailures();
    return {std::move(m_added), std::move(evolutions)};
}

/// `number` is the place in the list, from 1.
EVM* Loader::loadOne(const std::string& path, std::size_t number, Missing missing)
{
    if (!fileExists(path)) {
        m_missing.push_back(path.empty() ? "file " + std::to_string(number)
                                    + " of the list, which has no path"
                                         : shownPath(path));
        if (missing == Missing::ToldOneByOne) {
            tellMissing();
            m_missing.clear();
        }
        return nullptr;
    }
    if (EVM* const open = m_open.find(path)) {
        m_userInterface.showMessage("Modal Evolution [" + open->FileName + "] Already Loaded.",
                                    "Tarsil", MessageIcon::Exclamation);
        return open;
    }
    EVM& evolution = *m_added.emplace_back(openEvolution(path));
    m_open.add(evolution);
    return &evolution;
}

void Loader::tellMissing() const
{
    constexpr std::size_t mostLines = 20; // a message box has no end otherwise
    const std::size_t shown = std::min(m_missing.size(), mostLines);
    std::string text = "Modal evolution file not found:";
    for (std::size_t i = 0; i < shown; ++i)
        text.append("\n").append(m_missing[i]);
    if (shown < m_missing.size())
        text.append("\nand " + std::to_string(m_missing.size() - shown) + " more");
    m_userInterface.showMessage(text, "Error", MessageIcon::Critical);
}

/// The reports with an empty line between them.
void Loader::tellFailures() const
{
    constexpr std::size_t mostReports = 8; // of two lines or more
    const std::size_t shown = std::min(m_failures.size(), mostReports);
    std::string text;
    for (std::size_t i = 0; i < shown; ++i)
        text.append(i > 0 ? "\n\n" : "").append(m_failures[i]);
    if (shown < m_failures.size())
        text.append("\n\nand " + std::to_string(m_failures.size() - shown) + " more");
    m_userInterface.showMessage(text, "Error", MessageIcon::Critical);
}

} // namespace

namespace mdlMain {

std::string evolutionFilter()
{
    std::string filter;
    for (const EvolutionFormat* format : evolutionFormats())
        filter += format->filter;
    return filter + "All Files (*.*)|*.*|";
}

std::vector<std::string> OpenFileDialog(UserInterface& userInterface, std::string_view filter,
                                        std::size_t filterIndex, bool several)
{
    std::vector<std::string> files;
    guarded(userInterface, moduleName, [&] {
        files = userInterface.askOpenFiles({std::string(filter), filterIndex, several, {}});
    });
    return files;
}

LoadedEvolutions loadEvolutions(const OwnedEvolutions& open, const std::vector<std::string>& paths,
                                UserInterface& userInterface)
{
    return Loader(open, userInterface).load(paths, Loader::Missing::ToldOneByOne);
}

LoadedEvolutions loadListedEvolutions(const OwnedEvolutions& open,
                                      const std::vector<std::string>& paths,
                                      UserInterface& userInterface)
{
    return Loader(open, userInterface).load(paths, Loader::Missing::ToldTogether);
}

} // namespace mdlMain

} // namespace tarsil
