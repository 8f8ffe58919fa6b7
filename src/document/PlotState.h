// SPDX-License-Identifier: Apache-2.0
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

/// Everything in a plot that a user can change, except its rows, as a value.
struct PlotState
{
    std::array<emfRichTextBox::State, allTextBoxes.size()>
        boxes; ///< in the order of `allTextBoxes`
    PropertyBag properties; ///< `PlotProperties::WriteProperties`
    PlotAxes axes;
    std::vector<RefThick> referenceSpeeds;
    std::vector<RefLine> dampingLines;

    bool operator==(const PlotState&) const = default;
};

PlotState stateOf(const EvmPlot& plot);

/// Gives a plot an earlier state; does not draw. Parts that do not differ are not touched.
void restore(EvmPlot& plot, const PlotState& state);

} // namespace tarsil
