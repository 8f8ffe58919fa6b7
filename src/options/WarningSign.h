#pragma once

#include <QString>

class QAction;
class QLineEdit;

namespace tarsil {

/// A warning sign in an input, for a text that is not taken as it stands. While it is shown, its
/// tool tip is that of the input, too, and what a screen reader says of the input.
class WarningSign
{
public:
    /// Not shown at first. `input` must outlive this object.
    WarningSign(QLineEdit& input, const QString& reason);

    void setVisible(bool isVisible);

private:
    QLineEdit& m_input;
    QString m_reason;
    QString m_usualToolTip;
    QString m_usualDescription;
    QAction* m_sign; ///< belongs to the input
};

} // namespace tarsil
