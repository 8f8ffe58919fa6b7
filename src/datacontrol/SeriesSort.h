// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "datacontrol/SeriesGridModel.h"

namespace tarsil {

/// Sorts the rows of a plot by a column of the grid. Equal rows keep their order. Numbers are
/// compared as numbers and come before other texts; texts are compared in any case. Lines are
/// compared by colour, style and width.
void sortRows(PlotRows& rows, SeriesColumn column, Qt::SortOrder order);

} // namespace tarsil
