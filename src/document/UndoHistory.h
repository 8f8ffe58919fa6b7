#pragma once

#include "document/DocumentState.h"

#include <QUndoStack>

#include <functional>
#include <optional>

class QString;

namespace tarsil {

class Document;

/// What the user has changed in a document, step by step, and what he has undone: evolutions with
/// their parameters, plots with their rows, texts, axes, reference speeds and damping lines, and
/// the description of the workspace. A step keeps what the document was before and afterwards, so
/// that undoing is exact whatever the command did.
///
/// Evolutions and plots that have left the document live on for as long as a step refers to them.
class UndoHistory
{
public:
    using Change = std::function<void()>;

    /// What becomes of a change that has the name of the step before.
    enum class Joining {
        No, ///< a step of its own
        Yes ///< part of that step, as the digits of one typed number
    };

    /// `document` must outlive the history.
    explicit UndoHistory(Document& document);
    ~UndoHistory();
    UndoHistory(const UndoHistory&) = delete;
    UndoHistory& operator=(const UndoHistory&) = delete;

    /// Changes the document by a function; all that it does is one step, called `name` ("Raise
    /// Modes"). A function that changes nothing makes no step, and one within another belongs to
    /// the step of that one. When it throws, the document is as it was before, no step is made, and
    /// the error goes on.
    void change(const QString& name, const Change& change, Joining joining = Joining::No);

    /// Makes a step called `name` of all that has changed since the last one. It is for commands
    /// that keep what they have done when they fail half-way, and for what the user does in several
    /// movements.
    void note(const QString& name, Joining joining = Joining::No);

    /// Takes the last step back, so that the document is exactly what it was before.
    void undo();

    /// Makes the step again that was undone last. Nothing happens when the document has changed
    /// since.
    void redo();

    /// Forgets all steps: the document is another one.
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
