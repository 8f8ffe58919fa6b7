#pragma once

#include "plot/PlotControl.h"
#include "plot/PropertyBag.h"

#include <cstdint>

namespace tarsil {

/// A one-line label with a transparent background: an axis title.
class trspLabel : public PlotControl
{
public:
    /// `name` is the control's name in its container, and its first caption.
    explicit trspLabel(const QString& name);

    const QString& Caption() const { return m_caption; }

    /// Stores the text and draws again on the own surface.
    void setCaption(const QString& text);

    bool AutoSize() const { return m_autoSize; }

    /// With `on`, the label is always as large as its text.
    void setAutoSize(bool on);

    /// The font handle; it cannot be set: error 382 "Set not supported at run time", always.
    std::int32_t hFont() const { return m_hFont; }
    void sethFont(std::int32_t handle);

    /// Keys "Caption" (the control's name), "AutoSize" false, "hFont" 0.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    const ChangedProperties& changedProperties() const { return m_changed; }

protected:
    void paint(DeviceContext& context) const override;

private:
    void fitToText();

    QString m_name;
    QString m_caption;
    bool m_autoSize = false;
    std::int32_t m_hFont = 0;
    ChangedProperties m_changed;
};

} // namespace tarsil
