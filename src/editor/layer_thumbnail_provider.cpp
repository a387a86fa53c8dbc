#include "editor/layer_thumbnail_provider.h"

#include "document/layer.h"
#include "editor/layer_thumbnail_store.h"
#include "editor/layer_thumbnails.h"

namespace zm {

LayerThumbnailProvider::LayerThumbnailProvider(std::shared_ptr<const LayerThumbnailStore> store)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_store(std::move(store))
{
}

QImage LayerThumbnailProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    QImage image = m_store->image(QUuid::fromString(id.section(u'/', 0, 0)));
    if (image.isNull())
        image = transparentContentImage({1, 1});
    if (!requestedSize.isEmpty()) {
        image =
            image.scaled(thumbnailSize(image.size(), requestedSize), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    }
    if (size)
        *size = image.size();
    return image;
}

} // namespace zm
