// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QGroupBox>

#include <memory>

namespace tarsil {

namespace Ui {
class TitlePanel;
}

class DataCommands;

/// The group "Title Options": header and reference speeds from the reference evolution, and the
/// flutter mechanism that gives the plot its subtitle and axes.
class TitlePanel : public QGroupBox
{
    Q_OBJECT

public:
    /// `commands` must outlive the panel.
    explicit TitlePanel(const DataCommands& commands, QWidget* parent = nullptr);
    ~TitlePanel() override;

private:
    void fillMechanisms();
    void btnAutoRef_Click();
    void btnMakHead_Click();
    void cmbFlutMech_Click();

    const DataCommands& m_commands;
    std::unique_ptr<Ui::TitlePanel> m_ui;
};

} // namespace tarsil
