#pragma once

#include "plot/PlotAxis.h"

namespace tarsil {

/// A vertical axis: a line at half the control's width, ticks to its right and labels to its left.
/// `Direction` false puts `Max` at the top, true puts `Min` there. The ends carry no label.
///
///            |__   <- longer stroke at the far end
///     40.00  |-
///     20.00  |-
///            |     <- origin
class yAxis : public PlotAxis
{
public:
    yAxis();

    /// The axis line is put on column x of the container; its origin end at row y: the control
    /// hangs down from there when `Direction` is true and stands on it otherwise.
    void MoveToOrigin(int x, int y);

    bool Direction() const { return m_direction; }
    void setDirection(bool minimumAtTop);
    const QString& ThickFormat() const { return m_thickFormat; } ///< number pattern of the labels
    void setThickFormat(const QString& pattern);

    /// Keys "nThick" 5, "Min" 0, "Max" 50, "Direction" false, "ThickFormat" "0.00".
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;

protected:
    /// Error 11 for a count of 0; error 5 for a pattern that is none.
    void paint(DeviceContext& context) const override;

private:
    bool m_direction = false;
    QString m_thickFormat = QStringLiteral("0.00");
};

} // namespace tarsil
