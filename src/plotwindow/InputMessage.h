// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QAction;
class QLineEdit;

namespace tarsil {

/// The sign at an input whose contents are not accepted: an icon at its end, and a text about what
/// is required as tool tip and accessible description.
class InputMessage
{
public:
    /// `input` must outlive this object. Its present tool tip and description come back later.
    explicit InputMessage(QLineEdit& input);

    /// Shows a message; an empty text removes it.
    void show(const QString& text);

private:
    QLineEdit& m_input;
    QString m_usualToolTip;
    QString m_usualDescription;
    QAction* m_sign; ///< belongs to the input
};

} // namespace tarsil
