// SPDX-License-Identifier: Apache-2.0
#include "document/PlotState.h"

#include "vgfplot/EvmPlot.h"

#include <cstddef>

namespace tarsil {

namespace {

void restoreAxes(EvmPlot& plot, const PlotState& state)
{
    if (plot.properties().WriteProperties() != state.properties)
        plot.properties().ReadProperties(state.properties);
    if (plot.axes() != state.axes)
        plot.setAxes(state.axes);
}

/// The state of a box without the coordinates that follow from the layout.
emfRichTextBox::State boxStateOf(const EvmPlot& plot, TextBox box)
{
    emfRichTextBox::State state = plot.parts().box(box).state();
    const bool isHeader = box == TextBox::Header; // keeps its row
    if (isHeader || !state.wasMoved)
        state.left = 0;
    if (!isHeader && !state.wasMoved)
        state.top = 0;
    return state;
}

void restoreTexts(EvmPlot& plot, const PlotState& state)
{
    for (std::size_t i = 0; i < allTextBoxes.size(); ++i) {
        const emfRichTextBox::State& wanted = state.boxes[i];
        if (boxStateOf(plot, allTextBoxes[i]) == wanted)
            continue;
        plot.texts().change(allTextBoxes[i],
                            [&wanted](emfRichTextBox& box) { box.setState(wanted); });
        if (allTextBoxes[i] == TextBox::Header)
            plot.texts().setHeaderTop(wanted.top);
    }
}

} // namespace

PlotState stateOf(const EvmPlot& plot)
{
    PlotState state;
    for (std::size_t i = 0; i < state.boxes.size(); ++i)
        state.boxes[i] = boxStateOf(plot, allTextBoxes[i]);
    state.properties = plot.properties().WriteProperties();
    state.axes = plot.axes();
    state.referenceSpeeds = plot.references().referenceSpeeds();
    state.dampingLines = plot.references().dampingLines();
    return state;
}

void restore(EvmPlot& plot, const PlotState& state)
{
    restoreAxes(plot, state);
    restoreTexts(plot, state);
    if (plot.references().referenceSpeeds() != state.referenceSpeeds)
        plot.references().setReferenceSpeeds(state.referenceSpeeds);
    if (plot.references().dampingLines() != state.dampingLines)
        plot.references().restoreDampingLines(state.dampingLines);
}

} // namespace tarsil
