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

/// Applies the inputs and closes the dialog; it stays open when one of them is no number.
void dlgPlotProp::OKButton_Click()
{
    if (guarded(m_userInterface, moduleName, [this] { applyInputs(); }))
        accept();
}

/// In this order, so that a failure leaves in force what comes before it: all bounds together, each
/// tick count, the titles. No range is checked.
void dlgPlotProp::applyInputs()
{
    const PlotBounds bounds {numberIn(*m_ui->inpVmin), numberIn(*m_ui->inpVmax),
                             numberIn(*m_ui->inpFmin), numberIn(*m_ui->inpFmax),
                             numberIn(*m_ui->inpGmin), numberIn(*m_ui->inpGmax)};
    PlotAxes axes = m_plot.axes();
    axes.setBounds(bounds);
    m_plot.setAxes(axes);
    m_plot.properties().setVthicks(countIn(*m_ui->inpVnthicks));
    m_plot.properties().setGthicks(countIn(*m_ui->inpGnthicks));
    m_plot.properties().setFthicks(countIn(*m_ui->inpFnthicks));
    m_plot.properties().setVLabel(m_ui->inpVlabel->text());
    m_plot.properties().setGLabel(m_ui->inpGlabel->text());
    m_plot.properties().setFLabel(m_ui->inpFlabel->text());
}

} // namespace tarsil
