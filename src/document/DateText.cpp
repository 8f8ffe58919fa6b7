// SPDX-License-Identifier: Apache-2.0
#include "document/DateText.h"

#include <QDateTime>
#include <QLocale>

namespace tarsil {

QString dateText(const QDateTime& date)
{
    return QLocale::c().toString(date, QStringLiteral("dd-MMM-yyyy HH:mm:ss"));
}

} // namespace tarsil
