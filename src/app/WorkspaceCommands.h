// SPDX-License-Identifier: Apache-2.0
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

/// The commands New, Open and Save: questions and messages around the functions of the document.
/// Failures are reported in module "mdlWorkSpace"; what was opened before stays.
class WorkspaceCommands
{
public:
    /// Both must outlive this object.
    WorkspaceCommands(Document& document, UserInterface& userInterface)
        : m_document(document), m_userInterface(userInterface)
    { }

    /// Starts a new, untitled workspace.
    void New();

    /// Asks for a file and replaces the document by it.
    void OpenWorkSpace();

    /// Opens the workspace of the command line; the path may be in double quotes.
    void OpenWorkSpace(const std::string& path);

    /// Offers to open the copy of a program that did not end properly. Returns whether it is open
    /// now. The copy is removed only if the user confirms that, too.
    bool recover(RecoveryCopy& copy);

    /// Shows which files of the command line were not opened because the copy is open.
    void showNotOpened(const std::vector<std::string>& files);

    /// Asks for a file and writes it, whole or not at all. First shows which rows of the plots have
    /// no curve, because the file does not keep them. Returns whether it was written.
    bool SaveWorkSpace();

    /// Asks whether to save changes since the last save, and saves them. False when the user
    /// cancels or saving fails: the workspace must stay then. True without a question when nothing
    /// has changed.
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
