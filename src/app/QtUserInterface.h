#pragma once

#include "runtime/UserInterface.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace tarsil {

class StatusPanels;

/// The user's answers by the platform's own dialogs, over one window and its status bar.
class QtUserInterface : public UserInterface
{
public:
    /// Dialogs belong to `window` and texts go to `panels` from now on; neither may end before this
    /// object is used for the last time.
    void attach(QWidget* window, StatusPanels* panels);

    void showMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    bool confirm(const std::string& question, const std::string& title) override;
    std::optional<std::string> askText(const std::string& prompt,
                                       const std::string& initial) override;
    std::vector<std::string> askOpenFiles(const FileQuestion& question) override;
    std::optional<std::string> askSaveFile(const FileQuestion& question) override;
    void showStatus(std::string_view text) override;
    void showProgress(std::size_t done, std::size_t total) override;

private:
    QWidget* m_window = nullptr;
    StatusPanels* m_panels = nullptr;
};

/// The entries of a filter ("text|pattern|...") as the toolkit's dialogs take them. The pattern in
/// the text, which need not be the one that holds, stays in sight.
QStringList nameFilters(const std::string& filter);

} // namespace tarsil
