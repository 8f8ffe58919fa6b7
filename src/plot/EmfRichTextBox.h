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

/// A box of text on the plot: header, legend or subtitle. Every character has its own font and
/// colour. The box is as large as its text needs; positions and sizes are kept in twentieths of a
/// point.
///
/// The text that programs see (`Text`, and the positions of the selection) has CR LF for each line
/// break, so that a break counts two characters, as does a character outside the basic plane.
class emfRichTextBox : public PlotControl
{
public:
    emfRichTextBox();

    /// The font of new text; setting it gives the whole text this font.
    const tarsil::Font& Font() const { return m_font; }
    void setFont(const tarsil::Font& font);

    /// The colour of all text that has none of its own.
    ColorValue ForeColor() const { return m_foreColor; }
    void setForeColor(ColorValue color);

    /// A lone LF or CR separates lines too and becomes CR LF. Text that is set has the box's font
    /// and colour; the selection goes to its beginning.
    QString Text() const;
    void setText(const QString& text);

    /// The text with its fonts and colours in Rich Text Format, in the form that a workspace keeps
    /// (`rtfToStore`). What is set may come from any writer and may be cut; text that is no such
    /// format is taken as it stands.
    std::string TextRTF() const;
    void setTextRTF(std::string_view rtf);

    /// The selection, counted from 0 in `Text`. A start or length beyond the text ends with it;
    /// error 5 for a negative one. Setting the start leaves nothing selected.
    int SelStart() const;
    void setSelStart(int start);
    int SelLength() const;
    void setSelLength(int length);

    /// Setting it puts text in place of the selection, with the look of what stood there, and the
    /// selection behind it. Half a line break is replaced as a whole one.
    QString SelText() const;
    void setSelText(const QString& text);

    /// The colour of the first selected character; with nothing selected, that of text inserted
    /// there, which setting it changes until the selection moves.
    ColorValue SelColor() const;
    void setSelColor(ColorValue color);

    /// Position and size in the container, twentieths of a point. The size that is set is the least
    /// one; the text can need more.
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

    /// Whether somebody gave the box its position; until then its container places it.
    bool wasMoved() const { return m_wasMoved; }
    void place(double left, double top);

    /// What stands on the screen in the place of an empty text; never part of text or picture.
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
        double left = 0; ///< twentieths of a point, like `top`
        double top = 0;

        bool operator==(const State&) const = default;
    };
    State state() const;
    void setState(const State& state);

    /// Draws the text into a caller's context at the box's position.
    void drawEMF(DeviceContext& context) { Draw(&context); }

    /// Copies text, looks, selection, position and least size of another box.
    void Clone(const emfRichTextBox& source);

    /// Keys "Font" (Arial, 10 points), "ForeColor" 0, "Text" "", "SelText", "SelLength" 0,
    /// "SelStart" 0. What the selection says follows from start and length, so "SelText" is written
    /// but not read.
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
    Selection m_selection {0, 0}; ///< as set; the text can have become shorter since
    std::optional<TextFormat>
        m_insertion; ///< look of text inserted at the selection, if it was set
    double m_left = 0;
    double m_top = 0;
    bool m_wasMoved = false;
    QSize m_textSize;
    QSize m_leastSize; ///< pixels
    ChangedProperties m_changed;
};

} // namespace tarsil

Q_DECLARE_METATYPE(tarsil::Font)
