// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/PlotAxis.h"

namespace tarsil {

/// A vertical axis: a line at half the width, ticks to its right, labels to its left. `Direction`
/// false: `Max` at the top; true: `Min` at the top. The two ends have no label.
///
///            |__   <- longer stroke at the far end
///     40.00  |-
///     20.00  |-
///            |     <- origin
class yAxis : public PlotAxis
{
public:
    yAxis();

    /// Puts the axis line at column x of the plot and its origin end at row y. The axis extends
    /// downwards from there when `Direction` is true, otherwise upwards.
    void MoveToOrigin(int x, int y);

    bool Direction() const { return m_direction; }
    void setDirection(bool minimumAtTop);
    const QString& ThickFormat() const { return m_thickFormat; } ///< number pattern of the labels
    void setThickFormat(const QString& pattern);

    /// Keys "nThick" 5, "Min" 0, "Max" 50, "Direction" false, "ThickFormat" "0.00".
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;

protected:
    /// Error 11 for a tick count of 0; error 5 for an invalid pattern.
    void paint(DeviceContext& context) const override;

private:
    bool m_direction = false;
    QString m_thickFormat = QStringLiteral("0.00");
};

} // namespace tarsil
