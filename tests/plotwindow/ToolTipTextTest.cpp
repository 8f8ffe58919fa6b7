#include "plotwindow/ToolTipText.h"

#include <QTextDocument>

#include <gtest/gtest.h>

using tarsil::toolTipText;

namespace {

/// What a person reads in a tool tip of this text.
QString shown(const QString& toolTip)
{
    if (!Qt::mightBeRichText(toolTip))
        return toolTip;
    QTextDocument document;
    document.setHtml(toolTip);
    return document.toPlainText();
}

} // namespace

TEST(ToolTipText, showsEveryTextAsItStands)
{
    for (const char* text : {"", "R&D", "R&amp;D", "1 < 2", "<b>x</b>", "<img src='file:///a.png'>",
                             "a\n<b>b</b>", "&lt;b&gt;", "  <p>", "<!doctype html>"})
        EXPECT_EQ(shown(toolTipText(QString::fromUtf8(text))).toStdString(), text);
}
