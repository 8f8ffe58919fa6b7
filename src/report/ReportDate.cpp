// SPDX-License-Identifier: Apache-2.0
#include "report/ReportDate.h"

#include "report/ReportContent.h"

#include <QLocale>

namespace tarsil {

QDateTime documentDate(const ReportContent& content)
{
    constexpr qsizetype dateSize = 11; // "07-Mar-2026 09:05:03"
    const QString text = QString::fromStdString(content.date).trimmed();
    const QDate date = QLocale::c().toDate(text.left(dateSize), QStringLiteral("dd-MMM-yyyy"));
    const QTime time = QTime::fromString(text.mid(dateSize + 1), QStringLiteral("HH:mm:ss"));
    if (!date.isValid() || !time.isValid())
        return QDateTime({1980, 1, 1}, {0, 0}, Qt::UTC);
    return QDateTime(date, time, Qt::UTC);
}

} // namespace tarsil
