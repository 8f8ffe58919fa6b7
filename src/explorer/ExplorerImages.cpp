// SPDX-License-Identifier: Apache-2.0
#include "explorer/ExplorerImages.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QtGlobal>

#include <utility>

/// Loads the resources, which a static library does not load by itself. The macro must be used
/// outside namespaces.
static void loadExplorerResource()
{
    Q_INIT_RESOURCE(explorer);
}

namespace tarsil {

namespace {

/// An image that is empty until it may be loaded, and is read when it is first painted after that.
class LateImage : public QIconEngine
{
public:
    LateImage(QString path, std::shared_ptr<const bool> mayLoad)
        : m_path(std::move(path)), m_mayLoad(std::move(mayLoad))
    { }

    void paint(QPainter* painter, const QRect& rectangle, QIcon::Mode mode,
               QIcon::State state) override
    {
        icon().paint(painter, rectangle, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1);
    }

    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override
    {
        return icon().pixmap(size / scale, scale, mode, state);
    }

    QIconEngine* clone() const override { return new LateImage(*this); }

private:
    const QIcon& icon()
    {
        if (m_icon.isNull() && *m_mayLoad)
            m_icon = QIcon(m_path);
        return m_icon;
    }

    QString m_path;
    std::shared_ptr<const bool> m_mayLoad;
    QIcon m_icon;
};

} // namespace

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
        known = m_images.insert(
            name, QIcon(new LateImage(QStringLiteral(":/explorer/%1.svg").arg(name), m_isLoaded)));
    return *known;
}

} // namespace tarsil
