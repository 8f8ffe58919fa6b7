// SPDX-License-Identifier: Apache-2.0
#include "app/SharedFiles.h"

#include "base/user/RunTimeError.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tarsil {

/// The program is in PREFIX/bin, or in build/PRESET/bin of the project.
QString sharedFile(const SharedFolder& folder, const QString& name)
{
    const QDir programs(QCoreApplication::applicationDirPath());
    const QString installed = QStringLiteral("../share/%1/%2");
    const QString built = QStringLiteral("../../../%1/%2");
    for (const QString& path : {installed.arg(QLatin1StringView(folder.installed), name),
                                built.arg(QLatin1StringView(folder.source), name)}) {
        QString whole = QDir::cleanPath(programs.absoluteFilePath(path));
        if (QFileInfo(whole).isFile())
            return whole;
    }
    throw RunTimeError(ErrorNumber::FileNotFound, "wndMain",
                       name.toStdString() + " is not installed beside the program");
}

} // namespace tarsil
