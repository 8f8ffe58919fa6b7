// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarsil {

/// What becomes of changes that are not saved.
enum class Unsaved { Save, Discard, Cancel };

enum class MessageIcon { None, Exclamation, Critical };

/// The settings of a file dialog.
struct FileQuestion
{
    std::string filter; ///< pairs "text|pattern|"
    std::size_t filterIndex = 1; ///< the entry selected at first, counted from 1
    bool takesSeveral = false;
    std::string fileName; ///< the initial name
    bool confirmsReplacing = true; ///< whether a save dialog asks before it replaces a file
    /// In a save dialog the entries of the filter from this one on, counted from 1, append their
    /// extension to the name; 0: none does.
    std::size_t firstExtending = 0;
};

/// What the program asks its user and shows to him. Its callers know no windows: the program
/// implements it with the platform's dialogs, the tests with a script. Texts are UTF-8.
class UserInterface
{
public:
    UserInterface() = default;
    virtual ~UserInterface();
    UserInterface(const UserInterface&) = delete;
    UserInterface& operator=(const UserInterface&) = delete;

    /// Shows a box with an OK button. Lines are separated by "\n" or "\r".
    virtual void showMessage(const std::string& text, const std::string& title,
                             MessageIcon icon) = 0;

    /// Asks a question with Yes and No. Returns true for Yes.
    virtual bool confirm(const std::string& question, const std::string& title) = 0;

    /// Asks a question with Save, the default, Discard and Cancel.
    virtual Unsaved askToSave(const std::string& question, const std::string& title) = 0;

    /// Asks for a line of text; `initial` is the text at first. Empty when the user cancels.
    virtual std::optional<std::string> askText(const std::string& prompt, const std::string& title,
                                               const std::string& initial) = 0;

    /// Asks for one of several choices; returns its index. The first one is selected at first.
    /// Empty when the user cancels.
    virtual std::optional<std::size_t> askChoice(const std::string& prompt,
                                                 const std::string& title,
                                                 const std::vector<std::string>& choices) = 0;

    /// Asks for files to open; returns their full paths. Empty when the user cancels.
    virtual std::vector<std::string> askOpenFiles(const FileQuestion& question) = 0;

    /// Asks for a file to save to. Empty when the user cancels.
    virtual std::optional<std::string> askSaveFile(const FileQuestion& question) = 0;

    /// Asks for an existing folder; `initial` is the folder at first. Empty when the user cancels.
    virtual std::optional<std::string> askFolder(const std::string& initial) = 0;

    /// Sets the first panel of the status bar: the current operation.
    virtual void showStatus(std::string_view text) = 0;

    /// Shows a result beside the status, such as where a file was written. It stays until the next
    /// command begins.
    virtual void showNote(std::string_view text) = 0;

    /// A command begins: the status becomes "Ready", and the note of the last command is removed.
    virtual void beginCommand() = 0;

    /// Shows the progress of a long operation. The windows are painted meanwhile but accept no
    /// input, except that the user can stop the operation. Returns whether to go on. `done` equal
    /// to `total`, the answer to stop, or a new status ends the progress.
    virtual bool showProgress(std::size_t done, std::size_t total) = 0;
};

} // namespace tarsil
