// SPDX-License-Identifier: Apache-2.0
#include "explorer/CurveAdder.h"

#include "plotwindow/WndEvolPlot.h"

namespace tarsil {

void addCurves(wndEvolPlot& plots, const std::vector<AeMode*>& modes)
{
    for (AeMode* mode : modes) {
        plots.AddSerie(*mode);
        if (plots.ActivePlot() == nullptr)
            return; // one message is enough
    }
}

} // namespace tarsil
