#include "document/picture_encodings.h"

namespace zm {

QByteArray PictureEncodings::find(const QImage &pixels, EmbeddedImageMode mode) const
{
    const QMutexLocker locker(&m_mutex);
    if (pixels.cacheKey() != m_pixels || mode == EmbeddedImageMode::Raw)
        return {};
    return mode == EmbeddedImageMode::Lossless ? m_lossless : m_compressed;
}

void PictureEncodings::keep(const QImage &pixels, EmbeddedImageMode mode, const QByteArray &file)
{
    const QMutexLocker locker(&m_mutex);
    if (mode == EmbeddedImageMode::Raw)
        return;
    if (pixels.cacheKey() != m_pixels) {
        m_pixels = pixels.cacheKey();
        m_lossless.clear();
        m_compressed.clear();
    }
    (mode == EmbeddedImageMode::Lossless ? m_lossless : m_compressed) = file;
}

} // namespace zm
