#pragma once

#include <QObject>

namespace tarsil {

/// An event filter of the application: every message box shows its text as it stands. So do those
/// that the toolkit opens by itself, such as the question of a file dialog whether to replace a
/// file, whose name may look like mark-up.
class PlainMessageBoxes : public QObject
{
    Q_OBJECT

public:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace tarsil
