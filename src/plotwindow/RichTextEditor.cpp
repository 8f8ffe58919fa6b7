// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/RichTextEditor.h"

#include "base/numbers/Numbers.h"
#include "plotwindow/ToolTipText.h"
#include "surface/QtColor.h"
#include "vgfplot/RichTextDocument.h"

#include <QAction>
#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFontComboBox>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace tarsil {

namespace {

constexpr int swatchSide = 14;

QIcon swatch(const QColor& color)
{
    QPixmap pixmap(swatchSide, swatchSide);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

RichTextEditor::RichTextEditor(const RichText& text, ColorValue automaticColor, QWidget* parent)
    : InPlaceEditor(parent), m_format(text.last), m_edit(new QTextEdit(this)),
      m_automaticColor(automaticColor)
{
    auto* const bar = new QToolBar(this);
    addFontChoosers(*bar);
    addToggles(*bar);
    addColorButton(*bar);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    layout->addWidget(bar);
    layout->addWidget(m_edit);
    QPalette palette = m_edit->palette();
    palette.setColor(QPalette::Base, Qt::white); // like the plot
    palette.setColor(QPalette::Text, qtColor(automaticColor));
    m_edit->setPalette(palette);
    m_edit->setAccessibleName(tr("Text"));
    fillDocument(*m_edit->document(), text);
    m_edit->moveCursor(QTextCursor::End); // typing appends to the text
    m_edit->setTabChangesFocus(true);
    watch(*m_edit);
    setFocusProxy(m_edit);
    connect(m_edit, &QTextEdit::currentCharFormatChanged, this, &RichTextEditor::showFormat);
    showFormat(m_edit->currentCharFormat());
}

/// The document still changes while it is destroyed; the editor must not react any more.
RichTextEditor::~RichTextEditor()
{
    m_edit->disconnect(this);
}

RichText RichTextEditor::text() const
{
    return richTextOf(*m_edit->document(), m_format);
}

void RichTextEditor::addFontChoosers(QToolBar& bar)
{
    m_families = new QFontComboBox(&bar);
    m_families->setAccessibleName(tr("Font"));
    m_families->setToolTip(tr("Font"));
    m_families->setMaximumWidth(150);
    bar.addWidget(m_families);
    connect(m_families, &QFontComboBox::textActivated, this, [this](const QString& family) {
        QTextCharFormat format;
        format.setFontFamilies({family});
        change(format);
    });
    m_sizes = new QComboBox(&bar);
    m_sizes->setEditable(true);
    m_sizes->setAccessibleName(tr("Size in points"));
    m_sizes->setToolTip(tr("Size in points"));
    for (const int size : {6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 24, 28, 36})
        m_sizes->addItem(QString::number(size));
    bar.addWidget(m_sizes);
    connect(m_sizes, &QComboBox::textActivated, this, [this](const QString& text) {
        constexpr double most = 400;
        double points = 0;
        const bool isNumber = parseDouble(text.toStdString(), points) == NumberStatus::Ok;
        QTextCharFormat format;
        if (isNumber && points >= 1 && points <= most) {
            format.setFontPointSize(points);
            change(format);
        } else {
            showFormat(m_edit->currentCharFormat());
        }
    });
}

void RichTextEditor::addToggles(QToolBar& bar)
{
    m_bold = addToggle(bar, QStringLiteral("B"), tr("Bold"), QKeySequence::Bold,
                       [](QTextCharFormat& format, bool on) {
                           format.setFontWeight(on ? QFont::Bold : QFont::Normal);
                       });
    m_italic = addToggle(bar, QStringLiteral("I"), tr("Italic"), QKeySequence::Italic,
                         [](QTextCharFormat& format, bool on) { format.setFontItalic(on); });
    m_underline = addToggle(bar, QStringLiteral("U"), tr("Underline"), QKeySequence::Underline,
                            [](QTextCharFormat& format, bool on) { format.setFontUnderline(on); });
    m_strikeOut = addToggle(bar, QStringLiteral("S"), tr("Strike through"), {},
                            [](QTextCharFormat& format, bool on) { format.setFontStrikeOut(on); });
}

/// A button whose letter has the look that it sets.
QAction* RichTextEditor::addToggle(QToolBar& bar, const QString& letter, const QString& name,
                                   const QKeySequence& key, void (*setter)(QTextCharFormat&, bool))
{
    auto* const action = new QAction(letter, this);
    action->setCheckable(true);
    action->setToolTip(toolTipWithKeys(name, {key}));
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    QTextCharFormat look;
    setter(look, true);
    action->setFont(look.font());
    addAction(action);
    bar.addAction(action);
    bar.widgetForAction(action)->setAccessibleName(name);
    bar.widgetForAction(action)->setFont(look.font());
    connect(action, &QAction::triggered, this, [this, setter](bool on) {
        QTextCharFormat format;
        setter(format, on);
        change(format);
    });
    return action;
}

void RichTextEditor::addColorButton(QToolBar& bar)
{
    m_color = bar.addAction(tr("Colour..."));
    m_color->setToolTip(tr("Colour"));
    bar.widgetForAction(m_color)->setAccessibleName(tr("Colour"));
    connect(m_color, &QAction::triggered, this, &RichTextEditor::chooseColor);
}

void RichTextEditor::chooseColor()
{
    const QBrush brush = m_edit->currentCharFormat().foreground();
    const QColor present = brush.style() == Qt::NoBrush ? qtColor(m_automaticColor) : brush.color();
    const QColor chosen = QColorDialog::getColor(present, this, tr("Text Colour"));
    if (!chosen.isValid())
        return;
    QTextCharFormat format;
    format.setForeground(chosen);
    change(format);
}

void RichTextEditor::change(const QTextCharFormat& format)
{
    m_edit->mergeCurrentCharFormat(format);
    // A typed size is applied when its field loses the focus; the focus must not return then.
    if (contains(QApplication::focusWidget()))
        m_edit->setFocus();
    showFormat(m_edit->currentCharFormat());
}

void RichTextEditor::showFormat(const QTextCharFormat& format)
{
    const TextFormat look = textFormatOf(format, m_format);
    m_families->setCurrentFont(QFont(QString::fromStdString(look.family)));
    m_families->setEditText(
        QString::fromStdString(look.family)); // also for a font that is not installed
    m_sizes->setEditText(QString::fromStdString(shortestText(look.points)));
    m_bold->setChecked(look.bold);
    m_italic->setChecked(look.italic);
    m_underline->setChecked(look.underline);
    m_strikeOut->setChecked(look.strikeOut);
    m_color->setIcon(swatch(qtColor(look.color.value_or(m_automaticColor))));
}

} // namespace tarsil
