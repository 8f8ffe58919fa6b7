#pragma once

#include <QDialog>

#include <functional>
#include <string_view>

class QLineEdit;

namespace tarsil {

class Document;
class EvmPlot;
class UserInterface;

/// What the small dialogs have in common that add a mark to the active plot, one after the other:
/// they leave the plot window usable, stay open, and keep nothing once they are closed.
class MarkDialog : public QDialog
{
    Q_OBJECT

public:
    void done(int result) override;

protected:
    /// Both must outlive the dialog.
    MarkDialog(Document& document, UserInterface& userInterface, QWidget* parent);

    /// Gives every input its first text.
    virtual void fillDefaults() = 0;

    /// Hands the number in an input and the active plot on to `add`. Without a number or a plot the
    /// user gets a message instead, and after one about the number he can put it right at once; an
    /// error is reported as one of `module`. What was added is a step that can be undone, `name`.
    void addMark(QLineEdit& input, const QString& name, std::string_view module,
                 const std::function<void(EvmPlot&, float)>& add);

    void askForNumber();
    UserInterface& userInterface() { return m_userInterface; }

    void keyPressEvent(QKeyEvent* event) override;

private:
    Document& m_document;
    UserInterface& m_userInterface;
};

} // namespace tarsil
