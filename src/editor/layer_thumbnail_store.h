#pragma once

#include <QHash>
#include <QImage>
#include <QReadWriteLock>
#include <QUuid>

namespace zm {

/// The reduced looks of the layers. Usable from any thread.
class LayerThumbnailStore
{
public:
    /// Null while there is no thumbnail of that layer.
    QImage image(const QUuid &layerId) const
    {
        const QReadLocker locker(&m_lock);
        return m_images.value(layerId);
    }

    void setImage(const QUuid &layerId, const QImage &image)
    {
        const QWriteLocker locker(&m_lock);
        m_images.insert(layerId, image);
    }

    void remove(const QUuid &layerId)
    {
        const QWriteLocker locker(&m_lock);
        m_images.remove(layerId);
    }

private:
    mutable QReadWriteLock m_lock;
    QHash<QUuid, QImage> m_images;
};

} // namespace zm
