// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/user/UserInterface.h"
#include "options/OptionsStore.h"

#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QFileDialog;
class QWidget;

namespace tarsil {

class OperationInput;
class StatusPanels;

/// When the progress of an operation is shown.
struct ProgressTimes
{
    std::chrono::milliseconds delay {500}; ///< from the status on until the bar is shown
    std::chrono::milliseconds interval {50}; ///< the shortest one between two updates
};

/// Implements the user interface by the platform's dialogs and a status bar. The parent of a dialog
/// is the window that the user works in; afterwards that window is active again, with the focus
/// where it was.
class QtUserInterface : public UserInterface
{
public:
    explicit QtUserInterface(const ProgressTimes& times = {});
    ~QtUserInterface() override;

    /// Dialogs belong to `window` while no window of the program is active; status texts go to
    /// `panels`. Both must exist whenever this object is used. What the user types and clicks while
    /// an operation runs is handled as by `OperationInput`.
    void attach(QWidget* window, StatusPanels* panels);

    /// File dialogs begin in the folder in which files of their kind were last chosen, also in an
    /// earlier run.
    void rememberFolders(OptionsStore store) { m_store = std::move(store); }

    void showMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    bool confirm(const std::string& question, const std::string& title) override;
    Unsaved askToSave(const std::string& question, const std::string& title) override;
    std::optional<std::string> askText(const std::string& prompt, const std::string& title,
                                       const std::string& initial) override;
    std::optional<std::size_t> askChoice(const std::string& prompt, const std::string& title,
                                         const std::vector<std::string>& choices) override;
    std::vector<std::string> askOpenFiles(const FileQuestion& question) override;
    std::optional<std::string> askSaveFile(const FileQuestion& question) override;
    std::optional<std::string> askFolder(const std::string& initial) override;
    void showStatus(std::string_view text) override;
    void showNote(std::string_view text) override;
    void beginCommand() override;

    /// The windows are painted at most once in an interval. After the delay the status bar has a
    /// progress bar and the button "Stop"; Escape stops the operation too.
    bool showProgress(std::size_t done, std::size_t total) override;

private:
    bool isStoppedMeanwhile(std::size_t done, std::size_t total);
    void endProgress();
    QWidget* asker() const;
    void goToLastFolder(QFileDialog& dialog, const FileQuestion& question) const;
    std::vector<std::string> chosenFiles(QWidget* asker, QFileDialog& dialog,
                                         const FileQuestion& question);

    ProgressTimes m_times;
    QElapsedTimer m_sinceStatus; ///< since the first of several operations in a row began
    QElapsedTimer m_sinceReady;
    QElapsedTimer m_sinceUpdate; ///< invalid until the progress of an operation is updated
    QWidget* m_window = nullptr;
    StatusPanels* m_panels = nullptr;
    std::unique_ptr<OperationInput> m_input; ///< null without panels
    std::optional<OptionsStore> m_store;
};

/// Converts a filter ("text|pattern|...") for Qt's dialogs. The pattern inside the text, which may
/// differ from the actual one, stays visible.
QStringList nameFilters(const std::string& filter);

} // namespace tarsil
