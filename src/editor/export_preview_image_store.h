#pragma once

#include <QImage>
#include <QReadWriteLock>

namespace zm {

/// The picture of the last finished export preview. Usable from any thread.
class ExportPreviewImageStore
{
public:
    /// Null while there is no preview.
    QImage image() const
    {
        const QReadLocker locker(&m_lock);
        return m_image;
    }

    void setImage(const QImage &image)
    {
        const QWriteLocker locker(&m_lock);
        m_image = image;
    }

private:
    mutable QReadWriteLock m_lock;
    QImage m_image;
};

} // namespace zm
