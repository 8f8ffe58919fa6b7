#pragma once

#include "plot/PlotControl.h"

namespace tarsil {

/// A box of text on the plot: header, legend or subtitle. It is as large as its text needs; its
/// position is kept in twentieths of a point.
class emfRichTextBox : public PlotControl
{
public:
    const QString& Text() const { return m_text; }

    /// Lines are separated by CR LF; a lone LF or CR separates too and becomes CR LF.
    void setText(const QString& text);

    const tarsil::Font& Font() const { return m_font; }
    void setFont(const tarsil::Font& font);
    ColorValue ForeColor() const { return m_foreColor; }
    void setForeColor(ColorValue color);

    /// Position in the container, twentieths of a point.
    double unitsLeft() const { return m_left; }
    double unitsTop() const { return m_top; }
    void Move(double left, double top);

    /// What stands on the screen in the place of an empty text; never part of text or picture.
    const QString& prompt() const { return m_prompt; }
    void setPrompt(const QString& prompt) { m_prompt = prompt; }

    /// Draws the text into a caller's context at the box's position.
    void drawEMF(DeviceContext& context) { Draw(&context); }

    /// Copies text, font, colour and position of another box.
    void Clone(const emfRichTextBox& source);

    /// The least width is that of the text; the header box is made wider by its plot.
    void setMinimumWidth(int pixels);

protected:
    void paint(DeviceContext& context) const override;

private:
    void fitToText();

    QString m_text;
    QString m_prompt;
    tarsil::Font m_font {QStringLiteral("Arial"), 10};
    ColorValue m_foreColor = 0;
    double m_left = 0;
    double m_top = 0;
    int m_minimumWidth = 0;
};

} // namespace tarsil
