// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>

class QLineEdit;

namespace tarsil {

class UserInterface;

/// The number in an input field. Errors 13 "Type mismatch" and 6 "Overflow" name the field and its
/// text.
class NumberInput
{
public:
    /// `input` must outlive this object; its accessible name is the name in errors. `module` is the
    /// source of errors.
    NumberInput(QLineEdit& input, std::string_view module);

    /// With `name` as the name in errors.
    NumberInput(QLineEdit& input, std::string_view module, std::string name);

    double number() const;
    float single() const;

    /// The single. When the text is not a number: empty, after the message that a number is needed.
    /// When there is a message or an error the field gets the focus as by `goTo`.
    std::optional<float> typedSingle(UserInterface& user) const;

    /// The number; empty unless the text is a number in the range of a double.
    std::optional<double> numberIfAny() const;

    /// Whether the text is not a number, but becomes one with another digit: "-", ".", "1e-".
    bool isBegun() const;

    /// The single, rounded to a whole number, ties to even.
    std::int16_t integer16() const;

    /// The number before `separator`, rounded to a whole number, ties to even. The text after it is
    /// an explanation.
    std::int16_t integer16Before(const QString& separator) const;

    /// The number, rounded to a whole number, ties to even. Error 5 unless it is from 1 to `most`.
    std::int32_t count(std::int32_t most = std::numeric_limits<std::int32_t>::max()) const;

    /// Moves the keyboard focus to the field, unless another field of the window has it: after a
    /// message the user can correct the number at once.
    void goTo() const;

private:
    std::string text() const;

    QLineEdit& m_input;
    std::string_view m_module;
    std::string m_name;
};

} // namespace tarsil
