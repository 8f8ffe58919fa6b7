#pragma once

#include "app/MarkDialog.h"

#include <memory>

namespace tarsil {

namespace Ui {
class dlgDampLine;
}

/// The dialog "Add Damping Line": draws a line at a structural damping g, given as a fraction
/// (0.01 is 1 %), across the V-g curves of the active plot.
class dlgDampLine : public MarkDialog
{
    Q_OBJECT

public:
    /// `userInterface` must outlive the dialog.
    dlgDampLine(ActivePlot activePlot, UserInterface& userInterface, QWidget* parent = nullptr);
    ~dlgDampLine() override;

protected:
    void fillDefaults() override;

private:
    void sdampInp_Change(const QString& text);
    void sdampBtn_Click();

    std::unique_ptr<Ui::dlgDampLine> m_ui;
};

} // namespace tarsil
