#pragma once

#include "plot/PlotControl.h"

namespace tarsil {

/// A one-line label with a transparent background: an axis title.
class trspLabel : public PlotControl
{
public:
    const QString& Caption() const { return m_caption; }

    /// Stores the text and draws again on the own surface.
    void setCaption(const QString& text);

    bool AutoSize() const { return m_autoSize; }

    /// With `on`, the label is always as large as its text.
    void setAutoSize(bool on);

    const Font& font() const { return m_font; }

protected:
    void paint(DeviceContext& context) const override;

private:
    void fitToText();

    QString m_caption;
    Font m_font;
    bool m_autoSize = false;
};

} // namespace tarsil
