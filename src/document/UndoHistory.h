// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "document/DocumentState.h"
#include "document/FileChange.h"

#include <QUndoStack>

#include <functional>
#include <string>

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

    /// Changes the file of an evolution of the document (`replaceFile`) and records this as a step.
    /// Undo and redo write the file again. Errors: those of `replaceFile`; there is no step then.
    void changeFile(const QString& name, FileChange change);

    /// Undoes the last step: the document becomes exactly what it was before. Errors, for a step
    /// that changed a file: those of `replaceFile`, and nothing has changed; 5 when another program
    /// has changed or removed the file since: the file stays as it is, and the step is removed, so
    /// that earlier steps can be undone.
    void undo();

    /// Redoes the step undone last. Does nothing when the document has changed since. Errors, for a
    /// step that changed a file: those of `replaceFile`, and 5 when another program has changed or
    /// removed the file; nothing has changed then.
    void redo();

    /// Removes all steps.
    void clear();

    /// The steps with their names.
    const QUndoStack& steps() const { return m_steps; }

private:
    class Step;
    class FileStep;

    void push(const QString& name, DocumentState now, Joining joining);
    void restoreAndKnow(const DocumentState& state);

    Document& m_document;
    DocumentState m_known; ///< the document as the last step left it
    QUndoStack m_steps;
    bool m_isChanging = false;
    std::string m_refusal; ///< why the step being undone is removed
};

} // namespace tarsil
