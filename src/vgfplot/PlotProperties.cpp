// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotProperties.h"

#include "vgfplot/PlotParts.h"
#include "vgfplot/PlotPicture.h"

#include <string>

namespace tarsil {

namespace {

const QString breakAtJumps = QStringLiteral("BreakAtJumps");

} // namespace

PlotProperties::PlotProperties(PlotParts& parts, PlotPicture& picture)
    : m_parts(parts), m_picture(picture)
{
    ReadProperties({});
}

void PlotProperties::setCaption(const QString& caption)
{
    m_caption = caption;
    m_changed.add(QStringLiteral("Caption"));
    Q_EMIT m_picture.changed();
}

void PlotProperties::setModeColor(int value)
{
    m_modeColor = value;
    m_changed.add(QStringLiteral("ModeColor"));
    showModeColor();
}

void PlotProperties::showModeColor()
{
    m_parts.vgPlot.setModeColor(m_modeColor);
    m_parts.vfPlot.setModeColor(m_modeColor);
}

std::int16_t PlotProperties::vthicks() const
{
    return m_parts.velAxis.nThick();
}

void PlotProperties::setVthicks(std::int16_t count)
{
    m_parts.velAxis.setNThick(count);
    m_changed.add(QStringLiteral("vThicks"));
    m_picture.invalidate();
}

std::int16_t PlotProperties::gthicks() const
{
    return m_parts.gAxis.nThick();
}

void PlotProperties::setGthicks(std::int16_t count)
{
    m_parts.gAxis.setNThick(count);
    m_changed.add(QStringLiteral("gThicks"));
    m_picture.invalidate();
}

std::int16_t PlotProperties::fthicks() const
{
    return m_parts.freqAxis.nThick();
}

void PlotProperties::setFthicks(std::int16_t count)
{
    m_parts.freqAxis.setNThick(count);
    m_changed.add(QStringLiteral("fThicks"));
    m_picture.invalidate();
}

const QString& PlotProperties::vLabel() const
{
    return m_parts.velAxisLabel.Caption();
}

void PlotProperties::setVLabel(const QString& text)
{
    m_parts.velAxisLabel.setCaption(text);
    m_changed.add(QStringLiteral("vLabel"));
    m_picture.layOut();
}

const QString& PlotProperties::gLabel() const
{
    return m_parts.gAxisLabel.Caption();
}

void PlotProperties::setGLabel(const QString& text)
{
    m_parts.gAxisLabel.setCaption(text);
    m_changed.add(QStringLiteral("gLabel"));
    m_picture.layOut();
}

const QString& PlotProperties::fLabel() const
{
    return m_parts.freqAxislabel.Caption();
}

void PlotProperties::setFLabel(const QString& text)
{
    m_parts.freqAxislabel.setCaption(text);
    m_changed.add(QStringLiteral("fLabel"));
    m_picture.layOut();
}

bool PlotProperties::breaksAtJumps() const
{
    return m_parts.vfPlot.breaksAtJumps();
}

void PlotProperties::setBreaksAtJumps(bool on)
{
    m_parts.vfPlot.setBreaksAtJumps(on);
    m_parts.vgPlot.setBreaksAtJumps(on);
    m_picture.invalidate();
}

void PlotProperties::setAxes(const PlotAxes& axes)
{
    setVLabel(QString::fromStdString(axes.speed.title));
    setGLabel(QString::fromStdString(axes.damping.title));
    setFLabel(QString::fromStdString(axes.frequency.title));
    setVthicks(axes.speed.ticks);
    setGthicks(axes.damping.ticks);
    setFthicks(axes.frequency.ticks);
}

void PlotProperties::ReadProperties(const PropertyBag& bag)
{
    const auto thicks = [&bag](const QString& key, std::int16_t usual) {
        return static_cast<std::int16_t>(readProperty<int>(bag, key, usual));
    };
    const auto title = [&bag](const QString& key, const std::string& usual) {
        return readProperty(bag, key, QString::fromStdString(usual));
    };
    const PlotAxes usual;
    m_caption = readProperty(bag, QStringLiteral("Caption"), QStringLiteral("Plot1"));
    m_modeColor = readProperty(bag, QStringLiteral("ModeColor"), 0);
    showModeColor();
    m_parts.velAxis.setNThick(thicks(QStringLiteral("vThicks"), usual.speed.ticks));
    m_parts.gAxis.setNThick(thicks(QStringLiteral("gThicks"), usual.damping.ticks));
    m_parts.freqAxis.setNThick(thicks(QStringLiteral("fThicks"), usual.frequency.ticks));
    m_parts.velAxisLabel.setCaption(title(QStringLiteral("vLabel"), usual.speed.title));
    m_parts.gAxisLabel.setCaption(title(QStringLiteral("gLabel"), usual.damping.title));
    m_parts.freqAxislabel.setCaption(title(QStringLiteral("fLabel"), usual.frequency.title));
    const bool breaks = readProperty(bag, breakAtJumps, false);
    m_parts.vfPlot.setBreaksAtJumps(breaks);
    m_parts.vgPlot.setBreaksAtJumps(breaks);
    m_picture.layOut();
}

PropertyBag PlotProperties::WriteProperties() const
{
    PropertyBag bag = {
        {QStringLiteral("Caption"), m_caption}, {QStringLiteral("ModeColor"), m_modeColor},
        {QStringLiteral("vThicks"), vthicks()}, {QStringLiteral("gThicks"), gthicks()},
        {QStringLiteral("fThicks"), fthicks()}, {QStringLiteral("vLabel"), vLabel()},
        {QStringLiteral("gLabel"), gLabel()},   {QStringLiteral("fLabel"), fLabel()}};
    if (breaksAtJumps())
        bag[breakAtJumps] = true;
    return bag;
}

} // namespace tarsil
