// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "app/ReferenceDialog.h"

#include <memory>

namespace tarsil {

namespace Ui {
class dlgDampLine;
}

/// The dialog "Add Damping Line": draws a line at a structural damping g, given as a fraction (0.01
/// is 1 %), across the V-g curves of the active plot. A change to a text that is not a number shows
/// a message at once; the start of a number, such as "-", is accepted while the user is typing.
class dlgDampLine : public ReferenceDialog
{
    Q_OBJECT

public:
    /// Both must outlive the dialog.
    dlgDampLine(Document& document, UserInterface& userInterface, QWidget* parent = nullptr);
    ~dlgDampLine() override;

protected:
    void fillDefaults() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void sdampInp_Change();
    void sdampInp_LostFocus();
    void sdampBtn_Click();

    std::unique_ptr<Ui::dlgDampLine> m_ui;
    bool m_isLeft = false; ///< the focus has left the input, and its text was not checked yet
};

} // namespace tarsil
