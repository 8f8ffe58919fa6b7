// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"
#include "surface/TextMetrics.h"

namespace tarsil {

/// A surface that only records the bounding rectangle of everything drawn, including pen widths and
/// the overhang of letters.
class InkBounds : public DeviceContext
{
public:
    /// In pixels of the whole surface; null when nothing was drawn.
    const QRect& bounds() const { return m_bounds; }

    void drawLine(QPoint from, QPoint to, const Pen& pen) override;
    void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                  TextAlignment alignment) override;
    QSize textExtent(const QString& text, const Font& font) const override;
    int textAscent(const Font& font) const override;
    void fillRectangle(const QRect& rectangle, ColorValue color) override;
    void setClip(const QRect& rectangle) override;
    void clearClip() override;
    void setOrigin(QPoint origin) override;

private:
    void add(const QRect& rectangle);

    QRect m_bounds;
    QRect m_clip; ///< null: no clip
    QPoint m_origin;
    TextMetrics m_text;
};

} // namespace tarsil
