// SPDX-License-Identifier: Apache-2.0
#include "report/WatchedPicture.h"

#include "base/numbers/ColorValue.h"
#include "base/user/Progress.h"
#include "surface/DeviceContext.h"

#include <QPoint>
#include <QPointF>
#include <QRect>

namespace tarsil {

namespace {

/// Draws on another surface until a stop.
class WatchedContext : public DeviceContext
{
public:
    WatchedContext(DeviceContext& target, StepCounter& steps) : m_target(target), m_steps(steps) { }

    void drawLine(QPoint from, QPoint to, const Pen& pen) override
    {
        if (mayDraw())
            m_target.drawLine(from, to, pen);
    }
    void drawExactLine(QPointF from, QPointF to, const Pen& pen) override
    {
        if (mayDraw())
            m_target.drawExactLine(from, to, pen);
    }
    void drawText(QPoint reference, const QString& text, const Font& font, ColorValue color,
                  TextAlignment alignment) override
    {
        if (mayDraw())
            m_target.drawText(reference, text, font, color, alignment);
    }
    void fillRectangle(const QRect& rectangle, ColorValue color) override
    {
        if (mayDraw())
            m_target.fillRectangle(rectangle, color);
    }

    bool keepsFractions() const override { return m_target.keepsFractions(); }
    bool hasFixedOrder() const override { return m_target.hasFixedOrder(); }
    QSize textExtent(const QString& text, const Font& font) const override
    {
        return m_target.textExtent(text, font);
    }
    int textAscent(const Font& font) const override { return m_target.textAscent(font); }
    void setClip(const QRect& rectangle) override { m_target.setClip(rectangle); }
    void clearClip() override { m_target.clearClip(); }
    void setOrigin(QPoint origin) override { m_target.setOrigin(origin); }

private:
    bool mayDraw();

    DeviceContext& m_target;
    StepCounter& m_steps;
    int m_count = 0; ///< drawn since the last look
};

bool WatchedContext::mayDraw()
{
    constexpr int most = 100; // lines or texts between two looks; a millisecond
    if (++m_count < most)
        return !m_steps.isStopped();
    m_count = 0;
    return m_steps.look();
}

} // namespace

void WatchedPicture::Draw(DeviceContext& context) const
{
    WatchedContext watched(context, m_steps);
    m_picture.Draw(watched);
}

} // namespace tarsil
