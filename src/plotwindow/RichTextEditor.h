#pragma once

#include "rtf/RichText.h"

#include <QFrame>

class QAction;
class QComboBox;
class QFontComboBox;
class QTextCharFormat;
class QTextEdit;
class QToolBar;

namespace tarsil {

/// Edits a rich text: a text edit below a toolbar for font, size, bold, italic, underline,
/// strike-through and colour, with the usual shortcuts. Initially the cursor is at the end of the
/// text and nothing is selected.
class RichTextEditor : public QFrame
{
    Q_OBJECT

public:
    /// `automaticColor` is the colour of text without a colour of its own.
    RichTextEditor(const RichText& text, ColorValue automaticColor, QWidget* parent);
    ~RichTextEditor() override;

    RichText text() const;
    QTextEdit* edit() const { return m_edit; }

Q_SIGNALS:
    /// The focus has moved out of the editor.
    void left();

    /// Escape was pressed: the text is not to be changed.
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addFontChoosers(QToolBar& bar);
    void addToggles(QToolBar& bar);
    QAction* addToggle(QToolBar& bar, const QString& letter, const QString& name,
                       const QKeySequence& key, void (*setter)(QTextCharFormat&, bool));
    void addColorButton(QToolBar& bar);
    void chooseColor();
    void change(const QTextCharFormat& format);
    void showFormat(const QTextCharFormat& format);
    void followFocus(QWidget* now);

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
