#include "plot/PlotControl.h"

#include "plot/PainterContext.h"

#include <QPainter>

namespace tarsil {

namespace {

/// Sets origin and clip back, also when drawing fails.
class PlacedDrawing
{
public:
    explicit PlacedDrawing(DeviceContext& context) : m_context(context) { }
    ~PlacedDrawing()
    {
        m_context.clearClip();
        m_context.setOrigin({0, 0});
    }
    PlacedDrawing(const PlacedDrawing&) = delete;
    PlacedDrawing& operator=(const PlacedDrawing&) = delete;

private:
    DeviceContext& m_context;
};

} // namespace

PlotControl::~PlotControl() = default;

void PlotControl::setGeometry(const QRect& geometry)
{
    if (geometry.size() != m_geometry.size())
        m_surface = {};
    m_geometry = geometry;
}

void PlotControl::setDevicePixelRatio(double ratio)
{
    if (ratio != m_ratio)
        m_surface = {};
    m_ratio = ratio;
}

QPoint PlotControl::surfacePosition() const
{
    return m_geometry.topLeft() - QPoint(overhang().left(), overhang().top());
}

void PlotControl::Draw(DeviceContext* context)
{
    if (context != nullptr)
        drawInto(*context);
    else
        drawOnSurface();
}

void PlotControl::Cls()
{
    if (!m_surface.isNull())
        m_surface.fill(Qt::transparent);
}

void PlotControl::drawInto(DeviceContext& context) const
{
    const PlacedDrawing placed(context);
    context.setOrigin(m_geometry.topLeft());
    if (isClipped())
        context.setClip(m_geometry);
    paint(context);
}

void PlotControl::drawOnSurface()
{
    const QSize size = m_geometry.size().grownBy(overhang());
    if (m_geometry.isEmpty())
        return;
    if (m_surface.isNull()) {
        m_surface = QImage(size * m_ratio, QImage::Format_ARGB32_Premultiplied);
        m_surface.setDevicePixelRatio(m_ratio);
        m_surface.fill(Qt::transparent);
    } else if (erasesBeforeDrawing()) {
        Cls();
    }
    QPainter painter(&m_surface);
    painter.translate(overhang().left(), overhang().top());
    PainterContext context(painter);
    paint(context);
}

} // namespace tarsil
