#pragma once

#include "base/user/UserInterface.h"
#include "workspace/WorkspaceRecord.h"

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class EVM;
class EvmPlot;
class Session;
class wndEvolExplorer;
class wndEvolPlot;

namespace mdlWorkSpace {
constexpr std::string_view filter = "Tarsil Workspace (*.tsw)|*.tsw|";
constexpr std::string_view module = "mdlWorkSpace";
} // namespace mdlWorkSpace

/// New, Open and Save: the workspace as a file, and what is on the screen. A failure is reported in
/// module "mdlWorkSpace"; what was opened before it stays.
class WorkspaceCommands
{
public:
    /// All must outlive this object.
    WorkspaceCommands(Session& session, wndEvolPlot& plots, wndEvolExplorer& explorer,
                      UserInterface& userInterface);

    /// A new, untitled workspace.
    void New();

    /// Asks for a file and opens it in the place of what is there.
    void OpenWorkSpace();

    /// Opens the workspace of the command line: a path, with or without double quotes.
    void OpenWorkSpace(const std::string& path);

    /// Asks for a file and writes it, whole or not at all; tells first which rows of the plots have
    /// no curve, which the file does not keep.
    void SaveWorkSpace();

    /// Asks the user whether changes since the last save may be lost; true also when there are
    /// none.
    bool mayDiscard();

    /// What is there now counts as saved.
    void remember();

private:
    WorkspaceRecord gather() const;
    WorkspaceRecord state() const;
    void open(const std::string& path);
    std::vector<EVM*> loadFiles(const WorkspaceRecord& record, const std::string& path);
    void tellOfNamesakes(const std::vector<std::string>& stored,
                         const std::vector<std::string>& files, const std::string& path);
    EvmPlot& plotFor(std::size_t index, const QString& caption);
    void takeEditsAlong();
    bool mayReplace(const std::string& path) const;
    void write(const std::string& path);

    Session& m_session;
    wndEvolPlot& m_plots;
    wndEvolExplorer& m_explorer;
    UserInterface& m_userInterface;
    std::string m_path; ///< what saving proposes; empty for an untitled workspace
    bool m_isPartial = false; ///< the file at `m_path` holds more than is here, or another thing
    WorkspaceRecord m_saved; ///< the state when it was last saved or opened
};

} // namespace tarsil
