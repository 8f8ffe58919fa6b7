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

/// Edits a rich text: a text edit below a row of buttons for font, size, bold, italic, underline,
/// strike-through and colour, which the usual keys reach too. At first nothing is selected, and
/// what is typed follows the text.
class RichTextEditor : public QFrame
{
    Q_OBJECT

public:
    /// `automaticColor` shows text that has no colour of its own.
    RichTextEditor(const RichText& text, ColorValue automaticColor, QWidget* parent);
    ~RichTextEditor() override;

    RichText text() const;
    QTextEdit* edit() const { return m_edit; }

Q_SIGNALS:
    /// The focus has gone to something that is no part of the editor.
    void left();

    /// Escape: the text is to stay as it was.
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

    TextFormat m_format; ///< of text that says nothing of its look
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
