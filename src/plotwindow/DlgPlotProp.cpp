#include "plotwindow/DlgPlotProp.h"

#include "ui_DlgPlotProp.h"

#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"

namespace tarsil {

namespace {

constexpr std::string_view moduleName = "dlgPlotProp";

QString textOf(float value)
{
    return QString::fromStdString(shortestText(value));
}

/// What stands in an input, as a single; errors 13 and 6 name the input.
float numberIn(const QLineEdit& input)
{
    return toSingle(input.text().toStdString(), moduleName, input.accessibleName().toStdString());
}

std::int16_t countIn(const QLineEdit& input)
{
    return roundToInteger16(static_cast<double>(numberIn(input)), moduleName,
                            input.accessibleName().toStdString());
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
    const EvmPlot::Scale scale = m_plot.GetScale();
    m_ui->inpVmin->setText(textOf(scale.vmin));
    m_ui->inpVmax->setText(textOf(scale.vmax));
    m_ui->inpFmin->setText(textOf(scale.fmin));
    m_ui->inpFmax->setText(textOf(scale.fmax));
    m_ui->inpGmin->setText(textOf(scale.gmin));
    m_ui->inpGmax->setText(textOf(scale.gmax));
    m_ui->inpVnthicks->setText(QString::number(m_plot.vthicks()));
    m_ui->inpGnthicks->setText(QString::number(m_plot.gthicks()));
    m_ui->inpFnthicks->setText(QString::number(m_plot.fthicks()));
    m_ui->inpVlabel->setText(m_plot.vLabel());
    m_ui->inpGlabel->setText(m_plot.gLabel());
    m_ui->inpFlabel->setText(m_plot.fLabel());
}

/// Applies the inputs and closes the dialog; it stays open when one of them is no number. What is
/// applied may be impossible to draw: that is reported, and the dialog closes all the same.
void dlgPlotProp::OKButton_Click()
{
    if (!guarded(m_userInterface, moduleName, [this] { applyInputs(); }))
        return;
    guarded(m_userInterface, moduleName, [this] { m_plot.plot(); });
    accept();
}

/// In this order, so that a failure leaves in force what comes before it: all bounds together, each
/// tick count, the titles. No range is checked.
void dlgPlotProp::applyInputs()
{
    EvmPlot::Scale scale;
    scale.vmin = numberIn(*m_ui->inpVmin);
    scale.vmax = numberIn(*m_ui->inpVmax);
    scale.fmin = numberIn(*m_ui->inpFmin);
    scale.fmax = numberIn(*m_ui->inpFmax);
    scale.gmin = numberIn(*m_ui->inpGmin);
    scale.gmax = numberIn(*m_ui->inpGmax);
    m_plot.SetScale(scale);
    m_plot.setVthicks(countIn(*m_ui->inpVnthicks));
    m_plot.setGthicks(countIn(*m_ui->inpGnthicks));
    m_plot.setFthicks(countIn(*m_ui->inpFnthicks));
    m_plot.setVLabel(m_ui->inpVlabel->text());
    m_plot.setGLabel(m_ui->inpGlabel->text());
    m_plot.setFLabel(m_ui->inpFlabel->text());
}

} // namespace tarsil
