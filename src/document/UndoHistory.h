#pragma once

#include "document/DocumentState.h"

#include <QUndoStack>

#include <functional>
#include <optional>

class QString;

namespace tarsil {

class Document;

/// The undo history of a document: evolutions with their parameters, plots with their rows, texts,
/// axes, reference speeds and damping lines, and the description of the workspace. A step stores
/// the states before and after, so undo is exact whatever a command did.
///
/// A step shares the ownership of the evolutions and plots it refers to, also of removed ones.
class UndoHistory
{
public:
    using Change = std::function<void()>;

    /// Whether a change joins the last step if it has the same name and active plot.
    enum class Joining {
        No, ///< a separate step
        Yes, ///< part of the last step, like the digits of a typed number
        Begins ///< a separate step, which later changes may join
    };

    /// `document` must outlive the history.
    explicit UndoHistory(Document& document);
    ~UndoHistory();
    UndoHistory(const UndoHistory&) = delete;
    UndoHistory& operator=(const UndoHistory&) = delete;

    /// Runs `change` and records its effect as one step with that name ("Raise Modes"). No effect
    /// makes no step; a nested call belongs to the outer step. If `change` throws, the document is
    /// restored, no step is made, and the exception is passed on.
    void change(const QString& name, const Change& change, Joining joining = Joining::No);

    /// Records everything changed since the last step as a step with that name. For commands that
    /// keep what they did before an error, and for changes made of several movements.
    void note(const QString& name, Joining joining = Joining::No);

    /// Undoes the last step: the document becomes exactly what it was before.
    void undo();

    /// Redoes the step undone last. Does nothing when the document has changed since.
    void redo();

    /// Removes all steps.
    void clear();

    /// The steps with their names.
    const QUndoStack& steps() const { return m_steps; }

private:
    class Step;

    void push(const QString& name, DocumentState now, Joining joining);
    void restoreAndKnow(const DocumentState& state);

    Document& m_document;
    DocumentState m_known; ///< the document as the last step left it
    QUndoStack m_steps;
    bool m_isChanging = false;
};

} // namespace tarsil
