// SPDX-License-Identifier: Apache-2.0
#include "datacontrol/CellText.h"

#include <algorithm>

namespace tarsil {

namespace {

constexpr QChar quotationMark = u'"';

QString quotedCell(QString cell)
{
    const bool isSpecial = std::any_of(cell.begin(), cell.end(), [](QChar character) {
        return character == u'\t' || character == u'\n' || character == u'\r'
            || character == quotationMark;
    });
    if (!isSpecial)
        return cell;
    cell.replace(quotationMark, QStringLiteral("\"\""));
    return quotationMark + cell + quotationMark;
}

/// Reads one cell from `position` on and moves it to the character that ends the cell.
QString readCell(const QString& text, qsizetype& position)
{
    QString cell;
    bool isQuoted = false;
    if (position < text.size() && text[position] == quotationMark) {
        isQuoted = true;
        ++position;
    }
    for (; position < text.size(); ++position) {
        const QChar character = text[position];
        if (!isQuoted && (character == u'\t' || character == u'\n'))
            break;
        if (isQuoted && character == quotationMark) {
            isQuoted = text.mid(position + 1, 1) == quotationMark;
            position += isQuoted ? 1 : 0;
            if (!isQuoted)
                continue;
        }
        cell.append(character);
    }
    return cell;
}

} // namespace

QString textOfCells(const CellRows& rows)
{
    QString text;
    for (const QStringList& row : rows) {
        QStringList cells;
        for (const QString& cell : row)
            cells.append(quotedCell(cell));
        text += cells.join(u'\t') + u'\n';
    }
    return text;
}

CellRows cellsOfText(const QString& text)
{
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    CellRows rows;
    for (qsizetype position = 0; position < lines.size(); ++position) {
        QStringList row = {readCell(lines, position)};
        while (position < lines.size() && lines[position] == u'\t')
            row.append(readCell(lines, ++position));
        rows.push_back(row);
    }
    return rows;
}

} // namespace tarsil
