// SPDX-License-Identifier: Apache-2.0
#include "explorer/ExplorerImages.h"

#include <QtGlobal>

/// Loads the resources, which a static library does not load by itself. The macro must be used
/// outside namespaces.
static void loadExplorerResource()
{
    Q_INIT_RESOURCE(explorer);
}

namespace tarsil {

ExplorerImages::ExplorerImages()
{
    loadExplorerResource();
}

QIcon ExplorerImages::image(const QString& name)
{
    if (name.isEmpty())
        return {};
    auto known = m_images.find(name);
    if (known == m_images.end())
        known = m_images.insert(name, QIcon(QStringLiteral(":/explorer/%1.svg").arg(name)));
    return *known;
}

} // namespace tarsil
