#pragma once

#include "app/MarkDialog.h"

#include <memory>

namespace tarsil {

namespace Ui {
class dlgRefSpeed;
}

/// The dialog "Add Reference Speed": marks a speed in knots (KEAS) on the speed axis of the active
/// plot.
class dlgRefSpeed : public MarkDialog
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
