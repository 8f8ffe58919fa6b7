// SPDX-License-Identifier: Apache-2.0
#include "document/UndoHistory.h"

#include "base/files/PathNames.h"
#include "base/user/RunTimeError.h"
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

/// A change of a file, already made when the step is pushed.
class UndoHistory::FileStep : public QUndoCommand
{
public:
    FileStep(UndoHistory& history, const QString& name, FileChange change)
        : QUndoCommand(name), m_history(history), m_change(std::move(change))
    { }

    void undo() override
    {
        if (hasText(*m_change.evolution, m_change.after)) {
            write(m_change.before);
            return;
        }
        m_history.m_refusal = refusal() + "; the step is removed";
        setObsolete(true);
    }

    void redo() override
    {
        if (!std::exchange(m_isMade, true))
            return;
        if (!hasText(*m_change.evolution, m_change.before))
            throw RunTimeError(ErrorNumber::InvalidProcedureCall, "UndoHistory", refusal());
        write(m_change.after);
    }

private:
    void write(const std::string& wanted)
    {
        replaceFile(m_history.m_document.evolutions(), *m_change.evolution, wanted);
    }

    std::string refusal() const
    {
        return "\"" + text().toStdString() + "\": " + shownPath(m_change.evolution->path())
            + " has been changed or removed by another program";
    }

    UndoHistory& m_history;
    FileChange m_change;
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

void UndoHistory::changeFile(const QString& name, FileChange change)
{
    note(QStringLiteral("Change"));
    replaceFile(m_document.evolutions(), *change.evolution, change.after);
    m_steps.push(new FileStep(*this, name, std::move(change)));
}

void UndoHistory::undo()
{
    note(QStringLiteral("Change"));
    m_refusal.clear();
    m_steps.undo();
    if (!m_refusal.empty())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "UndoHistory", m_refusal);
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
