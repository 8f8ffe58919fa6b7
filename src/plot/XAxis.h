// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/PlotAxis.h"
#include "plot/RefThick.h"

#include <QPoint>
#include <QString>

#include <utility>
#include <vector>

namespace tarsil {

/// The horizontal speed axis: a line at half the height, ticks with whole-number labels below it,
/// reference-speed marks with captions above it.
///
///              caption
///                 |            |
///     ------+-----|+------+----|   <- row H / 2, the right end has a longer stroke
///          100    200    300
class xAxis : public PlotAxis
{
public:
    xAxis();

    /// Puts the left end of the axis line at column x and row y of the plot.
    void MoveToOrigin(int x, int y);

    /// Adds a mark and redraws. The mark is at speed / (Max - Min) of the width, which is its data
    /// position only when `Min` is 0.
    void AddRef(float speed, const QString& caption);

    /// Removes all marks and redraws.
    void RemoveRef();
    const std::vector<RefThick>& marks() const { return m_marks; }

    /// Replaces all marks; does not draw.
    void setMarks(std::vector<RefThick> marks) { m_marks = std::move(marks); }

    /// Draws the labels of the ticks on a white ground, so that lines drawn before do not strike
    /// them through. Nothing on a surface with a fixed order of parts.
    void drawLabelsInFront(DeviceContext& context) const;

    /// Whether the owner calls `drawLabelsInFront`: the axis then draws no labels itself, except
    /// on surfaces with a fixed order.
    void setLabelsInFront(bool on) { m_hasLabelsInFront = on; }

    /// Keys "nThick" 7, "Min" 0, "Max" 700.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;

protected:
    /// Error 11 for a count of 0, and for equal bounds when there are marks.
    void paint(DeviceContext& context) const override;

private:
    /// The text of a tick and its reference point.
    struct Label
    {
        QPoint top;
        QString text;
    };

    void drawTicks(DeviceContext& context) const;
    Label labelOf(int k) const;
    static void drawText(DeviceContext& context, const Label& label);
    void drawMark(DeviceContext& context, const RefThick& mark) const;

    std::vector<RefThick> m_marks;
    bool m_hasLabelsInFront = false;
};

} // namespace tarsil
