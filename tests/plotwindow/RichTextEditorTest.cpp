// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/RichTextEditor.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFontComboBox>
#include <QKeyEvent>
#include <QTextEdit>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

class RichTextEditorTest : public ::testing::Test
{
protected:
    RichTextEditorTest()
        : editor({{{u"first\nsecond", TextFormat()}}, TextFormat()}, rgb(10, 20, 30), &window),
          other(&window)
    {
        window.resize(600, 300);
        editor.setGeometry(0, 0, 500, 200);
        other.setGeometry(520, 0, 50, 20);
        other.setFocusPolicy(Qt::StrongFocus);
        window.show();
        window.activateWindow();
        editor.setFocus();
        QApplication::processEvents();
    }

    QToolButton* button(const char* name)
    {
        for (QToolButton* one : editor.findChildren<QToolButton*>()) {
            if (one->accessibleName() == QString::fromLatin1(name))
                return one;
        }
        return nullptr;
    }

    void selectFirstLine()
    {
        QTextCursor cursor(editor.edit()->document());
        cursor.setPosition(5, QTextCursor::KeepAnchor);
        editor.edit()->setTextCursor(cursor);
    }

    QWidget window;
    RichTextEditor editor;
    QWidget other;
};

} // namespace

TEST_F(RichTextEditorTest, beginsAfterTheText)
{
    EXPECT_FALSE(editor.edit()->textCursor().hasSelection());
    EXPECT_TRUE(editor.edit()->textCursor().atEnd());
    EXPECT_FALSE(editor.edit()->document()->isModified());
}

TEST_F(RichTextEditorTest, changesTheSelectionWithItsButtons)
{
    selectFirstLine();
    for (const char* name : {"Bold", "Italic", "Underline", "Strike through"}) {
        ASSERT_NE(button(name), nullptr) << name;
        button(name)->click();
    }
    const RichText text = editor.text();
    ASSERT_EQ(text.runs.size(), 2U);
    EXPECT_EQ(text.runs[0].text, u"first");
    const TextFormat& look = text.runs[0].format;
    EXPECT_TRUE(look.bold && look.italic && look.underline && look.strikeOut);
    EXPECT_EQ(text.runs[1].format, TextFormat());
    button("Bold")->click();
    EXPECT_FALSE(editor.text().runs[0].format.bold);
}

TEST_F(RichTextEditorTest, changesFontAndSize)
{
    selectFirstLine();
    auto* const sizes = editor.findChildren<QComboBox*>().last();
    ASSERT_EQ(sizes->accessibleName(), QStringLiteral("Size in points"));
    Q_EMIT sizes->textActivated(QStringLiteral("8.25"));
    Q_EMIT editor.findChild<QFontComboBox*>()->textActivated(QStringLiteral("Liberation Serif"));
    const TextFormat look = editor.text().runs[0].format;
    EXPECT_EQ(look.points, 8.25);
    EXPECT_EQ(look.family, "Liberation Serif");
}

TEST_F(RichTextEditorTest, leavesTheSizeAloneForWhatIsNone)
{
    auto* const sizes = editor.findChildren<QComboBox*>().last();
    for (const char* text : {"", "big", "0", "-3", "100000"}) {
        Q_EMIT sizes->textActivated(QString::fromLatin1(text));
        EXPECT_EQ(editor.text().runs[0].format.points, 10) << text;
        EXPECT_EQ(sizes->currentText(), QStringLiteral("10")) << text;
    }
}

TEST_F(RichTextEditorTest, showsTheLookOfTheText)
{
    selectFirstLine();
    button("Italic")->click();
    editor.edit()->moveCursor(QTextCursor::End);
    EXPECT_FALSE(button("Italic")->isChecked());
    selectFirstLine();
    EXPECT_TRUE(button("Italic")->isChecked());
}

TEST_F(RichTextEditorTest, endsWhenTheFocusGoesElsewhere)
{
    int times = 0;
    QObject::connect(&editor, &RichTextEditor::left, [&times] { ++times; });
    editor.findChildren<QComboBox*>().last()->setFocus();
    EXPECT_EQ(times, 0) << "its own size box";
    other.setFocus();
    EXPECT_EQ(times, 1);
}
