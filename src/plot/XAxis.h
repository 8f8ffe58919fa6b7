#pragma once

#include "plot/PlotControl.h"
#include "plot/PropertyBag.h"
#include "plot/RefThick.h"

#include <cstdint>
#include <vector>

namespace tarsil {

/// The horizontal speed axis: a line at half the control's height, ticks with whole-number labels
/// below, and reference-speed marks with their captions above.
///
///              caption
///                 |            |
///     ------+-----|+------+----|   <- row H / 2, the right end has a longer stroke
///          100    200    300
class xAxis : public PlotControl
{
public:
    /// The left end of the axis line is put at column x of the container, the line at row y.
    void MoveToOrigin(int x, int y);

    std::int16_t nThick() const { return m_nThick; } ///< number of equal intervals
    void setNThick(std::int16_t count);
    double Min() const { return m_min; } ///< value at the left end
    void setMin(double value);
    double Max() const { return m_max; } ///< value at the right end
    void setMax(double value);

    /// Adds a reference-speed mark and draws again at once. The mark stands at speed / (Max - Min)
    /// of the width, so at its data position only when `Min` is 0.
    void AddRef(float speed, const QString& caption);

    /// Removes every mark and draws again.
    void RemoveRef();
    const std::vector<RefThick>& marks() const { return m_marks; }

    /// Keys "nThick" 7, "Min" 0, "Max" 700.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    const ChangedProperties& changedProperties() const { return m_changed; }

protected:
    /// Error 11 for a count of 0, and for equal bounds when there are marks.
    void paint(DeviceContext& context) const override;
    QMargins overhang() const override;

private:
    void drawTicks(DeviceContext& context) const;
    void drawMark(DeviceContext& context, const RefThick& mark) const;

    std::int16_t m_nThick = 7;
    double m_min = 0;
    double m_max = 700;
    std::vector<RefThick> m_marks;
    ChangedProperties m_changed;
};

} // namespace tarsil
