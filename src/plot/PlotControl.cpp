// SPDX-License-Identifier: Apache-2.0
#include "plot/PlotControl.h"

#include "surface/InkBounds.h"
#include "surface/PainterContext.h"

#include <QPainter>

#include <exception>

namespace tarsil {

namespace {

void setBack(DeviceContext& context)
{
    context.clearClip();
    context.setOrigin({0, 0});
}

/// Resets origin and clip after drawing failed, for whatever is drawn next.
void tryReset(DeviceContext& context)
{
    try {
        context.clearClip();
    } catch (const std::exception&) {
        context.setOrigin({0, 0}); // the first failure is the one to report
        return;
    }
    context.setOrigin({0, 0});
}

} // namespace

PlotControl::~PlotControl() = default;

void PlotControl::setGeometry(const QRect& geometry)
{
    const auto relative = [this] { return surfaceRectangle().translated(-m_geometry.topLeft()); };
    const bool isResized = geometry.size() != m_geometry.size();
    const QRect before = relative();
    m_geometry = geometry;
    if (isResized)
        m_reach = QRect(QPoint(0, 0), geometry.size());
    if (isResized || relative() != before)
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

/// The rectangle of the item's own surface in the plot.
QRect PlotControl::surfaceRectangle() const
{
    const QRect whole = m_reach.translated(m_geometry.topLeft());
    return m_container.isNull() ? whole : whole & m_container;
}

/// The same in physical pixels. The edges of clipped items are rounded one by one, so that adjacent
/// items neither overlap nor leave a gap. Other items are rounded outwards, so that nothing is
/// lost.
QRect PlotControl::physicalRectangle() const
{
    const QRect area = surfaceRectangle();
    const QRectF exact(QPointF(area.topLeft()) * m_ratio, QSizeF(area.size()) * m_ratio);
    if (!isClipped())
        return exact.toAlignedRect();
    return {QPoint(qRound(exact.left()), qRound(exact.top())),
            QPoint(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1)};
}

/// All pixels that drawing can ink, relative to the item's corner.
QRect PlotControl::inkReach() const
{
    InkBounds ink;
    try {
        paint(ink);
    } catch (const std::exception&) {
        // The part drawn before the failure is shown; drawing will raise the error again.
    }
    return ink.bounds();
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
        tryReset(context);
        throw;
    }
    setBack(context);
}

/// Provides a surface for the next drawing, cleared unless drawings add up. False when it would be
/// invisible or memory does not suffice.
bool PlotControl::prepareSurface()
{
    const QRect before = physicalRectangle();
    m_reach = QRect(QPoint(0, 0), m_geometry.size());
    if (!isClipped())
        m_reach |= inkReach();
    const QRect area = physicalRectangle();
    if (!m_surface.isNull() && area == before) {
        if (erasesBeforeDrawing())
            Cls();
        return true;
    }
    m_surface =
        area.isEmpty() ? QImage() : QImage(area.size(), QImage::Format_ARGB32_Premultiplied);
    Cls();
    return !m_surface.isNull();
}

void PlotControl::drawOnSurface()
{
    if (m_geometry.isEmpty() || !prepareSurface())
        return;
    QPainter painter(&m_surface);
    painter.translate(-physicalRectangle().topLeft());
    painter.scale(m_ratio, m_ratio);
    painter.translate(m_geometry.topLeft());
    PainterContext context(painter);
    paint(context);
    context.flush();
}

} // namespace tarsil
