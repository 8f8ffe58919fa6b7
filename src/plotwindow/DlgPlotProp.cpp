// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/DlgPlotProp.h"

#include "ui_DlgPlotProp.h"

#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"
#include "plotwindow/NumberInput.h"

namespace tarsil {

namespace {

constexpr std::string_view moduleName = "dlgPlotProp";

QString textOf(float value)
{
    return QString::fromStdString(shortestText(value));
}

NumberInput in(QLineEdit* input)
{
    return {*input, moduleName};
}

} // namespace

dlgPlotProp::dlgPlotProp(EvmPlot& plot, UserInterface& userInterface, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::dlgPlotProp>()), m_plot(plot),
      m_userInterface(userInterface)
{
    m_ui->setupUi(this);
    setModal(true);
    connect(m_ui->OKButton, &QPushButton::clicked, this, &dlgPlotProp::OKButton_Click);
    connect(m_ui->CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    Form_Load();
}

dlgPlotProp::~dlgPlotProp() = default;

void dlgPlotProp::Form_Load()
{
    const PlotAxes axes = m_plot.axes();
    m_ui->inpVmin->setText(textOf(axes.speed.min));
    m_ui->inpVmax->setText(textOf(axes.speed.max));
    m_ui->inpFmin->setText(textOf(axes.frequency.min));
    m_ui->inpFmax->setText(textOf(axes.frequency.max));
    m_ui->inpGmin->setText(textOf(axes.damping.min));
    m_ui->inpGmax->setText(textOf(axes.damping.max));
    m_ui->inpVnthicks->setText(QString::number(axes.speed.ticks));
    m_ui->inpGnthicks->setText(QString::number(axes.damping.ticks));
    m_ui->inpFnthicks->setText(QString::number(axes.frequency.ticks));
    m_ui->inpVlabel->setText(m_plot.properties().vLabel());
    m_ui->inpGlabel->setText(m_plot.properties().gLabel());
    m_ui->inpFlabel->setText(m_plot.properties().fLabel());
}

/// Applies the inputs and closes the dialog. The dialog stays open when an input is not a number.
void dlgPlotProp::OKButton_Click()
{
    if (guarded(m_userInterface, moduleName, [this] { applyInputs(); }))
        accept();
}

/// Applies all bounds together, then each tick count, then the titles. An error leaves applied what
/// comes before it. Ranges are not checked.
void dlgPlotProp::applyInputs()
{
    const PlotBounds bounds {in(m_ui->inpVmin).single(), in(m_ui->inpVmax).single(),
                             in(m_ui->inpFmin).single(), in(m_ui->inpFmax).single(),
                             in(m_ui->inpGmin).single(), in(m_ui->inpGmax).single()};
    PlotAxes axes = m_plot.axes();
    axes.setBounds(bounds);
    m_plot.setAxes(axes);
    m_plot.properties().setVthicks(in(m_ui->inpVnthicks).integer16());
    m_plot.properties().setGthicks(in(m_ui->inpGnthicks).integer16());
    m_plot.properties().setFthicks(in(m_ui->inpFnthicks).integer16());
    m_plot.properties().setVLabel(m_ui->inpVlabel->text());
    m_plot.properties().setGLabel(m_ui->inpGlabel->text());
    m_plot.properties().setFLabel(m_ui->inpFlabel->text());
}

} // namespace tarsil
