#pragma once

#include "plot/PlotControl.h"
#include "plot/PropertyBag.h"

#include <cstdint>

namespace tarsil {

/// A vertical axis: a line at half the control's width, ticks to its right and labels to its left.
/// `Direction` false puts `Max` at the top, true puts `Min` there. The ends carry no label.
///
///            |__   <- longer stroke at the far end
///     40.00  |-
///     20.00  |-
///            |     <- origin
class yAxis : public PlotControl
{
public:
    /// The axis line is put on column x of the container; its origin end at row y: the control
    /// hangs down from there when `Direction` is true and stands on it otherwise.
    void MoveToOrigin(int x, int y);

    std::int16_t nThick() const { return m_nThick; } ///< number of equal intervals
    void setNThick(std::int16_t count);
    double Min() const { return m_min; }
    void setMin(double value);
    double Max() const { return m_max; }
    void setMax(double value);
    bool Direction() const { return m_direction; }
    void setDirection(bool minimumAtTop);
    const QString& ThickFormat() const { return m_thickFormat; } ///< number pattern of the labels
    void setThickFormat(const QString& pattern);

    /// Keys "nThick" 5, "Min" 0, "Max" 50, "Direction" false, "ThickFormat" "0.00".
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    const ChangedProperties& changedProperties() const { return m_changed; }

protected:
    /// Error 11 for a count of 0; error 5 for a pattern that is none.
    void paint(DeviceContext& context) const override;
    QMargins overhang() const override;

private:
    std::int16_t m_nThick = 5;
    double m_min = 0;
    double m_max = 50;
    bool m_direction = false;
    QString m_thickFormat = QStringLiteral("0.00");
    ChangedProperties m_changed;
};

} // namespace tarsil
