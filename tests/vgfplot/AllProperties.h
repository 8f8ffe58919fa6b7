// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "vgfplot/EvmPlot.h"

namespace tarsil::test {

/// Sets every property of a plot to a value other than its default.
inline void setAllProperties(EvmPlot& plot)
{
    plot.properties().setCaption(QStringLiteral("Wing"));
    plot.properties().setModeColor(3);
    plot.properties().setVthicks(8);
    plot.properties().setGthicks(9);
    plot.properties().setFthicks(10);
    plot.properties().setVLabel(QStringLiteral("speed"));
    plot.properties().setGLabel(QStringLiteral("damping"));
    plot.properties().setFLabel(QStringLiteral("frequency"));
}

} // namespace tarsil::test
