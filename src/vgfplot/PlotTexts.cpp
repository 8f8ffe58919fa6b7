// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/PlotTexts.h"

#include "vgfplot/PlotParts.h"
#include "vgfplot/PlotPicture.h"

#include <utility>

namespace tarsil {

void PlotTexts::setText(TextBox box, const QString& text)
{
    m_parts.box(box).setText(text);
    m_picture.layOut();
}

void PlotTexts::setTextRTF(TextBox box, std::string_view rtf)
{
    m_parts.box(box).setTextRTF(rtf);
    m_picture.layOut();
}

void PlotTexts::setContent(TextBox box, RichText content)
{
    m_parts.box(box).setContent(std::move(content));
    m_picture.layOut();
}

void PlotTexts::change(TextBox box, const std::function<void(emfRichTextBox&)>& change)
{
    change(m_parts.box(box));
    m_picture.layOut();
}

void PlotTexts::move(TextBox box, double left, double top)
{
    if (box != TextBox::Header)
        m_parts.box(box).Move(left, top);
    m_picture.layOut();
}

void PlotTexts::setHeaderTop(double top)
{
    m_parts.headerTop = top;
    m_picture.layOut();
}

void PlotTexts::setEditMode(bool on)
{
    m_editMode = on;
    Q_EMIT m_picture.changed();
}

} // namespace tarsil
