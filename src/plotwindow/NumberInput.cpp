// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/NumberInput.h"

#include "base/numbers/Numbers.h"
#include "base/user/RunTimeError.h"
#include "base/user/TypedNumber.h"

#include <QLineEdit>

#include <cmath>
#include <utility>

namespace tarsil {

namespace {

/// Removes the final colon of a label that is used as a name.
std::string inputName(const QLineEdit& input)
{
    return input.accessibleName().remove(u':').toStdString();
}

} // namespace

NumberInput::NumberInput(QLineEdit& input, std::string_view module)
    : NumberInput(input, module, inputName(input))
{ }

NumberInput::NumberInput(QLineEdit& input, std::string_view module, std::string name)
    : m_input(input), m_module(module), m_name(std::move(name))
{ }

std::string NumberInput::text() const
{
    return m_input.text().toStdString();
}

double NumberInput::number() const
{
    return toDouble(text(), m_module, m_name);
}

float NumberInput::single() const
{
    return toSingle(text(), m_module, m_name);
}

std::optional<float> NumberInput::typedSingle(UserInterface& user) const
{
    float value = 0;
    if (parseSingle(text(), value) != NumberStatus::Ok)
        goTo();
    return tarsil::typedSingle(text(), m_module, m_name, user);
}

std::optional<double> NumberInput::numberIfAny() const
{
    double value = 0;
    return parseDouble(text(), value) == NumberStatus::Ok ? std::optional(value) : std::nullopt;
}

bool NumberInput::isBegun() const
{
    double value = 0;
    const std::string typed = text();
    return !m_input.text().trimmed().isEmpty()
        && parseDouble(typed, value) == NumberStatus::NotANumber
        && parseDouble(typed + '0', value) == NumberStatus::Ok;
}

std::int16_t NumberInput::integer16() const
{
    return roundToInteger16(static_cast<double>(single()), m_module, m_name);
}

std::int16_t NumberInput::integer16Before(const QString& separator) const
{
    const std::string text = m_input.text().section(separator, 0, 0).toStdString();
    return toInteger16(text, m_module, m_name);
}

std::int32_t NumberInput::count(std::int32_t most) const
{
    constexpr std::int32_t any = std::numeric_limits<std::int32_t>::max();
    const double count = std::nearbyint(number());
    if (count > any)
        throwNumberError(NumberStatus::Overflow, text(), m_module, m_name);
    if (count < 1 || count > most)
        throw RunTimeError(
            ErrorNumber::InvalidProcedureCall, std::string(m_module),
            m_name + ": " + text()
                + (most == any ? " is less than 1" : " is not from 1 to " + std::to_string(most)));
    return static_cast<std::int32_t>(count);
}

void NumberInput::goTo() const
{
    if (qobject_cast<QLineEdit*>(m_input.window()->focusWidget()) == nullptr)
        m_input.setFocus();
}

} // namespace tarsil
