// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QIcon>
#include <QString>

#include <memory>

namespace tarsil {

/// The images of the explorer by name, as scalable drawings. An image used by several nodes is
/// rendered once. Reading them takes a tenth of the start of the program, so they draw nothing
/// until `load` is called.
class ExplorerImages
{
public:
    ExplorerImages();

    /// Empty for an empty name.
    QIcon image(const QString& name);

    /// Lets all images draw from now on, those already handed out too. Who shows them must be
    /// painted again.
    void load() { *m_isLoaded = true; }

    bool isLoaded() const { return *m_isLoaded; }

private:
    QHash<QString, QIcon> m_images;
    std::shared_ptr<bool> m_isLoaded = std::make_shared<bool>(false); ///< shared with the images
};

} // namespace tarsil
