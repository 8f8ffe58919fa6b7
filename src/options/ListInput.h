// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plotwindow/InputMessage.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class QLineEdit;

namespace tarsil {

/// An input for a fixed number of values separated by "|". A text with another number of parts is
/// ignored; a sign at the input says what is required while the user types.
class ListInput : public QObject
{
public:
    /// `input` must outlive this object. `countWord` is `count` as a word: "six".
    ListInput(QLineEdit& input, qsizetype count, const QString& countWord);

    bool isEmpty() const;

    /// Whether the number of parts is right.
    bool fits() const;

    /// The numbers of a text that fits; empty otherwise. Errors 13 and 6 name the input, the
    /// position of the number, and the text. `module` is the source of the errors.
    std::vector<float> numbers(std::string_view module) const;

    /// Moves the focus to the input, unless the user is in another one.
    void goTo();

    /// The name of a number in errors; `index` is counted from 0.
    std::string nameOf(std::size_t index) const;

private:
    void showWhetherIgnored();

    QLineEdit& m_input;
    qsizetype m_count;
    QString m_needed; ///< message for a text that is ignored
    InputMessage m_message;
};

} // namespace tarsil
