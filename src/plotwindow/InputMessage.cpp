// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/InputMessage.h"

#include <QAction>
#include <QLineEdit>
#include <QStyle>

namespace tarsil {

InputMessage::InputMessage(QLineEdit& input)
    : m_input(input), m_usualToolTip(input.toolTip()),
      m_usualDescription(input.accessibleDescription()),
      m_sign(input.addAction(input.style()->standardIcon(QStyle::SP_MessageBoxWarning),
                             QLineEdit::TrailingPosition))
{
    m_sign->setVisible(false);
}

void InputMessage::show(const QString& text)
{
    const bool isShown = !text.isEmpty();
    m_sign->setVisible(isShown);
    m_sign->setToolTip(text);
    m_input.setToolTip(isShown ? text : m_usualToolTip);
    m_input.setAccessibleDescription(isShown ? text : m_usualDescription);
}

} // namespace tarsil
