// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace tarsil {

class EvmPlotView;

/// Presents the views of plots to screen readers as graphics. Their children are the text boxes
/// with their texts, and the curves with their ranges and the values at the cursor. May be called
/// repeatedly.
void makePlotsAccessible();

/// Tells screen readers that the selected text box, or the cursor on a curve, has changed.
void reportFocus(EvmPlotView& view);

} // namespace tarsil
