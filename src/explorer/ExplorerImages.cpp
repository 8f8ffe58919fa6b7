#include "explorer/ExplorerImages.h"

#include <QtGlobal>

/// The images are in a static library, whose resources nobody would load otherwise. (The macro
/// works outside namespaces only.)
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
