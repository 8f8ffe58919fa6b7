#pragma once

#include "plot/DeviceContext.h"

#include <optional>

namespace tarsil {

/// Keeps drawing within the clip for a surface that knows no clip, as SVG does here: lines and
/// rectangles are cut at its border, and a text that lies outside is left out. A text across the
/// border stays whole.
class ClippingContext : public DeviceContext
{
public:
    /// `surface` must outlive this context.
    explicit ClippingContext(DeviceContext& surface) : m_surface(surface) { }

    void drawLine(QPoint from, QPoint to, const Pen& pen) override;
    void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                  TextAlignment alignment) override;
    QSize textExtent(const QString& text, const Font& font) const override;
    int textAscent(const Font& font) const override;
    void fillRectangle(const QRect& rectangle, ColorValue color) override;
    void setClip(const QRect& rectangle) override { m_clip = rectangle; }
    void clearClip() override { m_clip.reset(); }
    void setOrigin(QPoint origin) override;

private:
    DeviceContext& m_surface;
    QPoint m_origin;
    std::optional<QRect> m_clip; ///< in pixels of the whole surface
};

} // namespace tarsil
