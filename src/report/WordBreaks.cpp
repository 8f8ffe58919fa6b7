// SPDX-License-Identifier: Apache-2.0
#include "report/WordBreaks.h"

namespace tarsil {

namespace {

constexpr qsizetype endingSize = 8; ///< characters that are kept together at the end of a name

bool mayEndLine(QChar character, qsizetype charactersAfter)
{
    if (charactersAfter == 0)
        return false;
    return character == u'_' || character == u'-'
        || (character == u'.' && charactersAfter >= endingSize);
}

QString brokenWord(const QString& word, const ReportFont& font, double width)
{
    QString result;
    qsizetype tail = 0; // the part after the last position
    for (qsizetype i = 0; i < word.size(); ++i) {
        result += word[i];
        if (mayEndLine(word[i], word.size() - i - 1)) {
            result += wordBreak;
            tail = i + 1;
        }
    }
    if (word.size() - tail > endingSize && widthOf(word.mid(tail), font) > width)
        result.insert(result.size() - endingSize, wordBreak);
    return result;
}

} // namespace

QString withWordBreaks(const QString& text, const ReportFont& font, double width)
{
    QString result;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isFolder = text[i] == u'/' || text[i] == u'\\';
        if (!isFolder && text[i] != u' ' && i + 1 < text.size())
            continue;
        const QString word = text.mid(start, i + 1 - start);
        result += widthOf(word.trimmed(), font) > width ? brokenWord(word, font, width) : word;
        if (isFolder)
            result += wordBreak;
        start = i + 1;
    }
    return result;
}

} // namespace tarsil
