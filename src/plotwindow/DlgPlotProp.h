// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/EvmPlot.h"

#include <QDialog>

#include <memory>

namespace tarsil {

class UserInterface;

namespace Ui {
class dlgPlotProp;
}

/// The dialog "Plot Properties": bounds, tick counts and titles of the three axes of a plot. It is
/// created for each use and shows the plot as it was then.
class dlgPlotProp : public QDialog
{
    Q_OBJECT

public:
    /// `plot` and `userInterface` must outlive the dialog.
    dlgPlotProp(EvmPlot& plot, UserInterface& userInterface, QWidget* parent = nullptr);
    ~dlgPlotProp() override;

private:
    void Form_Load();
    void OKButton_Click();
    void applyInputs();

    std::unique_ptr<Ui::dlgPlotProp> m_ui;
    EvmPlot& m_plot;
    UserInterface& m_userInterface;
};

} // namespace tarsil
