#pragma once

#include <QByteArray>
#include <QImage>
#include <QMutex>

namespace zm {

/// How a document file embeds the pixels of a layer: as WebP without loss, as WebP with a loss that is hard to see, or
/// as they are.
enum class EmbeddedImageMode { Lossless = 0, Compressed = 1, Raw = 2 };

/// The WebP files that a picture was read from or last encoded to. With them unchanged pixels are saved without being
/// encoded again, which takes time and, with loss, wears the picture out. The copies of a source share one. Safe from
/// any thread.
class PictureEncodings
{
public:
    /// Empty when nothing is kept for exactly these pixels in this mode, and always for raw.
    QByteArray find(const QImage &pixels, EmbeddedImageMode mode) const;
    /// Other pixels than before let go of what was kept of those.
    void keep(const QImage &pixels, EmbeddedImageMode mode, const QByteArray &file);

private:
    mutable QMutex m_mutex;
    /// QImage::cacheKey(), which changes with the pixels and is never used again.
    qint64 m_pixels = 0;
    QByteArray m_lossless;
    QByteArray m_compressed;
};

} // namespace zm
