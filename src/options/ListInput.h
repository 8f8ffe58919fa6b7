#pragma once

#include "plotwindow/InputWarning.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

class QLineEdit;

namespace tarsil {

/// An input for a fixed count of numbers with "|" between them. A text of another count of parts is
/// ignored, and the input shows that while the user types: a warning sign says what is needed.
class ListInput : public QObject
{
public:
    /// `input` must outlive this object. `countWord` is `count` as a word: "six".
    ListInput(QLineEdit& input, qsizetype count, const QString& countWord);

    bool isEmpty() const;

    /// Whether there are exactly as many parts as numbers are wanted.
    bool fits() const;

    /// The numbers of a text that fits; none otherwise. Errors 13 and 6 name the input, the place
    /// of the number and the text; `module` is their source.
    std::vector<float> numbers(std::string_view module) const;

    /// Brings the user to the input, unless he is in another one.
    void goTo();

    /// What errors call the number at a place counted from 0.
    std::string nameOf(std::size_t place) const;

private:
    void showWhetherIgnored();

    QLineEdit& m_input;
    qsizetype m_count;
    QString m_needed; ///< what a text that is ignored lacks
    InputWarning m_warning;
};

} // namespace tarsil
