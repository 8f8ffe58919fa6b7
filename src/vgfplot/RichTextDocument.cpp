// SPDX-License-Identifier: Apache-2.0
#include "vgfplot/RichTextDocument.h"

#include "rtf/FontName.h"
#include "rtf/RichTextEdit.h"
#include "surface/DrawnFace.h"
#include "surface/PixelMath.h"
#include "surface/QtColor.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

namespace tarsil {

namespace {

constexpr double pointsPerPixel = 72.0 / 96;

double pointsOf(const QTextCharFormat& format, double otherwise)
{
    if (format.fontPointSize() > 0)
        return format.fontPointSize();
    const int pixels = format.intProperty(QTextFormat::FontPixelSize); // used by pasted web pages
    return pixels > 0 ? pixels * pointsPerPixel : otherwise;
}

/// The first family if it is a valid font name: pasted text can contain anything.
std::string familyOf(const QTextCharFormat& format, const std::string& otherwise)
{
    const QStringList families = format.fontFamilies().toStringList();
    const bool isNamed = !families.isEmpty() && isFontName(families.first().toStdU16String());
    return isNamed ? families.first().toStdString() : otherwise;
}

void appendBlock(QTextCursor& cursor, const QTextCharFormat& format)
{
    cursor.insertBlock(QTextBlockFormat(), format);
}

/// The characters of a fragment, with soft breaks as line ends and without pictures.
std::u16string charactersOf(QString text)
{
    text.replace(QChar::LineSeparator, u'\n');
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.remove(QChar::ObjectReplacementCharacter);
    return text.toStdU16String();
}

} // namespace

QTextCharFormat charFormatOf(const TextFormat& format)
{
    QTextCharFormat result;
    const QString family = QString::fromStdString(format.family);
    const QString face = drawnFace(family);
    result.setFontFamilies(face == family ? QStringList(family) : QStringList({family, face}));
    result.setFontPointSize(format.points);
    result.setFontWeight(format.bold ? QFont::Bold : QFont::Normal);
    result.setFontItalic(format.italic);
    result.setFontUnderline(format.underline);
    result.setFontStrikeOut(format.strikeOut);
    if (format.color)
        result.setForeground(qtColor(*format.color));
    return result;
}

TextFormat textFormatOf(const QTextCharFormat& format, const TextFormat& otherwise)
{
    TextFormat result;
    result.family = familyOf(format, otherwise.family);
    result.points = pointsOf(format, otherwise.points);
    result.bold = format.fontWeight() > QFont::Medium;
    result.italic = format.fontItalic();
    result.underline = format.fontUnderline();
    result.strikeOut = format.fontStrikeOut();
    if (format.hasProperty(QTextFormat::ForegroundBrush)) {
        const QColor color = format.foreground().color();
        result.color = rgb(color.red(), color.green(), color.blue());
    }
    return result;
}

void fillDocument(QTextDocument& document, const RichText& text)
{
    document.clear();
    QTextCursor cursor(&document);
    cursor.setBlockCharFormat(charFormatOf(formatAt(text, 0)));
    // The format of a block belongs to the break before it.
    for (const TextRun& run : text.runs) {
        const QTextCharFormat format = charFormatOf(run.format);
        const QString characters = QString::fromStdU16String(run.text);
        const QStringList lines = characters.split(u'\n');
        cursor.insertText(lines.first(), format);
        for (qsizetype i = 1; i < lines.size(); ++i) {
            appendBlock(cursor, format);
            cursor.insertText(lines[i], format);
        }
    }
    document.clearUndoRedoStacks();
    document.setModified(false);
}

RichText richTextOf(const QTextDocument& document, const TextFormat& otherwise)
{
    RichText text;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        TextFormat format = textFormatOf(block.charFormat(), otherwise);
        if (block != document.begin())
            text.runs.push_back({u"\n", format});
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            format = textFormatOf(fragment.fragment().charFormat(), otherwise);
            text.runs.push_back({charactersOf(fragment.fragment().text()), format});
        }
        text.last = format;
    }
    joinRuns(text);
    return text;
}

} // namespace tarsil
