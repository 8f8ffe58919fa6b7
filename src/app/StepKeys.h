// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

namespace tarsil {

/// An event filter of the application that passes the keys of undo and redo to the document when
/// the input field that has the focus has no typing of its own to undo or redo. Editors that open
/// in place (cells, labels, axes) keep these keys.
class StepKeys : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tarsil
