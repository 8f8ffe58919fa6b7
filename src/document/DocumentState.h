// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "document/PlotState.h"
#include "document/SharedList.h"
#include "model/Param.h"
#include "vgfplot/PlotRows.h"

#include <QString>

#include <memory>
#include <vector>

namespace tarsil {

class Document;
class EVM;
class EvmPlot;

/// Everything of a document that a user can change: which evolutions and plots there are, and what
/// they hold. It keeps the evolutions and plots alive, also those that leave the document. Two
/// states that follow each other share what did not change.
struct DocumentState
{
    struct Evolution
    {
        std::shared_ptr<EVM> evolution;
        EditableParam parameters;

        bool operator==(const Evolution&) const = default;
    };

    struct Plot
    {
        int index = 0; ///< in the list of plots
        std::shared_ptr<EvmPlot> plot;
        SharedList<PlotRow> rows;
        std::shared_ptr<const PlotState> state;
    };

    SharedList<Evolution> evolutions;
    EVM* reference = nullptr;
    QString description;
    std::vector<std::shared_ptr<const Plot>> plots; ///< by increasing index
    EvmPlot* active = nullptr; ///< which plot the user saw; no change of the document

    /// Whether two states differ in nothing but the active plot.
    bool isSameAs(const DocumentState& other) const;
};

/// The state of a document, which shares what it can with `before`.
DocumentState stateOf(const Document& document, const DocumentState& before);

/// Makes a document what it was. What is as it was is left alone; all changes are announced.
void restore(Document& document, const DocumentState& state);

} // namespace tarsil
