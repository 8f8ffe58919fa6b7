// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

#include <memory>
#include <vector>

namespace tarsil {

namespace Ui {
class wndSelModes;
}

class AeMode;
class EVM;
class UserInterface;
class wndEvolExplorer;
class wndEvolPlot;

/// The dialog "Select Multiple Modes": picks modes of the evolution selected in the explorer and
/// adds a curve for each to the active plot. Keeps nothing between uses.
class wndSelModes : public QDialog
{
    Q_OBJECT

public:
    /// The first three must outlive the dialog.
    wndSelModes(wndEvolExplorer& explorer, wndEvolPlot& plots, UserInterface& user,
                QWidget* parent = nullptr);
    ~wndSelModes() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Form_Load();
    void cmd_Add_Click();
    void cmd_Ok_Click();
    std::vector<AeMode*> chosenModes(const EVM& evolution) const;

    wndEvolExplorer& m_explorer;
    wndEvolPlot& m_plots;
    UserInterface& m_user;
    std::unique_ptr<Ui::wndSelModes> m_ui;
};

} // namespace tarsil
