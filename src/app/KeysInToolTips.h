// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

namespace tarsil {

/// An event filter of the application that adds its key to the tool tip of every push button that
/// has one: "Writes the table as .xlsx or .csv (Alt+T)". A button without a tool tip gets its
/// caption as one. Buttons of tool bars show the tool tips of their actions.
class KeysInToolTips : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tarsil
