// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "model/PlotAxes.h"
#include "plot/PropertyBag.h"

#include <QString>

#include <cstdint>

namespace tarsil {

class PlotPicture;
struct PlotParts;

/// The properties of a V-g-f plot that are stored in a property bag: caption, colour scheme, and
/// the tick count and title of each axis. A setter passes the value to the items that show it.
class PlotProperties
{
public:
    /// Both must outlive the object. Sets the defaults (`ReadProperties`).
    PlotProperties(PlotParts& parts, PlotPicture& picture);

    const QString& Caption() const { return m_caption; }
    void setCaption(const QString& caption);
    int ModeColor() const { return m_modeColor; }
    void setModeColor(int value);
    std::int16_t vthicks() const;
    void setVthicks(std::int16_t count);
    std::int16_t gthicks() const;
    void setGthicks(std::int16_t count);
    std::int16_t fthicks() const;
    void setFthicks(std::int16_t count);
    const QString& vLabel() const;
    void setVLabel(const QString& text);
    const QString& gLabel() const;
    void setGLabel(const QString& text);
    const QString& fLabel() const;
    void setFLabel(const QString& text);

    /// Whether curves break where a root turns from static to oscillatory (`ucPlot`).
    bool breaksAtJumps() const;
    void setBreaksAtJumps(bool on);

    /// Sets the tick counts and the titles of all axes.
    void setAxes(const PlotAxes& axes);

    /// Keys "Caption" "Plot1", "ModeColor" 0, "vThicks" 7, "gThicks" 5, "fThicks" 5, "vLabel"
    /// "V(keas)", "gLabel" "g", "fLabel" "f(Hz)"; "BreakAtJumps" only where it is on.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    const ChangedProperties& changedProperties() const { return m_changed; }

private:
    void showModeColor();

    PlotParts& m_parts;
    PlotPicture& m_picture;
    QString m_caption;
    int m_modeColor = 0;
    ChangedProperties m_changed;
};

} // namespace tarsil
