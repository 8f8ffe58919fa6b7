// SPDX-License-Identifier: Apache-2.0
#include "app/ReferenceDialog.h"

#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "plotwindow/NumberInput.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace tarsil {

ReferenceDialog::ReferenceDialog(Document& document, UserInterface& userInterface, QWidget* parent)
    : QDialog(parent), m_document(document), m_userInterface(userInterface)
{ }

void ReferenceDialog::done(int result)
{
    fillDefaults(); // first, because a slot of the signal may delete the dialog
    QDialog::done(result);
}

void ReferenceDialog::addNumber(QLineEdit& input, const QString& step, std::string_view module,
                                const std::function<void(EvmPlot&, float)>& add)
{
    m_userInterface.beginCommand();
    guarded(m_userInterface, module, [&] {
        const auto value = NumberInput(input, module, "Value").typedSingle(m_userInterface);
        if (!value)
            return;
        EvmPlot* const plot = m_document.plots().active();
        if (plot == nullptr)
            m_userInterface.showMessage("Please select activate a plot.", "Tarsil",
                                        MessageIcon::Exclamation);
        else
            add(*plot, *value);
    });
    m_document.history().note(step);
}

/// Enter presses the default button, but adds only once while it is held down.
void ReferenceDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isEnter || !event->isAutoRepeat())
        QDialog::keyPressEvent(event);
}

} // namespace tarsil
