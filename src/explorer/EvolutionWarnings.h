#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <vector>

namespace tarsil {

class EVM;

/// Checks the files of evolutions for warnings, one file each time the event loop has nothing else
/// to do, in the order in which they were added. So a thousand of them keep nobody waiting.
class EvolutionWarnings : public QObject
{
    Q_OBJECT

public:
    explicit EvolutionWarnings(QObject* parent = nullptr);

    void add(EVM& evolution);

    /// Evolutions that are removed are not checked any more.
    void forget(const std::vector<EVM*>& evolutions);

Q_SIGNALS:
    /// The file of an evolution has warnings (`warningsOf`).
    void found(tarsil::EVM* evolution, const QString& warnings);

private:
    void checkNext();

    std::deque<EVM*> m_waiting;
    QTimer m_pause;
};

/// The warnings about the file of an evolution, one in a line: "line 7: ...". Of more than 20 lines
/// the last one is how many more there are. A file that cannot be read is a warning, too; empty
/// when there is none.
QString warningsOf(const EVM& evolution);

} // namespace tarsil
