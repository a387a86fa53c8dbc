#pragma once

#include "document/picture_encodings.h"

#include <QByteArray>
#include <QImage>
#include <QSizeF>

#include <memory>
#include <optional>
#include <variant>

namespace zm {

/// Decoded pixels, in a layer always QImage::Format_RGBA8888 (straight alpha).
struct RasterImageSource
{
    QImage image;
    /// What document files hold for these pixels; of no account when sources are compared.
    std::shared_ptr<PictureEncodings> encodings = std::make_shared<PictureEncodings>();
};

/// The whole text of an SVG file and the logical size it is drawn at, each side at least 1.
struct SvgImageSource
{
    QByteArray data;
    QSizeF size;
};

/// What an image layer shows. Copying is cheap: pixels and bytes are implicitly shared.
using ImageLayerSource = std::variant<RasterImageSource, SvgImageSource>;

/// The source as a layer keeps it: pixels converted to RGBA8888, each side of an SVG raised to at least 1.
ImageLayerSource normalizedSource(ImageLayerSource source);

/// True for equal pixels, or for equal SVG text at a fuzzily equal size.
bool sameSource(const ImageLayerSource &a, const ImageLayerSource &b);

/// Layer units: the picture's size, or the logical size of an SVG.
QSizeF logicalSize(const ImageLayerSource &source);

/// Whole pixels that the source renders to; an SVG's fractional size is rounded up.
QSize pixelSize(const ImageLayerSource &source);

/// The bytes that an undo step holding the source answers for.
qint64 memoryBytes(const ImageLayerSource &source);

/// The size that an SVG text asks for: its width and height, else its view box, else the bounds of what it draws.
/// Nothing for a text that gives none of them or cannot be read.
std::optional<QSizeF> svgDefaultSize(const QByteArray &data);

/// A source of SVG text, at its default size when size is empty. Nothing for text without a default size.
std::optional<SvgImageSource> svgSourceFromData(const QByteArray &data, const QSizeF &size = {});

} // namespace zm
