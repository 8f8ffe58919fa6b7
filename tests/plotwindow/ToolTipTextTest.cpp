// SPDX-License-Identifier: Apache-2.0
#include "plotwindow/ToolTipText.h"

#include <QTextDocument>

#include <gtest/gtest.h>

using tarsil::toolTipText;

namespace {

/// The text that a person reads in a tool tip.
QString shown(const QString& toolTip)
{
    if (!Qt::mightBeRichText(toolTip))
        return toolTip;
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

} // namespace

TEST(ToolTipText, showsEveryTextUnchanged)
{
    for (const char* text : {"", "R&D", "R&amp;D", "1 < 2", "<b>x</b>", "<img src='file:///a.png'>",
                             "a\n<b>b</b>", "&lt;b&gt;", "  <p>", "<!doctype html>"})
        EXPECT_EQ(shown(toolTipText(QString::fromUtf8(text))).toStdString(), text);
}

TEST(ToolTipText, showsTheKeysOfACommand)
{
    const auto tip = [](const QList<QKeySequence>& keys) {
        return tarsil::toolTipWithKeys(QStringLiteral("Undo"), keys).toStdString();
    };
    EXPECT_EQ(tip({}), "Undo");
    EXPECT_EQ(tip({QKeySequence()}), "Undo");
    EXPECT_EQ(tip({Qt::CTRL | Qt::Key_Z}), "Undo (Ctrl+Z)");
    EXPECT_EQ(tip({Qt::Key_Plus, QKeySequence(), Qt::ALT | Qt::Key_Up}), "Undo (+, Alt+Up)");
}
