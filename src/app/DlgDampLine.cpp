// SPDX-License-Identifier: Apache-2.0
#include "app/DlgDampLine.h"

#include "ui_DlgDampLine.h"

#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"
#include "base/user/TypedNumber.h"
#include "plotwindow/NumberInput.h"
#include "vgfplot/EvmPlot.h"

#include <QFocusEvent>

#include <optional>

namespace tarsil {

namespace {

constexpr std::string_view moduleName = "dlgDampLine";

/// A fraction in per cent with two decimals. It is rounded before the multiplication, while its
/// decimal digits are still those that were typed.
std::string percentText(double fraction)
{
    const double rounded = toDouble(formatNumber(fraction, "0.0000"), moduleName, {});
    return formatNumber(rounded * 100, "0.00");
}

/// Whether the focus moves to another widget of the same window.
bool leavesWidget(const QEvent& event)
{
    if (event.type() != QEvent::FocusOut)
        return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent&>(event).reason();
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason
        && reason != Qt::MenuBarFocusReason;
}

} // namespace

dlgDampLine::dlgDampLine(Document& document, UserInterface& userInterface, QWidget* parent)
    : ReferenceDialog(document, userInterface, parent), m_ui(std::make_unique<Ui::dlgDampLine>())
{
    m_ui->setupUi(this);
    dlgDampLine::fillDefaults();
    m_ui->sdampInp->installEventFilter(this);
    connect(m_ui->sdampInp, &QLineEdit::textChanged, this, &dlgDampLine::sdampInp_Change);
    connect(m_ui->sdampBtn, &QPushButton::clicked, this, &dlgDampLine::sdampBtn_Click);
}

dlgDampLine::~dlgDampLine() = default;

void dlgDampLine::fillDefaults()
{
    m_ui->sdampInp->setText(QStringLiteral("0.01"));
    m_ui->captionInp->setText(QStringLiteral("g = 1.00 %"));
}

void dlgDampLine::sdampInp_Change()
{
    m_ui->captionInp->clear();
    const NumberInput input(*m_ui->sdampInp, moduleName);
    if (input.isBegun())
        return;
    const std::optional<double> damping = input.numberIfAny();
    if (!damping)
        return askForNumber(userInterface());
    guarded(userInterface(), moduleName, [this, damping] {
        m_ui->captionInp->setText(QString::fromStdString("g = " + percentText(*damping) + " %"));
    });
}

/// The message is shown only after the focus has moved: a box in between would swallow the press of
/// a button.
bool dlgDampLine::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->sdampInp && leavesWidget(*event)) {
        m_isLeft = true;
        QMetaObject::invokeMethod(this, &dlgDampLine::sdampInp_LostFocus, Qt::QueuedConnection);
    }
    return ReferenceDialog::eventFilter(watched, event);
}

/// "Add" shows its own message.
void dlgDampLine::sdampInp_LostFocus()
{
    if (!m_isLeft || m_ui->sdampBtn->isDown()
        || !NumberInput(*m_ui->sdampInp, moduleName).isBegun())
        return;
    m_isLeft = false;
    m_ui->sdampInp->setFocus();
    askForNumber(userInterface());
}

void dlgDampLine::sdampBtn_Click()
{
    m_isLeft = false;
    addNumber(*m_ui->sdampInp, tr("Add Damping Line"), moduleName, [this](EvmPlot& plot, float g) {
        plot.references().AddDampLine(g, m_ui->captionInp->text());
    });
}

} // namespace tarsil
