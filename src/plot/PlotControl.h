#pragma once

#include "surface/DeviceContext.h"

#include <QImage>
#include <QRect>

namespace tarsil {

/// A control that draws itself the same way on every surface: on its own one, which the plot shows
/// on the screen, or into a caller's context at the control's place in its container. Positions and
/// sizes are pixels of the container at 96 per inch.
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

    /// Moves the control; a new size empties its own surface.
    void setGeometry(const QRect& geometry);

    /// What of the plot can be seen: drawing of every kind ends at its edges. No limit while it is
    /// null.
    void setContainer(const QRect& area);

    /// Physical pixels of the screen for each pixel; a new ratio empties the own surface.
    void setDevicePixelRatio(double ratio);

    /// Draws into `context` as `drawInto` does; null means the control's own surface.
    void Draw(DeviceContext* context);

    /// Draws into a caller's context at the control's position in its container.
    void drawInto(DeviceContext& context) const;

    /// Empties the own surface.
    void Cls();

    /// The own surface in physical pixels of the screen, transparent where nothing is drawn, and
    /// the physical pixel of the container where it belongs: it can be larger than the control by
    /// what hangs over its edges. All surfaces of a container share one grid of physical pixels,
    /// so that what is drawn at one position on two of them lies on the same ones.
    const QImage& surface() const { return m_surface; }
    QPoint surfacePosition() const { return physicalRectangle().topLeft(); }

protected:
    /// Draws relative to the control's upper left corner.
    virtual void paint(DeviceContext& context) const = 0;

    /// Whether drawing ends at the control's edges.
    virtual bool isClipped() const { return false; }

    /// Whether drawing on the own surface begins with an empty one.
    virtual bool erasesBeforeDrawing() const { return true; }

private:
    QRect surfaceRectangle() const;
    QRect physicalRectangle() const;
    QRect inkReach() const;
    bool prepareSurface();
    void drawOnSurface();

    QRect m_geometry;
    QRect m_reach; ///< of the drawing on the own surface, relative to the control's corner
    QRect m_container;
    double m_ratio = 1;
    QImage m_surface;
};

} // namespace tarsil
