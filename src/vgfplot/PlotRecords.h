// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "workspace/WorkspaceRecord.h"

#include <string>
#include <vector>

namespace tarsil {

class EVM;
class EvmPlot;

/// The record of a plot for a workspace. Its series refer to evolutions by their position in
/// `evolutions`, counted from 1. Series of other evolutions, or without a mode, are left out.
PlotRecord recordOf(const EvmPlot& plot, const std::vector<const EVM*>& evolutions);

/// Applies the texts, axes, references and series of a record; does not draw. Only the top of the
/// header's position is used; its left is fixed by the layout. `evolutions` is the list of files as
/// saved, null for a missing file, whose series are left out. A text or position that the record
/// lacks is unchanged. Returns a sentence for each series that is left out because the list lacks
/// its evolution, or the evolution its mode.
std::vector<std::string> applyRecord(const PlotRecord& record, const std::vector<EVM*>& evolutions,
                                     EvmPlot& plot);

} // namespace tarsil
