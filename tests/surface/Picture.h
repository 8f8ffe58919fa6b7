// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/PainterContext.h"

#include <QImage>
#include <QPainter>

namespace tarsil::test {

/// A white image of 400 x 300 pixels and a context that draws on it.
class Picture
{
public:
    explicit Picture(const LineDrawing& lines = {})
        : m_image(400, 300, QImage::Format_RGB32), m_painter(whitened(m_image)),
          m_context(m_painter, lines)
    { }

    PainterContext& context() { return m_context; }

    /// The image with everything drawn so far.
    const QImage& image()
    {
        m_context.flush();
        return m_image;
    }

    /// The bounds of all pixels that are not white.
    QRect ink()
    {
        QRect bounds;
        const QImage& picture = image();
        for (int row = 0; row < picture.height(); ++row) {
            for (int column = 0; column < picture.width(); ++column) {
                if (picture.pixelColor(column, row) != Qt::white)
                    bounds |= QRect(column, row, 1, 1);
            }
        }
        return bounds;
    }

private:
    static QImage* whitened(QImage& image)
    {
        image.fill(Qt::white);
        return &image;
    }

    QImage m_image;
    QPainter m_painter;
    PainterContext m_context;
};

} // namespace tarsil::test
