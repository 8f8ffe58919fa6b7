#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

namespace tarsil {

/// The images of the explorer by their names, one drawing each, sharp at every density. An image
/// that several nodes show is rendered once.
class ExplorerImages
{
public:
    ExplorerImages();

    /// An empty icon for an empty name.
    QIcon image(const QString& name);

private:
    QHash<QString, QIcon> m_images;
};

} // namespace tarsil
