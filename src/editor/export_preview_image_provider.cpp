#include "editor/export_preview_image_provider.h"

#include "editor/export_preview_image_store.h"

namespace zm {

ExportPreviewImageProvider::ExportPreviewImageProvider(std::shared_ptr<const ExportPreviewImageStore> store)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_store(std::move(store))
{
}

QImage ExportPreviewImageProvider::requestImage(const QString &, QSize *size, const QSize &requestedSize)
{
    const QImage image = m_store->image();
    if (size)
        *size = image.size();
    if (image.isNull() || requestedSize.isEmpty())
        return image;
    return image.scaled(requestedSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace zm
