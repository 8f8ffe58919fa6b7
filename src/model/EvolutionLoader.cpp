#include "model/EvolutionLoader.h"

#include "runtime/BusyStatus.h"
#include "runtime/ErrorGuard.h"
#include "runtime/PathNames.h"

#include <filesystem>
#include <system_error>

namespace tarsil::mdlMain {

namespace {

constexpr std::string_view moduleName = "mdlMain";

/// Whether the file system knows that two paths lead to one file.
bool leadToOneFile(const std::filesystem::path& one, const std::filesystem::path& other)
{
    std::error_code unknown;
    return std::filesystem::equivalent(one, other, unknown) && !unknown;
}

/// The open evolution of this file, which folder and name identify; null when there is none.
const EVM* openedFrom(const Session& session, std::string_view path)
{
    const FilePath file = resolvePath(path);
    const std::filesystem::path native = nativePath(path);
    for (const auto& evolution : session.evolutions) {
        if (evolution->Folder == file.folder && evolution->FileName == file.name)
            return evolution.get();
        if (leadToOneFile(nativePath(evolution->path()), native))
            return evolution.get();
    }
    return nullptr;
}

/// The new evolution; null when the file is skipped, after a message that says why.
EVM* load(Session& session, const std::string& path, UserInterface& userInterface)
{
    if (!fileExists(path)) {
        userInterface.showMessage("Modal evolution file not found:\n" + shownPath(path), "Error",
                                  MessageIcon::Critical);
        return nullptr;
    }
    if (const EVM* const open = openedFrom(session, path)) {
        userInterface.showMessage("Modal Evolution [" + open->FileName + "] Already Loaded.",
                                  "Tarsil", MessageIcon::Exclamation);
        return nullptr;
    }
    return &session.open(path);
}

} // namespace

std::vector<std::string> OpenFileDialog(UserInterface& userInterface, std::string_view filter,
                                        std::size_t filterIndex, bool several)
{
    std::vector<std::string> files;
    guarded(userInterface, moduleName, [&] {
        files = userInterface.askOpenFiles({std::string(filter), filterIndex, several, {}});
    });
    return files;
}

std::vector<EVM*> loadEvolutions(Session& session, const std::vector<std::string>& paths,
                                 UserInterface& userInterface,
                                 const std::function<void()>& refreshExplorer)
{
    const BusyStatus status(userInterface, openingStatus);
    std::vector<EVM*> loaded;
    std::size_t done = 0;
    for (const std::string& path : paths) {
        guarded(userInterface, moduleName, [&] {
            if (EVM* const evolution = load(session, path, userInterface))
                loaded.push_back(evolution);
        });
        userInterface.showProgress(++done, paths.size());
    }
    if (!loaded.empty() && refreshExplorer)
        guarded(userInterface, moduleName, refreshExplorer);
    return loaded;
}

} // namespace tarsil::mdlMain
