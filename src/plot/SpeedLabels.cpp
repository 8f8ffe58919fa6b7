// SPDX-License-Identifier: Apache-2.0
#include "plot/SpeedLabels.h"

#include "plot/XAxis.h"

namespace tarsil {

void SpeedLabels::paint(DeviceContext& context) const
{
    m_axis.drawLabelsInFront(context);
}

} // namespace tarsil
