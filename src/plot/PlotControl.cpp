#include "plot/PlotControl.h"

#include "plot/PainterContext.h"

#include <QPainter>

#include <exception>

namespace tarsil {

namespace {

void setBack(DeviceContext& context)
{
    context.clearClip();
    context.setOrigin({0, 0});
}

/// After drawing has failed, so that what is drawn next comes to its place all the same.
void trySetBack(DeviceContext& context)
{
    try {
        setBack(context);
    } catch (const std::exception&) {
        return; // the failure that is on its way is the one to be told
    }
}

} // namespace

PlotControl::~PlotControl() = default;

void PlotControl::setGeometry(const QRect& geometry)
{
    const auto place = [this] { return surfaceRectangle().translated(-m_geometry.topLeft()); };
    const QRect before = place();
    m_geometry = geometry;
    if (place() != before)
        m_surface = {};
}

void PlotControl::setContainer(const QRect& area)
{
    m_container = area;
    m_surface = {};
}

void PlotControl::setDevicePixelRatio(double ratio)
{
    if (ratio != m_ratio)
        m_surface = {};
    m_ratio = ratio;
}

/// Where in the container the own surface lies.
QRect PlotControl::surfaceRectangle() const
{
    const QRect whole = m_geometry.marginsAdded(overhang());
    return m_container.isNull() ? whole : whole & m_container;
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
    try {
        context.setOrigin(m_geometry.topLeft());
        if (isClipped())
            context.setClip(m_container.isNull() ? m_geometry : m_geometry & m_container);
        else if (!m_container.isNull())
            context.setClip(m_container);
        paint(context);
    } catch (...) {
        trySetBack(context);
        throw;
    }
    setBack(context);
}

void PlotControl::drawOnSurface()
{
    const QRect area = surfaceRectangle();
    if (m_geometry.isEmpty() || area.isEmpty())
        return;
    if (m_surface.isNull()) {
        m_surface = QImage(area.size() * m_ratio, QImage::Format_ARGB32_Premultiplied);
        if (m_surface.isNull())
            return; // no memory for it
        m_surface.setDevicePixelRatio(m_ratio);
        m_surface.fill(Qt::transparent);
    } else if (erasesBeforeDrawing()) {
        Cls();
    }
    QPainter painter(&m_surface);
    painter.translate(m_geometry.topLeft() - area.topLeft());
    PainterContext context(painter);
    paint(context);
    context.flush();
}

} // namespace tarsil
