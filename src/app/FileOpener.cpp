// SPDX-License-Identifier: Apache-2.0
#include "app/FileOpener.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace tarsil {

namespace {

/// Whether the desktop has a program for spreadsheets; true when that is unknown.
bool mayHaveProgram()
{
    constexpr int patience = 3000; // milliseconds
    const QString asker = QStandardPaths::findExecutable(QStringLiteral("xdg-mime"));
    if (asker.isEmpty())
        return true;
    QProcess process;
    process.start(asker,
                  {QStringLiteral("query"), QStringLiteral("default"),
                   QStringLiteral("application/"
                                  "vnd.openxmlformats-officedocument.spreadsheetml.sheet")});
    return !process.waitForFinished(patience)
        || !process.readAllStandardOutput().trimmed().isEmpty();
}

} // namespace

bool openSpreadsheet(const QString& path)
{
    return mayHaveProgram() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace tarsil
