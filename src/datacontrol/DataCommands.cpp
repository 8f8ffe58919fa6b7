// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/DataCommands.h"

#include "base/user/ErrorGuard.h"
#include "base/user/UserInterface.h"
#include "document/Document.h"
#include "vgfplot/EvmPlot.h"

#include <QString>

#include <utility>

namespace tarsil {

DataCommands::DataCommands(Document& document, UserInterface& user, Action commitEdits)
    : m_document(document), m_user(user), m_commitEdits(std::move(commitEdits))
{ }

void DataCommands::run(const Action& action) const
{
    m_user.beginCommand();
    guarded(m_user, module, action);
}

DataCommands::Action DataCommands::command(const Action& action) const
{
    return [this, action] {
        m_commitEdits();
        run(action);
    };
}

EvmPlot* DataCommands::activePlot() const
{
    EvmPlot* const plot = m_document.plots().active();
    if (plot == nullptr)
        warn("Please select activate a plot.");
    return plot;
}

const EVM* DataCommands::reference() const
{
    const EVM* const evolution = m_document.evolutions().reference();
    if (evolution == nullptr)
        warn("Please select a reference modal evolution.");
    return evolution;
}

void DataCommands::change(const QString& step, const std::function<void(EvmPlot&)>& change) const
{
    EvmPlot& plot = *m_document.plots().active();
    m_document.history().change(step, [&] { change(plot); });
}

void DataCommands::warn(const std::string& text) const
{
    m_user.showMessage(text, "Tarsil", MessageIcon::Exclamation);
}

} // namespace tarsil
