// SPDX-License-Identifier: Apache-2.0
#include "surface/PropertyDate.h"

#include <QLocale>

namespace tarsil {

QDateTime propertyDate(const QString& workspaceDate)
{
    constexpr qsizetype dateSize = 11; // "07-Mar-2026"
    const QString text = workspaceDate.trimmed();
    const QDate date = QLocale::c().toDate(text.left(dateSize), QStringLiteral("dd-MMM-yyyy"));
    const QTime time = QTime::fromString(text.mid(dateSize + 1), QStringLiteral("HH:mm:ss"));
    if (!date.isValid() || !time.isValid())
        return QDateTime({1980, 1, 1}, {0, 0}, Qt::UTC);
    return QDateTime(date, time, Qt::UTC);
}

} // namespace tarsil
