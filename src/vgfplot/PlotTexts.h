// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "rtf/RichText.h"
#include "vgfplot/TextBox.h"

#include <QString>

#include <functional>
#include <string_view>

namespace tarsil {

class PlotPicture;
class emfRichTextBox;
struct PlotParts;

/// Changes the text boxes of a V-g-f plot. Every change updates the layout and marks the picture as
/// stale.
class PlotTexts
{
public:
    /// Both must outlive the object.
    PlotTexts(PlotParts& parts, PlotPicture& picture) : m_parts(parts), m_picture(picture) { }

    void setText(TextBox box, const QString& text);
    void setTextRTF(TextBox box, std::string_view rtf);
    void setContent(TextBox box, RichText content);

    /// Changes a box by a function.
    void change(TextBox box, const std::function<void(emfRichTextBox&)>& change);

    /// Moves a box to a position in twentieths of a point; the header returns to its row. The box
    /// keeps the position. Where it would not be visible as a whole it is shown and drawn at the
    /// nearest edge (`shownRectangle`); its `geometry` is the shown one.
    void move(TextBox box, double left, double top);

    /// Sets the top of the header's row in twentieths of a point; 60 in a new plot. When the plot
    /// is too small, the header is shown at the nearest edge.
    void setHeaderTop(double top);

    /// In edit mode the boxes are outlined on the screen, and a click edits one.
    bool EditMode() const { return m_editMode; }
    void setEditMode(bool on);

private:
    PlotParts& m_parts;
    PlotPicture& m_picture;
    bool m_editMode = false;
};

} // namespace tarsil
