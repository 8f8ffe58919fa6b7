// SPDX-License-Identifier: Apache-2.0
#include "formats/EvolutionLoader.h"

#include "base/files/PathNames.h"
#include "base/text/ShortList.h"
#include "base/user/BusyStatus.h"
#include "base/user/ErrorGuard.h"
#include "formats/EvolutionFile.h"
#include "formats/FormatTable.h"
#include "formats/ListOpener.h"

#include <exception>
#include <string>
#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view moduleName = "mdlMain";

/// Loads files and shows the results to the user.
class Loader : private ListOpener
{
public:
    /// Whether missing files are reported one by one, or all at the end.
    enum class Missing { ReportedOneByOne, ReportedTogether };

    Loader(UserInterface& userInterface, Missing missing)
        : m_userInterface(userInterface), m_missingReports(missing)
    { }

    LoadedEvolutions load(const OwnedEvolutions& open, const std::vector<std::string>& paths);

private:
    bool isWanted(std::size_t /*index*/) const override { return true; }
    EVM& open(const std::string& path) override;
    void foundOpen(const EVM& evolution) override;
    void isMissing(std::size_t index, const std::string& path) override;
    void cannotOpen(std::size_t index, const std::exception_ptr& error) override;
    bool isDone(std::size_t count) override;
    void showMissing();

    UserInterface& m_userInterface;
    Missing m_missingReports;
    std::size_t m_count = 0;
    bool m_isStopped = false;
    OwnedEvolutions m_added;
    std::vector<std::string> m_missing; ///< names still to be reported
    std::vector<std::string> m_failures; ///< reports of files that cannot be read
};

LoadedEvolutions Loader::load(const OwnedEvolutions& open, const std::vector<std::string>& paths)
{
    const BusyStatus status(m_userInterface, mdlMain::openingStatus);
    m_count = paths.size();
    std::vector<EVM*> listed = openListed(open, paths, *this);
    if (!m_missing.empty())
        showMissing();
    if (!m_failures.empty())
        m_userInterface.showMessage(shortList(m_failures, mostReports, "\n\n"), "Error",
                                    MessageIcon::Critical);
    if (m_isStopped)
        m_userInterface.showNote("Stopped: " + std::to_string(m_added.size()) + " of "
                                 + std::to_string(m_count) + " evolutions were loaded");
    return {std::move(m_added), std::move(listed)};
}

EVM& Loader::open(const std::string& path)
{
    return *m_added.emplace_back(openEvolution(path));
}

void Loader::foundOpen(const EVM& evolution)
{
    m_userInterface.showMessage("Modal Evolution [" + evolution.FileName + "] Already Loaded.",
                                "Tarsil", MessageIcon::Exclamation);
}

void Loader::isMissing(std::size_t index, const std::string& path)
{
    m_missing.push_back(path.empty() ? "file " + std::to_string(index + 1)
                                + " of the list, which has no path"
                                     : shownPath(path));
    if (m_missingReports == Missing::ReportedOneByOne)
        showMissing();
}

void Loader::cannotOpen(std::size_t /*index*/, const std::exception_ptr& error)
{
    if (auto report = reportOf(moduleName, [&error] { std::rethrow_exception(error); }))
        m_failures.push_back(std::move(*report));
}

/// A stop after the last file changes nothing.
bool Loader::isDone(std::size_t count)
{
    m_isStopped = !m_userInterface.showProgress(count, m_count) && count < m_count;
    return !m_isStopped;
}

void Loader::showMissing()
{
    m_userInterface.showMessage("Modal evolution file not found:\n"
                                    + shortList(m_missing, mostFileLines),
                                "Error", MessageIcon::Critical);
    m_missing.clear();
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
    return Loader(userInterface, Loader::Missing::ReportedOneByOne).load(open, paths);
}

LoadedEvolutions loadListedEvolutions(const OwnedEvolutions& open,
                                      const std::vector<std::string>& paths,
                                      UserInterface& userInterface)
{
    return Loader(userInterface, Loader::Missing::ReportedTogether).load(open, paths);
}

} // namespace mdlMain

} // namespace tarsil
