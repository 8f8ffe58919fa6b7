// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

namespace tarsil {

/// An event filter of the application that makes every message box plain text, also those that Qt
/// opens itself, such as the question of a file dialog whether to replace a file: a file name may
/// look like mark-up.
class PlainMessageBoxes : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tarsil
