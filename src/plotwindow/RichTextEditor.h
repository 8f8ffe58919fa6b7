// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plotwindow/InPlaceEditor.h"
#include "rtf/RichText.h"

class QAction;
class QComboBox;
class QFontComboBox;
class QTextCharFormat;
class QTextEdit;
class QToolBar;

namespace tarsil {

/// Edits a rich text: a text edit below a toolbar for font, size, bold, italic, underline,
/// strike-through and colour, with the usual shortcuts. Initially the cursor is at the end of the
/// text and nothing is selected. Tab leaves the text.
class RichTextEditor : public InPlaceEditor
{
    Q_OBJECT

public:
    /// `automaticColor` is the colour of text without a colour of its own.
    RichTextEditor(const RichText& text, ColorValue automaticColor, QWidget* parent);
    ~RichTextEditor() override;

    RichText text() const;
    QTextEdit* edit() const { return m_edit; }

private:
    void addFontChoosers(QToolBar& bar);
    void addToggles(QToolBar& bar);
    QAction* addToggle(QToolBar& bar, const QString& letter, const QString& name,
                       const QKeySequence& key, void (*setter)(QTextCharFormat&, bool));
    void addColorButton(QToolBar& bar);
    void chooseColor();
    void change(const QTextCharFormat& format);
    void showFormat(const QTextCharFormat& format);

    TextFormat m_format; ///< default for pasted text
    QTextEdit* m_edit;
    QFontComboBox* m_families = nullptr;
    QComboBox* m_sizes = nullptr;
    QAction* m_bold = nullptr;
    QAction* m_italic = nullptr;
    QAction* m_underline = nullptr;
    QAction* m_strikeOut = nullptr;
    QAction* m_color = nullptr;
    ColorValue m_automaticColor;
};

} // namespace tarsil
