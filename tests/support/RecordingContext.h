// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "surface/DeviceContext.h"

#include <optional>
#include <string>
#include <vector>

namespace tarsil::test {

/// A surface that records the calls, one line of text for each, in the caller's coordinates. Every
/// character is 6 pixels wide and every line 10 pixels high in every font, so that records are the
/// same everywhere.
///
///     origin 10,20                          clip 10,20 100x50          clip none
///     fill 0,0 800x600 #ffffff              line 0,32 699,32 solid 0 #000000
///     text TopCenter 100,37 Arial 8 #000000 100
class RecordingContext : public DeviceContext
{
public:
    static constexpr int characterWidth = 6;
    static constexpr int ascent = 8;
    static constexpr int descent = 2;

    /// A line in pixels of the whole surface, and the origin of its call.
    struct Stroke
    {
        QPoint origin;
        QPoint from;
        QPoint to;
    };

    const std::vector<std::string>& calls() const { return m_calls; }
    const std::vector<Stroke>& strokes() const { return m_strokes; }

    /// Only the lines, texts and fills.
    std::vector<std::string> drawingCalls() const;

    /// The strokes drawn from this origin, that is by the item at this position.
    std::vector<Stroke> strokesFrom(QPoint origin) const;

    /// The bounds of the ink in pixels of the whole surface, clipped. A character extends from the
    /// top of its line to the baseline. Empty for none.
    const QRect& ink() const { return m_ink; }

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
    void addInk(const QRect& rectangle);

    std::vector<std::string> m_calls;
    std::vector<Stroke> m_strokes;
    QPoint m_origin;
    std::optional<QRect> m_clip;
    QRect m_ink;
};

} // namespace tarsil::test
