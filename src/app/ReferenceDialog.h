// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

#include <functional>
#include <string_view>

class QLineEdit;

namespace tarsil {

class Document;
class EvmPlot;
class UserInterface;

/// The base of the dialogs that add reference speeds or damping lines to the active plot: they
/// leave the plot window usable, stay open after adding, and reset their inputs when closed.
class ReferenceDialog : public QDialog
{
    Q_OBJECT

public:
    void done(int result) override;

protected:
    /// Both must outlive the dialog.
    ReferenceDialog(Document& document, UserInterface& userInterface, QWidget* parent);

    /// Resets every input.
    virtual void fillDefaults() = 0;

    /// Calls `add` with the active plot and the number in an input. Shows a message instead when
    /// there is no number or no plot; after one about the number, the input has the focus. Errors
    /// are reported as those of `module`. What was added can be undone as `step`.
    void addNumber(QLineEdit& input, const QString& step, std::string_view module,
                   const std::function<void(EvmPlot&, float)>& add);

    UserInterface& userInterface() { return m_userInterface; }

    void keyPressEvent(QKeyEvent* event) override;

private:
    Document& m_document;
    UserInterface& m_userInterface;
};

} // namespace tarsil
