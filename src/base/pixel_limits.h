#pragma once

#include <QSize>
#include <QSizeF>

namespace zm {

/// The most pixels that one raster allocation may hold: a layer, a paint surface, a decoded picture.
inline constexpr qint64 kMaximumRasterPixels = 100'000'000;

/// Bytes of a pixel of the one format of the document, QImage::Format_RGBA8888.
inline constexpr qint64 kBytesPerPixel = 4;

/// True for at least 1 x 1 and at most kMaximumRasterPixels pixels.
inline bool isAllocatableRasterSize(const QSize &size)
{
    return size.width() >= 1 && size.height() >= 1 && qint64(size.width()) * size.height() <= kMaximumRasterPixels;
}

/// The whole pixels that cover a box: each side rounded up and at least 1, an absurd one the largest number.
QSize coveringPixels(const QSizeF &size);

} // namespace zm
