// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/ReferenceDialog.h"

#include <memory>

namespace tarsil {

namespace Ui {
class dlgRefSpeed;
}

/// The dialog "Add Reference Speed": adds a mark at a speed (KEAS) to the speed axis of the active
/// plot.
class dlgRefSpeed : public ReferenceDialog
{
    Q_OBJECT

public:
    /// Both must outlive the dialog.
    dlgRefSpeed(Document& document, UserInterface& userInterface, QWidget* parent = nullptr);
    ~dlgRefSpeed() override;

protected:
    void fillDefaults() override;

private:
    void AddRefBtn_Click();

    std::unique_ptr<Ui::dlgRefSpeed> m_ui;
};

} // namespace tarsil
