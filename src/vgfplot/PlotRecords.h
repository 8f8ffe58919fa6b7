#pragma once

#include "workspace/WorkspaceRecord.h"

#include <vector>

namespace tarsil {

class EVM;
class EvmPlot;

/// The plot as a workspace keeps it. Its series name evolutions by their places in `evolutions`,
/// from 1; a series of another evolution, or without a mode, is left out.
PlotRecord recordOf(const EvmPlot& plot, const std::vector<const EVM*>& evolutions);

/// Gives a plot the texts, axes, marks and series of a record; nothing is drawn. Of the header's
/// position only its upper edge counts, its column is that of the layout. `evolutions` is the list
/// of files as it was saved, null for one that is not there: its series are left out. A text or
/// position that is absent leaves the box as it is. Error 9 "Subscript out of range" for a series
/// that names an evolution beyond the list or a mode that its evolution lacks; the series before it
/// are there.
void applyRecord(const PlotRecord& record, const std::vector<EVM*>& evolutions, EvmPlot& plot);

} // namespace tarsil
