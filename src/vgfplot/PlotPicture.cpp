// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotPicture.h"

#include "vgfplot/PlotParts.h"

#include <QPainter>

#include <exception>

namespace tarsil {

PlotPicture::PlotPicture(PlotParts& parts) : m_parts(parts) { }

void PlotPicture::resize(QSize size, double ratio)
{
    m_size = size.expandedTo(QSize(1, 1));
    m_ratio = ratio;
    for (PlotControl* const part : m_parts.inDrawingOrder()) {
        part->setDevicePixelRatio(ratio);
        part->setContainer({QPoint(0, 0), m_size});
    }
    layOut();
}

void PlotPicture::layOut()
{
    m_parts.layOut(m_size);
    invalidate();
}

void PlotPicture::invalidate()
{
    m_isStale = true;
    Q_EMIT changed();
}

void PlotPicture::showCurves()
{
    m_isPlotted = true;
    invalidate();
}

void PlotPicture::composeAgain()
{
    m_isComposed = false;
    Q_EMIT changed();
}

void PlotPicture::plot()
{
    showCurves();
    drawParts();
}

void PlotPicture::Cls()
{
    m_isPlotted = false;
    m_parts.vgPlot.Cls();
    m_parts.vfPlot.Cls();
    composeAgain();
}

const QImage& PlotPicture::image()
{
    std::exception_ptr failure;
    if (m_isStale) {
        try {
            drawParts();
        } catch (...) {
            failure = std::current_exception();
        }
    }
    if (!m_isComposed)
        compose();
    if (failure)
        std::rethrow_exception(failure);
    return m_image;
}

void PlotPicture::drawParts()
{
    m_isStale = false;
    m_isComposed = false;
    std::exception_ptr failure;
    for (PlotControl* const part : m_parts.inDrawingOrder()) {
        const bool isCanvas = part == &m_parts.vgPlot || part == &m_parts.vfPlot;
        if (isCanvas && !m_isPlotted)
            continue;
        try {
            part->Cls();
            part->Draw(nullptr);
        } catch (...) {
            failure = std::current_exception();
        }
    }
    if (failure)
        std::rethrow_exception(failure);
}

void PlotPicture::compose()
{
    const QSize pixels = m_size * m_ratio;
    if (m_image.size() != pixels)
        m_image = QImage(pixels, QImage::Format_RGB32);
    m_image.setDevicePixelRatio(1); // surfaces are in physical pixels
    m_image.fill(Qt::white);
    m_isComposed = true;
    if (m_image.isNull())
        return;
    QPainter painter(&m_image);
    for (const PlotControl* const part : m_parts.inDrawingOrder()) {
        if (!part->surface().isNull())
            painter.drawImage(part->surfacePosition(), part->surface());
    }
    painter.end();
    m_image.setDevicePixelRatio(m_ratio);
}

} // namespace tarsil
