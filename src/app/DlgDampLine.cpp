#include "app/DlgDampLine.h"

#include "ui_DlgDampLine.h"

#include "base/numbers/NumberFormat.h"
#include "base/numbers/Numbers.h"
#include "base/user/ErrorGuard.h"
#include "vgfplot/EvmPlot.h"

#include <QFocusEvent>

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

/// Whether a text is not a number, but becomes one with another digit: "-", ".", "1e-".
bool isBegunNumber(const QString& text)
{
    double value = 0;
    const std::string typed = text.toStdString();
    return !text.trimmed().isEmpty() && parseDouble(typed, value) == NumberStatus::NotANumber
        && parseDouble(typed + '0', value) == NumberStatus::Ok;
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

void dlgDampLine::sdampInp_Change(const QString& text)
{
    m_ui->captionInp->clear();
    double value = 0;
    if (isBegunNumber(text))
        return;
    if (parseDouble(text.toStdString(), value) != NumberStatus::Ok)
        return askForNumber();
    guarded(userInterface(), moduleName, [this, value] {
        m_ui->captionInp->setText(QString::fromStdString("g = " + percentText(value) + " %"));
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
    if (!m_isLeft || m_ui->sdampBtn->isDown() || !isBegunNumber(m_ui->sdampInp->text()))
        return;
    m_isLeft = false;
    m_ui->sdampInp->setFocus();
    askForNumber();
}

void dlgDampLine::sdampBtn_Click()
{
    m_isLeft = false;
    addNumber(*m_ui->sdampInp, tr("Add Damping Line"), moduleName, [this](EvmPlot& plot, float g) {
        plot.references().AddDampLine(g, m_ui->captionInp->text());
    });
}

} // namespace tarsil
