// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <vector>

namespace tarsil {

class EVM;

/// Checks the files of evolutions for warnings in the background: one file, in the order of
/// arrival, each time the event loop is idle. So even a thousand files do not block the user.
class EvolutionWarnings : public QObject
{
    Q_OBJECT

public:
    explicit EvolutionWarnings(QObject* parent = nullptr);

    void add(EVM& evolution);

    /// Evolutions that are removed are no longer checked.
    void forget(const std::vector<EVM*>& evolutions);

Q_SIGNALS:
    /// The file of an evolution has warnings (`warningsOf`).
    void found(tarsil::EVM* evolution, const QString& warnings);

private:
    void checkNext();

    std::deque<EVM*> m_waiting;
    QTimer m_pause;
};

/// The warnings about the file of an evolution, one on a line: "line 7: ...". Of more than 20 lines
/// the last one contains the number of the others. A file that cannot be read is a warning too.
/// Empty when there is none.
QString warningsOf(const EVM& evolution);

} // namespace tarsil
