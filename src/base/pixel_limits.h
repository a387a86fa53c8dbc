#pragma once

#include <QSize>

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

/// Makes room in Qt's own reader for a picture of kMaximumRasterPixels at up to eight bytes a pixel, which deep
/// colour formats are decoded to before they are converted. Called once at the start of each program.
void raiseImageAllocationLimit();

} // namespace zm
