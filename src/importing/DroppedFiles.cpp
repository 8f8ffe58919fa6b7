// SPDX-License-Identifier: Apache-2.0
#include "importing/DroppedFiles.h"

#include <QMimeData>
#include <QUrl>

namespace tarsil {

std::vector<std::string> droppedFiles(const QMimeData& data)
{
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths.push_back(url.toLocalFile().toStdString());
    }
    return paths;
}

} // namespace tarsil
