// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/PlotControl.h"

namespace tarsil {

class xAxis;

/// The tick labels of a speed axis as an item of their own, so that they can be in front of the
/// curves. Has the geometry of the axis.
class SpeedLabels : public PlotControl
{
public:
    /// `axis` must outlive the item.
    explicit SpeedLabels(const xAxis& axis) : m_axis(axis) { }

protected:
    void paint(DeviceContext& context) const override;

private:
    const xAxis& m_axis;
};

} // namespace tarsil
