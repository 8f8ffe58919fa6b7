#pragma once

#include "model/PlotAxes.h"
#include "plot/EmfRichTextBox.h"
#include "plot/PropertyBag.h"
#include "plot/RefLine.h"
#include "plot/RefThick.h"
#include "vgfplot/TextBox.h"

#include <array>
#include <vector>

namespace tarsil {

class EvmPlot;

/// Everything of a plot that a user can change, apart from its rows.
struct PlotState
{
    std::array<emfRichTextBox::State, allTextBoxes.size()> boxes; ///< as `allTextBoxes`
    PropertyBag properties; ///< caption and what else (`EvmPlot::WriteProperties`)
    PlotAxes axes;
    std::vector<RefThick> referenceSpeeds;
    std::vector<RefLine> dampingLines;

    bool operator==(const PlotState&) const = default;
};

PlotState stateOf(const EvmPlot& plot);

/// Makes a plot what it was; nothing is drawn. What is as it was is left alone.
void restore(EvmPlot& plot, const PlotState& state);

} // namespace tarsil
