// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plot/PlotControl.h"
#include "plot/PropertyBag.h"
#include "rtf/RichText.h"
#include "rtf/RichTextEdit.h"

#include <QVariant>

#include <optional>
#include <string>
#include <string_view>

namespace tarsil {

/// A text box on the plot: header, legend or subtitle. Every character has its own font and colour.
/// The box is as large as its text. Positions and sizes are in twentieths of a point.
///
/// `Text` and the selection use the shown text: a line break is CR LF and counts two, as does a
/// character outside the basic plane.
class emfRichTextBox : public PlotControl
{
public:
    emfRichTextBox();

    /// The font of new text. Setting it applies the font to the whole text.
    const tarsil::Font& Font() const { return m_font; }
    void setFont(const tarsil::Font& font);

    /// The colour of all text without a colour of its own.
    ColorValue ForeColor() const { return m_foreColor; }
    void setForeColor(ColorValue color);

    /// A lone LF or CR is a line break too and becomes CR LF. Setting the text applies the font and
    /// colour of the box and moves the selection to the start.
    QString Text() const;
    void setText(const QString& text);

    /// The text in Rich Text Format, in the form for workspaces (`rtfToStore`). The setter accepts
    /// the output of any writer, also truncated; other text is taken as plain text.
    std::string TextRTF() const;
    void setTextRTF(std::string_view rtf);

    /// The selection in `Text`, counted from 0. Start and length are clamped to the text; error 5
    /// for a negative value. Setting the start clears the selection.
    int SelStart() const;
    void setSelStart(int start);
    int SelLength() const;
    void setSelLength(int length);

    /// Setting it replaces the selection by text in the look of the replaced characters, and moves
    /// the selection after it. Half a line break is replaced as a whole.
    QString SelText() const;
    void setSelText(const QString& text);

    /// The colour of the first selected character. Without a selection it is that of inserted text;
    /// setting it then lasts until the selection moves.
    ColorValue SelColor() const;
    void setSelColor(ColorValue color);

    /// Position and size in the plot, in twentieths of a point. A size that is set is a minimum;
    /// the text may need more.
    double unitsLeft() const { return m_left; }
    void setUnitsLeft(double left);
    double unitsTop() const { return m_top; }
    void setUnitsTop(double top);
    double unitsWidth() const;
    void setUnitsWidth(double width);
    double unitsHeight() const;
    void setUnitsHeight(double height);

    /// The size that the text needs, or the prompt of an empty box, in pixels.
    QSize textSize() const { return m_textSize; }

    void Move(double left, double top);

    /// Whether the box was given a position. Until then the plot positions it.
    bool wasMoved() const { return m_wasMoved; }
    void place(double left, double top);

    /// Shown on the screen while the text is empty; never part of text or picture.
    const QString& prompt() const { return m_prompt; }
    void setPrompt(const QString& prompt);

    const RichText& content() const { return m_content; }
    void setContent(RichText content);
    bool isEmpty() const { return m_content.runs.empty(); }

    /// What a user can change in a box.
    struct State
    {
        RichText content;
        tarsil::Font font;
        ColorValue foreColor = 0;
        bool wasMoved = false;
        double left = 0; ///< twentieths of a point
        double top = 0; ///< twentieths of a point

        bool operator==(const State&) const = default;
    };
    State state() const;
    void setState(const State& state);

    /// Draws the text into `context` at the position of the box.
    void drawEMF(DeviceContext& context) { Draw(&context); }

    /// Copies text, looks, selection, position and minimum size of another box.
    void Clone(const emfRichTextBox& source);

    /// Keys "Font" (Arial, 10 points), "ForeColor" 0, "Text" "", "SelText", "SelLength" 0,
    /// "SelStart" 0. "SelText" is written but not read: it follows from start and length.
    void ReadProperties(const PropertyBag& bag);
    PropertyBag WriteProperties() const;
    const ChangedProperties& changedProperties() const { return m_changed; }

protected:
    void paint(DeviceContext& context) const override;

private:
    void fitToText();
    TextFormat defaultFormat() const;
    struct Selection
    {
        int start;
        int length;
    };
    Selection selection() const;
    void select(Selection selection);
    TextRange selectedRange() const;
    TextFormat insertionFormat() const;

    RichText m_content;
    QString m_prompt;
    tarsil::Font m_font {QStringLiteral("Arial"), 10};
    ColorValue m_foreColor = 0;
    Selection m_selection {0, 0}; ///< as set; may exceed a text that was shortened since
    std::optional<TextFormat> m_insertion; ///< set look of text inserted at the selection
    double m_left = 0;
    double m_top = 0;
    bool m_wasMoved = false;
    QSize m_textSize;
    QSize m_leastSize; ///< pixels
    ChangedProperties m_changed;
};

} // namespace tarsil

Q_DECLARE_METATYPE(tarsil::Font)
