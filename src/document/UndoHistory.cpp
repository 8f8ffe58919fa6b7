#include "document/UndoHistory.h"

#include "document/Document.h"

#include <QScopedValueRollback>
#include <QString>

#include <utility>

namespace tarsil {

/// A change of the document, already made when the step is pushed.
class UndoHistory::Step : public QUndoCommand
{
public:
    Step(UndoHistory& history, const QString& name, DocumentState before, DocumentState after,
         Joining joining)
        : QUndoCommand(name), m_history(history), m_before(std::move(before)),
          m_after(std::move(after)), m_joining(joining)
    { }

    void undo() override { m_history.restoreAndKnow(m_before); }

    void redo() override
    {
        if (std::exchange(m_isMade, true))
            m_history.restoreAndKnow(m_after);
    }

    int id() const override
    {
        constexpr int joins = 1;
        constexpr int staysAlone = -1;
        return m_joining == Joining::No ? staysAlone : joins;
    }

    bool mergeWith(const QUndoCommand* later) override
    {
        const auto& next = static_cast<const Step&>(*later);
        if (next.m_joining == Joining::Begins || next.m_after.active != m_after.active
            || next.text() != text())
            return false;
        m_after = next.m_after;
        setObsolete(m_after.isSameAs(m_before));
        return true;
    }

private:
    UndoHistory& m_history;
    DocumentState m_before;
    DocumentState m_after;
    Joining m_joining;
    bool m_isMade = false;
};

UndoHistory::UndoHistory(Document& document) : m_document(document) { }

UndoHistory::~UndoHistory() = default;

void UndoHistory::change(const QString& name, const Change& change, Joining joining)
{
    if (m_isChanging)
        return change();
    note(QStringLiteral("Change"));
    const QScopedValueRollback changing(m_isChanging, true);
    try {
        change();
    } catch (...) {
        restore(m_document, m_known);
        throw;
    }
    push(name, stateOf(m_document, m_known), joining);
}

void UndoHistory::note(const QString& name, Joining joining)
{
    if (!m_isChanging)
        push(name, stateOf(m_document, m_known), joining);
}

/// Makes a step of the difference between what is known and what is now.
void UndoHistory::push(const QString& name, DocumentState now, Joining joining)
{
    DocumentState before = std::exchange(m_known, now);
    if (!now.isSameAs(before))
        m_steps.push(new Step(*this, name, std::move(before), std::move(now), joining));
}

void UndoHistory::restoreAndKnow(const DocumentState& state)
{
    const QScopedValueRollback changing(m_isChanging, true);
    restore(m_document, state);
    m_known = state;
}

void UndoHistory::undo()
{
    note(QStringLiteral("Change"));
    m_steps.undo();
}

void UndoHistory::redo()
{
    note(QStringLiteral("Change"));
    m_steps.redo();
}

void UndoHistory::clear()
{
    m_steps.clear();
    m_known = stateOf(m_document, {});
}

} // namespace tarsil
