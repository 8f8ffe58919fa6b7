#pragma once

#include "app/MarkDialog.h"

#include <memory>

namespace tarsil {

namespace Ui {
class dlgDampLine;
}

/// The dialog "Add Damping Line": draws a line at a structural damping g, given as a fraction
/// (0.01 is 1 %), across the V-g curves of the active plot. The user is asked for a number at each
/// change to a text that is none; the beginning of one, such as "-", may stand there while he is
/// typing it.
class dlgDampLine : public MarkDialog
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
    void sdampInp_Change(const QString& text);
    void sdampInp_LostFocus();
    void sdampBtn_Click();

    std::unique_ptr<Ui::dlgDampLine> m_ui;
    bool m_isLeft = false; ///< the input of the value, and what stands in it was not looked at yet
};

} // namespace tarsil
