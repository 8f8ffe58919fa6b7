// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/EvmPlot.h"

#include <cstddef>

namespace tarsil::test {

/// Changes the look of a row of a plot, counted from 0, by a function `void (Series&)`.
template <typename Change>
void changeSeries(EvmPlot& plot, std::size_t row, const Change& change)
{
    plot.rows().change(plot.rows().at(row).id, change);
}

/// Changes every row in this way.
template <typename Change>
void changeAllSeries(EvmPlot& plot, const Change& change)
{
    for (std::size_t row = 0; row < plot.rows().count(); ++row)
        changeSeries(plot, row, change);
}

} // namespace tarsil::test
