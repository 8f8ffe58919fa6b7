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

/// What a file dialog offers.
struct FileQuestion
{
    std::string filter; ///< pairs "text|pattern|", one after the other
    std::size_t filterIndex = 1; ///< the entry shown first, counted from 1
    bool takesSeveral = false;
    std::string fileName; ///< the name that stands there at first
    bool confirmsReplacing = true; ///< whether a dialog that saves asks before a file is replaced
};

/// What the program asks of its user or tells him; whoever needs that does not know the windows.
/// Texts are UTF-8. The windows implement it with the platform's dialogs, the tests with a script.
class UserInterface
{
public:
    UserInterface() = default;
    virtual ~UserInterface();
    UserInterface(const UserInterface&) = delete;
    UserInterface& operator=(const UserInterface&) = delete;

    /// A box with an OK button. The text's lines are separated by "\n" or "\r".
    virtual void showMessage(const std::string& text, const std::string& title,
                             MessageIcon icon) = 0;

    /// A question with Yes and No; true for Yes.
    virtual bool confirm(const std::string& question, const std::string& title) = 0;

    /// A question with Save, Discard and Cancel, of which Save is the default.
    virtual Unsaved askToSave(const std::string& question, const std::string& title) = 0;

    /// One line of text, with `initial` in its field at first; none when the user cancels.
    virtual std::optional<std::string> askText(const std::string& prompt, const std::string& title,
                                               const std::string& initial) = 0;

    /// Files to open, with their folders; none when the user cancels.
    virtual std::vector<std::string> askOpenFiles(const FileQuestion& question) = 0;

    /// The file to save to. None when the user cancels.
    virtual std::optional<std::string> askSaveFile(const FileQuestion& question) = 0;

    /// A folder that exists, with `initial` shown at first. None when the user cancels.
    virtual std::optional<std::string> askFolder(const std::string& initial) = 0;

    /// The first panel of the status bar: what is going on.
    virtual void showStatus(std::string_view text) = 0;

    /// What a command leaves to say when it has ended, such as where a file went: beside the
    /// status, until the next command begins.
    virtual void showNote(std::string_view text) = 0;

    /// The user begins a command: the status is "Ready", and the note of the one before goes.
    virtual void beginCommand() = 0;

    /// How far a long operation is; the windows are painted meanwhile, but take no input. `done`
    /// equal to `total` ends it.
    virtual void showProgress(std::size_t done, std::size_t total) = 0;
};

} // namespace tarsil
