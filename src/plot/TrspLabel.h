// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/PlotControl.h"
#include "plot/PropertyBag.h"

#include <cstdint>

namespace tarsil {

/// A one-line label with a transparent background, used for axis titles.
class trspLabel : public PlotControl
{
public:
    /// `name` is the name of the item in its plot, and its initial caption.
    explicit trspLabel(const QString& name);

    const QString& Caption() const { return m_caption; }

    /// Sets the text and redraws the label's own surface.
    void setCaption(const QString& text);

    bool AutoSize() const { return m_autoSize; }

    /// If on, the label always has the size of its text.
    void setAutoSize(bool on);

    /// The font handle. Setting it always raises error 382 "Set not supported at run time".
    std::int32_t hFont() const { return m_hFont; }
    void sethFont(std::int32_t handle);

    /// Keys "Caption" (the name of the item), "AutoSize" false, "hFont" 0.
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
