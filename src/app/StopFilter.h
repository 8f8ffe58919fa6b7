// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

class QAbstractButton;

namespace tarsil {

/// While it exists, the windows accept no input but a click on a button, or the key Escape, which
/// stop an operation. Other input is dropped.
class StopFilter : public QObject
{
    Q_OBJECT

public:
    /// `button` must outlive the filter.
    explicit StopFilter(const QAbstractButton& button);
    ~StopFilter() override;

    /// Whether the user has stopped the operation.
    bool isStopped() const { return m_isStopped; }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    bool isOnButton(const QEvent& event) const;

    const QAbstractButton& m_button;
    bool m_isStopped = false;
};

} // namespace tarsil
