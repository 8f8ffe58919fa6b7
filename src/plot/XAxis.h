#pragma once

#include "plot/PlotAxis.h"
#include "plot/RefThick.h"

#include <utility>
#include <vector>

namespace tarsil {

/// The horizontal speed axis: a line at half the control's height, ticks with whole-number labels
/// below, and reference-speed marks with their captions above.
///
///              caption
///                 |            |
///     ------+-----|+------+----|   <- row H / 2, the right end has a longer stroke
///          100    200    300
class xAxis : public PlotAxis
{
public:
    xAxis();

    /// The left end of the axis line is put at column x of the container, the line at row y.
    void MoveToOrigin(int x, int y);

    /// Adds a reference-speed mark and draws again at once. The mark stands at speed / (Max - Min)
    /// of the width, so at its data position only when `Min` is 0.
    void AddRef(float speed, const QString& caption);

    /// Removes every mark and draws again.
    void RemoveRef();
    const std::vector<RefThick>& marks() const { return m_marks; }

    /// Takes these marks in the place of all others; nothing is drawn.
    void setMarks(std::vector<RefThick> marks) { m_marks = std::move(marks); }

    /// Keys "nThick" 7, "Min" 0, "Max" 700.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;

protected:
    /// Error 11 for a count of 0, and for equal bounds when there are marks.
    void paint(DeviceContext& context) const override;

private:
    void drawTicks(DeviceContext& context) const;
    void drawMark(DeviceContext& context, const RefThick& mark) const;

    std::vector<RefThick> m_marks;
};

} // namespace tarsil
