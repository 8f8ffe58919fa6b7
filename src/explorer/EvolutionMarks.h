#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <vector>

namespace tarsil {

class EVM;

/// Looks through the files of evolutions for what is doubtful, in slices: one file each time the
/// event loop has nothing else to do, in the order in which they came. So a thousand of them keep
/// nobody waiting.
class EvolutionMarks : public QObject
{
    Q_OBJECT

public:
    explicit EvolutionMarks(QObject* parent = nullptr);

    void add(EVM& evolution);

    /// Evolutions that go are not looked at any more.
    void forget(const std::vector<EVM*>& evolutions);

Q_SIGNALS:
    /// The file of an evolution holds what `findings` says, at most 20 lines.
    void found(tarsil::EVM* evolution, const QString& findings);

private:
    void checkNext();

    std::deque<EVM*> m_waiting;
    QTimer m_pause;
};

/// What is doubtful in the file of an evolution, one finding a line: "line 7: ...". Beyond 20 lines
/// the last one says how many more there are. A file that cannot be read is a finding, too; empty
/// when there is none.
QString findingsText(const EVM& evolution);

} // namespace tarsil
