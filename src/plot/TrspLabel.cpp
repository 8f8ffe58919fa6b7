#include "plot/TrspLabel.h"

#include "plot/PainterContext.h"

#include <QFontMetrics>

namespace tarsil {

void trspLabel::setCaption(const QString& text)
{
    m_caption = text;
    fitToText();
    Draw(nullptr);
}

void trspLabel::setAutoSize(bool on)
{
    m_autoSize = on;
    fitToText();
}

void trspLabel::fitToText()
{
    if (!m_autoSize)
        return;
    const QFontMetrics metrics(screenFont(m_font));
    const QSize size(metrics.horizontalAdvance(m_caption), metrics.ascent() + metrics.descent());
    setGeometry({geometry().topLeft(), size});
}

void trspLabel::paint(DeviceContext& context) const
{
    context.drawText({0, 0}, m_caption, m_font, 0, TextAlignment::TopLeft);
}

} // namespace tarsil
