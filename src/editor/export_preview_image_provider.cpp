#include "editor/export_preview_image_provider.h"

#include "editor/export_preview_image_store.h"

namespace zm {

namespace {

/// The part that an id such as "7/0,1024,512,512" names: left, top, width, height. Without a part, all of it. What lies
/// beside the picture is a clear pixel: a part can be asked for as the next picture of another size comes in.
QImage partOf(const QImage &image, const QString &id)
{
    const QStringList numbers = id.section(u'/', 1).split(u',');
    if (numbers.size() != 4)
        return image;
    const QRect part(numbers.at(0).toInt(), numbers.at(1).toInt(), numbers.at(2).toInt(), numbers.at(3).toInt());
    const QRect inside = part & image.rect();
    if (!inside.isEmpty())
        return image.copy(inside);
    QImage clear(1, 1, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    return clear;
}

} // namespace

ExportPreviewImageProvider::ExportPreviewImageProvider(std::shared_ptr<const ExportPreviewImageStore> store)
    : QQuickImageProvider(QQuickImageProvider::Image)
    , m_store(std::move(store))
{
}

QImage ExportPreviewImageProvider::requestImage(const QString &id, QSize *size, const QSize &requestedSize)
{
    const QImage image = partOf(m_store->image(), id);
    if (size)
        *size = image.size();
    if (image.isNull() || requestedSize.isEmpty())
        return image;
    return image.scaled(requestedSize, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace zm
