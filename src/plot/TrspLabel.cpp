// SPDX-License-Identifier: Apache-2.0
#include "plot/TrspLabel.h"

#include "base/user/RunTimeError.h"
#include "surface/TextMetrics.h"

namespace tarsil {

trspLabel::trspLabel(const QString& name) : m_name(name), m_caption(name) { }

void trspLabel::setCaption(const QString& text)
{
    m_caption = text;
    m_changed.add(QStringLiteral("Caption"));
    fitToText();
    Draw(nullptr);
}

void trspLabel::setAutoSize(bool on)
{
    m_autoSize = on;
    m_changed.add(QStringLiteral("AutoSize"));
    fitToText();
}

void trspLabel::sethFont(std::int32_t /*handle*/)
{
    throw RunTimeError(ErrorNumber::SetNotSupportedAtRunTime, "trspLabel", "hFont");
}

void trspLabel::fitToText()
{
    if (m_autoSize)
        setGeometry({geometry().topLeft(), TextMetrics().extent(m_caption, Font())});
}

void trspLabel::paint(DeviceContext& context) const
{
    context.drawText({0, 0}, m_caption, Font(), 0, TextAlignment::TopLeft);
}

void trspLabel::ReadProperties(const PropertyBag& bag)
{
    m_caption = readProperty(bag, QStringLiteral("Caption"), m_name);
    m_autoSize = readProperty(bag, QStringLiteral("AutoSize"), false);
    m_hFont = readProperty<std::int32_t>(bag, QStringLiteral("hFont"), 0);
    m_changed.clear();
    fitToText();
}

PropertyBag trspLabel::WriteProperties() const
{
    return {{QStringLiteral("Caption"), m_caption},
            {QStringLiteral("AutoSize"), m_autoSize},
            {QStringLiteral("hFont"), m_hFont}};
}

} // namespace tarsil
