#include "document/PlotState.h"

#include "vgfplot/EvmPlot.h"

#include <cstddef>

namespace tarsil {

namespace {

void restoreAxes(EvmPlot& plot, const PlotState& state)
{
    if (plot.WriteProperties() != state.properties)
        plot.ReadProperties(state.properties);
    if (plot.axes() != state.axes)
        plot.setAxes(state.axes);
}

/// The text and look of a box, and of its position what does not follow from the layout.
emfRichTextBox::State boxStateOf(const EvmPlot& plot, TextBox box)
{
    emfRichTextBox::State state = plot.box(box).state();
    const bool isHeader = box == TextBox::Header; // keeps its row
    if (isHeader || !state.wasMoved)
        state.left = 0;
    if (!isHeader && !state.wasMoved)
        state.top = 0;
    return state;
}

void restoreTexts(EvmPlot& plot, const PlotState& state)
{
    const std::array boxes = {&plot.Header(), &plot.Legend(), &plot.Mechanism()};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (boxStateOf(plot, allTextBoxes[i]) == state.boxes[i])
            continue;
        boxes[i]->setState(state.boxes[i]);
        if (allTextBoxes[i] == TextBox::Header)
            plot.setHeaderTop(state.boxes[i].top); // lays out again
        else
            plot.refresh();
    }
}

} // namespace

PlotState stateOf(const EvmPlot& plot)
{
    PlotState state;
    state.rows = plot.rows().all();
    for (std::size_t i = 0; i < state.boxes.size(); ++i)
        state.boxes[i] = boxStateOf(plot, allTextBoxes[i]);
    state.properties = plot.WriteProperties();
    state.axes = plot.axes();
    state.referenceSpeeds = plot.Refs();
    state.dampingLines = plot.vgPlot().lines();
    return state;
}

void restore(EvmPlot& plot, const PlotState& state)
{
    plot.rows().restore(state.rows);
    restoreAxes(plot, state);
    restoreTexts(plot, state);
    if (plot.Refs() != state.referenceSpeeds)
        plot.setRefs(state.referenceSpeeds);
    if (plot.vgPlot().lines() != state.dampingLines)
        plot.restoreDampLines(state.dampingLines);
}

} // namespace tarsil
