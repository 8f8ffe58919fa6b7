#pragma once

#include <QString>

class QAction;
class QLineEdit;

namespace tarsil {

/// The mark in an input that what stands there does not count: a warning sign at its end, and in
/// the place of the input's tool tip and accessible description a text that says what is needed.
class InputWarning
{
public:
    /// `input` must outlive this object; its tool tip and description are those of now.
    explicit InputWarning(QLineEdit& input);

    /// An empty text takes the mark away.
    void show(const QString& text);

private:
    QLineEdit& m_input;
    QString m_usualToolTip;
    QString m_usualDescription;
    QAction* m_sign; ///< belongs to the input
};

} // namespace tarsil
