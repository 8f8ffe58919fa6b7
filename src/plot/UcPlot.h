// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/PlotControl.h"
#include "plot/PropertyBag.h"
#include "plot/RefLine.h"
#include "plot/Series.h"
#include "plot/ValueMap.h"

#include <QVariant>

#include <cstdint>
#include <utility>
#include <vector>

namespace tarsil {

/// What a canvas needs from its plot.
class PlotContainer
{
public:
    virtual ~PlotContainer();

    /// The series in drawing order.
    virtual const SeriesList& SeriesCollection() const = 0;
};

/// The values of a point that a canvas draws.
namespace plottype {
constexpr std::int32_t frequencyOverSpeed = 0;
constexpr std::int32_t dampingOverSpeed = 1;
constexpr std::int32_t rootLocus = 2; ///< abscissa `re`, ordinate `im`
} // namespace plottype

/// The canvas of a plot: draws every series of its container as a line with text markers, then its
/// own reference lines. `SetScale` sets the coordinates.
class ucPlot : public PlotControl
{
public:
    /// `container` must outlive the canvas.
    explicit ucPlot(const PlotContainer& container);

    /// Sets the values at the corners: (x1, y1) at the upper left, (x2, y2) at the lower right. For
    /// an ordinate that grows upwards y1 is the upper bound. Does nothing when y1 equals y2. When
    /// x1 equals x2, drawing raises error 11 "Division by zero".
    void SetScale(double x1, double y1, double x2, double y2);

    /// The pixel of a data point, relative to the canvas.
    QPoint pixelOf(double x, double y) const;

    /// Appends a reference line one pixel wide and returns it; does not draw. The reference is
    /// valid until lines are added or removed.
    RefLine& AddLine(float X1, float Y1, float X2, float Y2, const QString& Caption,
                     ColorValue ColorIndex, std::int32_t LineStyle);

    /// Clears the canvas' own surface and removes all reference lines.
    void RemoveLines();
    const std::vector<RefLine>& lines() const { return m_lines; }

    /// Replaces all reference lines; does not draw.
    void setLines(std::vector<RefLine> lines) { m_lines = std::move(lines); }

    /// Draws the curve and the markers of a series relative to the corner of the canvas. Errors as
    /// in drawing.
    void drawSeries(DeviceContext& context, const Series& series) const;

    /// Redraws the canvas' own surface.
    void Refresh();

    /// Whether curves break between a point of a static root (below 0.1 Hz) and one of a root that
    /// oscillates: these are different roots, which a line would join. Off in a new canvas.
    bool breaksAtJumps() const { return m_breaksAtJumps; }

    /// Whether a curve has a line between two neighbouring points.
    bool joins(const Point& from, const Point& to) const;

    void setBreaksAtJumps(bool on) { m_breaksAtJumps = on; }

    const QVariant& ModeColor() const { return m_modeColor; }
    void setModeColor(const QVariant& value);
    std::int32_t PlotType() const { return m_plotType; }
    void setPlotType(std::int32_t type);
    bool AutoScale() const { return m_autoScale; }
    void setAutoScale(bool on);

    /// The font handle. Setting it always raises error 382 "Set not supported at run time".
    std::int32_t hFont() const { return m_hFont; }
    void sethFont(std::int32_t handle);

    /// Keys "ModeColor" 0, "PlotType" 0, "hFont" 0, "AutoScale" false.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    const ChangedProperties& changedProperties() const { return m_changed; }

protected:
    /// Errors: 6 for a mode of more than 32,767 points, 91 for a series without mode, 11 for a
    /// scale without width.
    void paint(DeviceContext& context) const override;
    bool isClipped() const override { return true; }
    bool erasesBeforeDrawing() const override { return false; }

private:
    struct DataPoint
    {
        double x;
        double y;
    };

    DataPoint dataOf(const Point& point) const;
    ValueMap columns() const;
    ValueMap rows() const;
    void drawLine(DeviceContext& context, const RefLine& line) const;

    const PlotContainer& m_container;
    QVariant m_modeColor = 0;
    std::int32_t m_plotType = 0;
    std::int32_t m_hFont = 0;
    bool m_autoScale = false;
    bool m_breaksAtJumps = false;
    double m_left = 0; ///< values at the edges
    double m_top = 0;
    double m_right = 1;
    double m_bottom = 1;
    std::vector<RefLine> m_lines;
    ChangedProperties m_changed;
};

} // namespace tarsil
