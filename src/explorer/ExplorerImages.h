// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

namespace tarsil {

/// The images of the explorer by name, as scalable drawings. An image used by several nodes is
/// rendered once.
class ExplorerImages
{
public:
    ExplorerImages();

    /// Empty for an empty name.
    QIcon image(const QString& name);

private:
    QHash<QString, QIcon> m_images;
};

} // namespace tarsil
