#pragma once

#include "base/user/UserInterface.h"

#include <QString>
#include <QStringList>

class QWidget;

namespace tarsil {

class StatusPanels;

/// The user's answers by the platform's own dialogs, and a status bar. A dialog belongs to the
/// window that asks: the one that the user is working in. Afterwards he is there again, with the
/// keyboard where it was.
class QtUserInterface : public UserInterface
{
public:
    /// Dialogs belong to `window` while no window of the program is active, and texts go to
    /// `panels` from now on; neither may end before this object is used for the last time.
    void attach(QWidget* window, StatusPanels* panels);

    void showMessage(const std::string& text, const std::string& title, MessageIcon icon) override;
    bool confirm(const std::string& question, const std::string& title) override;
    Unsaved askToSave(const std::string& question, const std::string& title) override;
    std::optional<std::string> askText(const std::string& prompt, const std::string& title,
                                       const std::string& initial) override;
    std::vector<std::string> askOpenFiles(const FileQuestion& question) override;
    std::optional<std::string> askSaveFile(const FileQuestion& question) override;
    std::optional<std::string> askFolder(const std::string& initial) override;
    void showStatus(std::string_view text) override;
    void showNote(std::string_view text) override;
    void beginCommand() override;
    void showProgress(std::size_t done, std::size_t total) override;

private:
    QWidget* asker() const;

    QWidget* m_window = nullptr;
    StatusPanels* m_panels = nullptr;
};

/// The entries of a filter ("text|pattern|...") as the toolkit's dialogs take them. The pattern in
/// the text, which need not be the one that holds, stays in sight.
QStringList nameFilters(const std::string& filter);

} // namespace tarsil
