// SPDX-License-Identifier: Apache-2.0
#include "options/ListInput.h"

#include "base/numbers/Numbers.h"
#include "plotwindow/NumberInput.h"

#include <QLineEdit>

namespace tarsil {

namespace {

constexpr QChar separator = u'|';

} // namespace

ListInput::ListInput(QLineEdit& input, qsizetype count, const QString& countWord)
    : m_input(input), m_count(count),
      m_needed(QStringLiteral("Ignored: %1 numbers separated by | are required").arg(countWord)),
      m_message(input)
{
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

void ListInput::goTo()
{
    NumberInput(m_input, {}).goTo();
}

std::string ListInput::nameOf(std::size_t index) const
{
    return m_input.accessibleName().toStdString() + ", number " + std::to_string(index + 1);
}

void ListInput::showWhetherIgnored()
{
    m_message.show(isEmpty() || fits() ? QString() : m_needed);
}

} // namespace tarsil
