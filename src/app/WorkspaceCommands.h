#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

class Document;
class RecoveryCopy;
class UserInterface;
struct Namesake;
struct OpenedWorkspace;

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

    /// Offers to open what a program left behind that did not end properly. Returns whether it is
    /// open now; a copy that the user does not want is removed.
    bool recover(RecoveryCopy& copy);

    /// Asks for a file and writes it, whole or not at all; says first which rows of the plots have
    /// no curve, which the file does not keep. Returns whether it was written.
    bool SaveWorkSpace();

    /// Asks the user whether to save what has changed since the last time, and saves it. False when
    /// the user cancels or it could not be saved: the workspace must stay then.
    bool mayLeave();

private:
    void open(const std::string& path);
    void show(const OpenedWorkspace& opened);
    void showNamesakes(const std::vector<Namesake>& namesakes);
    bool mayReplace(const std::string& path) const;
    void write(const std::string& path);

    Document& m_document;
    UserInterface& m_userInterface;
};

} // namespace tarsil
