#include "options/ListInput.h"

#include "runtime/Numbers.h"

#include <QAction>
#include <QLineEdit>
#include <QStyle>

namespace tarsil {

namespace {

constexpr QChar separator = u'|';

} // namespace

ListInput::ListInput(QLineEdit& input, qsizetype count, const QString& countWord)
    : m_input(input), m_count(count), m_usualToolTip(input.toolTip()),
      m_usualDescription(input.accessibleDescription()),
      m_warning(input.addAction(input.style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                QLineEdit::TrailingPosition))
{
    m_warning->setToolTip(
        QStringLiteral("Ignored: %1 numbers with | between them are needed").arg(countWord));
    connect(&m_input, &QLineEdit::textChanged, this, &ListInput::showWhetherIgnored);
    showWhetherIgnored();
}

bool ListInput::isEmpty() const
{
    return m_input.text().isEmpty();
}

bool ListInput::fits() const
{
    return m_input.text().count(separator) == m_count - 1;
}

std::vector<float> ListInput::numbers(std::string_view module) const
{
    std::vector<float> values;
    if (!fits())
        return values;
    for (const QString& part : m_input.text().split(separator))
        values.push_back(toSingle(part.toStdString(), module, nameOf(values.size())));
    return values;
}

std::string ListInput::nameOf(std::size_t place) const
{
    return m_input.accessibleName().toStdString() + ", number " + std::to_string(place + 1);
}

void ListInput::showWhetherIgnored()
{
    const bool isIgnored = !isEmpty() && !fits();
    m_warning->setVisible(isIgnored);
    m_input.setToolTip(isIgnored ? m_warning->toolTip() : m_usualToolTip);
    m_input.setAccessibleDescription(isIgnored ? m_warning->toolTip() : m_usualDescription);
}

} // namespace tarsil
