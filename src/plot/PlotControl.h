// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

#include <QImage>
#include <QRect>

namespace tarsil {

/// An item that a plot draws: canvas, axis, label or text box. It draws the same on its own
/// surface, which the plot shows on the screen, and into another context at its position in the
/// plot. Positions and sizes are pixels of the plot at 96 per inch.
class PlotControl
{
public:
    PlotControl() = default;
    virtual ~PlotControl();
    PlotControl(const PlotControl&) = delete;
    PlotControl& operator=(const PlotControl&) = delete;

    const QRect& geometry() const { return m_geometry; }
    int Left() const { return m_geometry.left(); }
    int Top() const { return m_geometry.top(); }
    int Width() const { return m_geometry.width(); }
    int Height() const { return m_geometry.height(); }

    /// Moves the item. A new size clears its surface.
    void setGeometry(const QRect& geometry);

    /// Sets the visible area of the plot. Drawing is clipped to it; null means no limit.
    void setContainer(const QRect& area);

    /// Sets the physical pixels of the screen for each pixel. A new ratio clears the surface.
    void setDevicePixelRatio(double ratio);

    /// Calls `drawInto`, or draws on the item's own surface when `context` is null.
    void Draw(DeviceContext* context);

    /// Draws into `context` at the position of the item in its plot.
    void drawInto(DeviceContext& context) const;

    /// Clears the item's own surface.
    void Cls();

    /// The item's own surface in physical pixels, transparent where nothing is drawn;
    /// `surfacePosition` is its physical pixel in the plot. It is larger than the item where the
    /// drawing extends beyond the edges. All surfaces of a plot share one grid of physical pixels.
    const QImage& surface() const { return m_surface; }
    QPoint surfacePosition() const { return physicalRectangle().topLeft(); }

protected:
    /// Draws relative to the upper left corner of the item.
    virtual void paint(DeviceContext& context) const = 0;

    /// Whether drawing is clipped to the edges of the item.
    virtual bool isClipped() const { return false; }

    /// Whether the item's own surface is cleared before drawing.
    virtual bool erasesBeforeDrawing() const { return true; }

private:
    QRect surfaceRectangle() const;
    QRect physicalRectangle() const;
    QRect inkReach() const;
    bool prepareSurface();
    void drawOnSurface();

    QRect m_geometry;
    QRect m_reach; ///< of the drawing on the surface, relative to the item's corner
    QRect m_container;
    double m_ratio = 1;
    QImage m_surface;
};

} // namespace tarsil
