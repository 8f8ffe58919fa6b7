#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class Document;
class UserInterface;
struct Namesake;

namespace mdlWorkSpace {
constexpr std::string_view filter = "Tarsil Workspace (*.tsw)|*.tsw|";
constexpr std::string_view module = "mdlWorkSpace";
} // namespace mdlWorkSpace

/// New, Open and Save: what they ask and tell the user around the document's own. A failure is
/// reported in module "mdlWorkSpace"; what was opened before it stays.
class WorkspaceCommands
{
public:
    /// Both must outlive this object.
    WorkspaceCommands(Document& document, UserInterface& userInterface)
        : m_document(document), m_userInterface(userInterface)
    { }

    /// A new, untitled workspace.
    void New();

    /// Asks for a file and opens it in place of what is there.
    void OpenWorkSpace();

    /// Opens the workspace of the command line: a path, with or without double quotes.
    void OpenWorkSpace(const std::string& path);

    /// Asks for a file and writes it, whole or not at all; says first which rows of the plots have
    /// no curve, which the file does not keep.
    void SaveWorkSpace();

    /// Asks the user whether changes since the last save may be lost; true also when there are
    /// none.
    bool mayDiscard();

private:
    void open(const std::string& path);
    void showNamesakes(const std::vector<Namesake>& namesakes);
    bool mayReplace(const std::string& path) const;
    void write(const std::string& path);

    Document& m_document;
    UserInterface& m_userInterface;
};

} // namespace tarsil
