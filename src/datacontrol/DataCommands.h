// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <string_view>

class QString;

namespace tarsil {

class Document;
class EVM;
class EvmPlot;
class UserInterface;

/// How the panels of the Data Control window change the active plot. A command first commits what
/// is being typed in the grid; its failure is reported in module "wndData".
class DataCommands
{
public:
    /// The name of the window in reports of errors.
    static constexpr std::string_view module = "wndData";

    using Action = std::function<void()>;

    /// `document` and `user` must outlive this object. `commitEdits` commits what is being typed.
    DataCommands(Document& document, UserInterface& user, Action commitEdits);

    Document& document() const { return m_document; }
    UserInterface& user() const { return m_user; }

    /// Runs an action, after which the typed text may still be open.
    void run(const Action& action) const;

    /// A slot that commits what is being typed and runs `action`.
    Action command(const Action& action) const;

    /// The active plot. Null, after a message, when no plot is active.
    EvmPlot* activePlot() const;

    /// The reference evolution. Null, after a message, when there is none.
    const EVM* reference() const;

    /// Changes the active plot, which must exist, as one undo step.
    void change(const QString& step, const std::function<void(EvmPlot&)>& change) const;

    /// Shows a message with an exclamation mark.
    void warn(const std::string& text) const;

private:
    Document& m_document;
    UserInterface& m_user;
    Action m_commitEdits;
};

} // namespace tarsil
