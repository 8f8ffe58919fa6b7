// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/RichTextDocument.h"

#include <QTextCursor>
#include <QTextDocument>

#include <gtest/gtest.h>

using namespace tarsil;

namespace {

TextFormat look(const char* family, double points, std::optional<ColorValue> color = {})
{
    TextFormat format;
    format.family = family;
    format.points = points;
    format.color = color;
    return format;
}

RichText throughDocument(const RichText& text)
{
    QTextDocument document;
    fillDocument(document, text);
    return richTextOf(document, TextFormat());
}

} // namespace

TEST(RichTextDocument, keepsEveryLook)
{
    TextFormat all = look("Courier New", 8.25, rgb(1, 2, 3));
    all.bold = true;
    all.italic = true;
    all.underline = true;
    all.strikeOut = true;
    const RichText text {{{u"plain ", look("Arial", 10)}, {u"all", all}}, all};
    EXPECT_EQ(throughDocument(text), text);
}

TEST(RichTextDocument, keepsLinesAndTheLooksOfEmptyOnes)
{
    const TextFormat small = look("Arial", 6);
    const TextFormat large = look("Arial", 30);
    const RichText text {{{u"a\n", small}, {u"\n", large}, {u"b", small}}, small};
    EXPECT_EQ(throughDocument(text), text);
}

TEST(RichTextDocument, keepsTheLookOfAnEmptyText)
{
    const RichText text {{}, look("Courier New", 14)};
    EXPECT_EQ(throughDocument(text), text);
}

TEST(RichTextDocument, keepsSpecialCharacters)
{
    const TextFormat plain = look("Arial", 10);
    const RichText text {{{u"\u00A0\u03A9\U0001D6FA\t\u2011", plain}}, plain};
    EXPECT_EQ(throughDocument(text), text);
}

TEST(RichTextDocument, endsALineAtASoftBreakAndDropsPictures)
{
    QTextDocument document;
    QTextCursor(&document).insertText(QStringLiteral("a\u2028b\uFFFCc"));
    const RichText text = richTextOf(document, look("Arial", 10));
    ASSERT_EQ(text.runs.size(), 1U);
    EXPECT_EQ(text.runs[0].text, u"a\nbc");
    EXPECT_EQ(text.runs[0].format, look("Arial", 10)) << "what says nothing has the usual look";
}

TEST(RichTextDocument, keepsTheNameOfAFaceThatIsDrawnAsAnother)
{
    const RichText text {{{u"a", look("Arial Greek", 10)}}, look("Arial Greek", 10)};
    EXPECT_EQ(throughDocument(text), text);
    EXPECT_EQ(charFormatOf(look("Arial Greek", 10)).fontFamilies().toStringList(),
              QStringList({QStringLiteral("Arial Greek"), QStringLiteral("Arial")}));
}

TEST(RichTextDocument, acceptsNoFamilyThatIsNoNameOfAFont)
{
    QTextCharFormat format;
    format.setFontFamilies({QStringLiteral("A\" onload=\"x")});
    EXPECT_EQ(textFormatOf(format, look("Verdana", 10)).family, "Verdana");
}
