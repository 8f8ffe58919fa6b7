#include "app/DlgDampLine.h"

#include "ui_DlgDampLine.h"

#include "runtime/ErrorGuard.h"
#include "runtime/NumberFormat.h"
#include "runtime/Numbers.h"
#include "vgf/EvmPlot.h"

#include <utility>

namespace tarsil {

namespace {

constexpr std::string_view moduleName = "dlgDampLine";

/// A fraction in per cent with two decimals. It is rounded before it is multiplied, where its
/// decimal digits still are those that were typed; afterwards there is nothing left to round.
std::string percentText(double fraction)
{
    const double rounded = toDouble(formatNumber(fraction, "0.0000"), moduleName, {});
    return formatNumber(rounded * 100, "0.00");
}

} // namespace

dlgDampLine::dlgDampLine(ActivePlot activePlot, UserInterface& userInterface, QWidget* parent)
    : MarkDialog(std::move(activePlot), userInterface, parent),
      m_ui(std::make_unique<Ui::dlgDampLine>())
{
    m_ui->setupUi(this);
    dlgDampLine::fillDefaults();
    connect(m_ui->sdampInp, &QLineEdit::textChanged, this, &dlgDampLine::sdampInp_Change);
    connect(m_ui->sdampBtn, &QPushButton::clicked, this, &dlgDampLine::sdampBtn_Click);
}

dlgDampLine::~dlgDampLine() = default;

void dlgDampLine::fillDefaults()
{
    m_ui->sdampInp->setText(QStringLiteral("0.01"));
    m_ui->captionInp->setText(QStringLiteral("g = 1.00 %"));
}

void dlgDampLine::sdampInp_Change(const QString& text)
{
    m_ui->captionInp->clear();
    double value = 0;
    if (parseDouble(text.toStdString(), value) != NumberStatus::Ok)
        return askForNumber();
    guarded(userInterface(), moduleName, [this, value] {
        m_ui->captionInp->setText(QString::fromStdString("g = " + percentText(value) + " %"));
    });
}

void dlgDampLine::sdampBtn_Click()
{
    addMark(*m_ui->sdampInp, moduleName,
            [this](EvmPlot& plot, float g) { plot.AddDampLine(g, m_ui->captionInp->text()); });
}

} // namespace tarsil
