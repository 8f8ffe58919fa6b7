#include "options/WarningSign.h"

#include <QAction>
#include <QLineEdit>
#include <QStyle>

namespace tarsil {

WarningSign::WarningSign(QLineEdit& input, const QString& reason)
    : m_input(input), m_reason(reason), m_usualToolTip(input.toolTip()),
      m_usualDescription(input.accessibleDescription()),
      m_sign(input.addAction(input.style()->standardIcon(QStyle::SP_MessageBoxWarning),
                             QLineEdit::TrailingPosition))
{
    m_sign->setToolTip(reason);
    m_sign->setVisible(false);
}

void WarningSign::setVisible(bool isVisible)
{
    m_sign->setVisible(isVisible);
    m_input.setToolTip(isVisible ? m_reason : m_usualToolTip);
    m_input.setAccessibleDescription(isVisible ? m_reason : m_usualDescription);
}

} // namespace tarsil
