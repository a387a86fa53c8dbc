#pragma once

#include "base/error.h"
#include "document/image_layer_source.h"

#include <QByteArrayView>

namespace zm {

/// The longest side that a WebP file can have, pixels.
inline constexpr int kMaximumWebpSide = 16'383;

/// True for a picture that a WebP file can hold.
bool fitsWebp(const QSize &size);

/// A whole WebP file of the picture. Lossless files keep the colour under transparent pixels. Fails for the raw mode
/// and for a picture that does not fit.
std::optional<QByteArray> encodeWebp(const QImage &image, EmbeddedImageMode mode, Error &error);
/// Fails for a file whose header tells a size that no WebP can have or, if the expected size is valid, another one.
bool checkWebpSize(QByteArrayView file, const QSize &expectedSize, Error &error);
/// Pixels in QImage::Format_RGBA8888, as stored: no orientation is applied. Of an animation the first frame. Checks the
/// size before it makes room for pixels.
std::optional<QImage> decodeWebp(QByteArrayView file, const QSize &expectedSize, Error &error);

/// The source's WebP file in a mode: the one that it has, else a new one, which the source keeps.
std::optional<QByteArray> webpFile(const RasterImageSource &source, EmbeddedImageMode mode, Error &error);
/// A source of a WebP file, which it keeps for being saved in the mode that the file was made in. Nothing is kept of a
/// file that does not tell its mode, such as an animation.
std::optional<RasterImageSource> sourceFromWebp(QByteArrayView file, const QSize &expectedSize, Error &error);

/// Rows from top to bottom without padding, RGBA with straight alpha.
std::optional<QByteArray> encodeRawRgba(const QImage &image, Error &error);
/// Fails for a size that no raster can have and for bytes that are more or less than its pixels.
bool checkRawRgba(QByteArrayView bytes, const QSize &size, Error &error);
std::optional<QImage> decodeRawRgba(QByteArrayView bytes, const QSize &size, Error &error);

} // namespace zm
