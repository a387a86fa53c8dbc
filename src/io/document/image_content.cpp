#include "io/document/file_message.h"
#include "io/document/geometry_records.h"
#include "io/document/layer_content.h"
#include "io/document/layer_size.h"
#include "io/document/path_records.h"

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 64;
constexpr quint32 kPolicyFixed = 1;
constexpr quint32 kPolicyExpanding = 2;

enum class SourceEncoding : quint32 { Webp = 1, Svg = 2, RawRgba = 3 };

struct EncodedSource
{
    SourceEncoding encoding;
    /// Zero for an SVG.
    QSize pixelSize;
    QByteArray bytes;
};

std::optional<EncodedSource> encodeSource(const ImageLayer &layer, EmbeddedImageMode mode, Error &error)
{
    if (const SvgImageSource *svg = layer.svgSource()) {
        if (svg->data.isEmpty())
            return error.fail(FileMessage::tr("An SVG layer has no source data."));
        return EncodedSource{SourceEncoding::Svg, {0, 0}, svg->data};
    }
    const RasterImageSource &raster = *layer.rasterSource();
    if (raster.image.isNull())
        return error.fail(FileMessage::tr("An image layer has no supported source."));
    // What no WebP can hold is saved nevertheless.
    const bool raw = mode == EmbeddedImageMode::Raw || !fitsWebp(raster.image.size());
    std::optional<QByteArray> bytes = raw ? encodeRawRgba(raster.image, error) : webpFile(raster, mode, error);
    if (!bytes)
        return Failure();
    return EncodedSource{raw ? SourceEncoding::RawRgba : SourceEncoding::Webp, raster.image.size(), std::move(*bytes)};
}

std::optional<EditablePath> decodeSelection(quint32 geometryType, QByteArrayView record, Error &error)
{
    std::optional<ShapeGeometry> geometry = decodeGeometry(geometryType, record, error);
    if (!geometry)
        return Failure();
    auto *path = std::get_if<EditablePath>(&*geometry);
    if (!path)
        return error.fail(FileMessage::tr("A raster selection must be an editable path."));
    return std::move(*path);
}

bool isWebpSide(quint32 side)
{
    return side >= 1 && side <= quint32(kMaximumWebpSide);
}

/// The pixels of a raster, or a source without an image where they are only checked.
std::optional<ImageLayerSource> decodeRaster(SourceEncoding encoding, QByteArrayView bytes, const QSize &size,
                                             PixelReading pixels, Error &error)
{
    if (pixels == PixelReading::Skip) {
        const bool right =
            encoding == SourceEncoding::Webp ? checkWebpSize(bytes, size, error) : checkRawRgba(bytes, size, error);
        if (!right)
            return Failure();
        return RasterImageSource();
    }
    if (encoding == SourceEncoding::Webp) {
        std::optional<RasterImageSource> source = sourceFromWebp(bytes, size, error);
        if (!source)
            return Failure();
        return std::move(*source);
    }
    std::optional<QImage> image = decodeRawRgba(bytes, size, error);
    if (!image)
        return Failure();
    return RasterImageSource{std::move(*image)};
}

std::optional<ImageLayerSource> decodeSource(QByteArrayView header, QByteArrayView bytes, PixelReading pixels,
                                             Error &error)
{
    const quint32 width = u32At(header, 8);
    const quint32 height = u32At(header, 12);
    const QSizeF size = sizeAt(header, 16);
    const auto encoding = SourceEncoding(u32At(header, 4));
    switch (encoding) {
    case SourceEncoding::Webp:
    case SourceEncoding::RawRgba:
        // The layer's size is within the limits of a raster.
        if (size != QSizeF(width, height)
            || (encoding == SourceEncoding::Webp && (!isWebpSide(width) || !isWebpSide(height))))
            return error.fail(FileMessage::tr("A raster layer has invalid pixel dimensions."));
        return decodeRaster(encoding, bytes, QSize(int(width), int(height)), pixels, error);
    case SourceEncoding::Svg:
        if (width != 0 || height != 0)
            return error.fail(FileMessage::tr("An SVG layer contains raster dimensions."));
        if (std::optional<SvgImageSource> svg = svgSourceFromData(bytes.toByteArray(), size))
            return std::move(*svg);
        return error.fail(FileMessage::tr("An SVG layer contains invalid SVG data."));
    }
    return error.fail(FileMessage::tr("An image layer uses an unknown source encoding."));
}

} // namespace

std::optional<QByteArray> encodeImageContent(const ImageLayer &layer, EmbeddedImageMode mode, Error &error)
{
    const std::optional<EncodedSource> source = encodeSource(layer, mode, error);
    if (!source)
        return Failure();
    if (!isStorableSize(layer.layerSize()))
        return error.fail(FileMessage::tr("An image layer has invalid dimensions or data."));
    QByteArray selection;
    if (layer.hasRasterSelection()) {
        const std::optional<QByteArray> path = encodePath(*layer.rasterSelection(), error);
        if (!path)
            return Failure();
        selection = *path;
    }
    QByteArray record(kHeaderSize, '\0');
    setU32(record, 0, 1);
    setU32(record, 4, quint32(source->encoding));
    setU32(record, 8, quint32(source->pixelSize.width()));
    setU32(record, 12, quint32(source->pixelSize.height()));
    setLayerSize(record, 16, layer.layerSize());
    const bool expanding = layer.rasterSurfacePolicy() == RasterSurfacePolicy::Expanding;
    setU32(record, 36, expanding ? kPolicyExpanding : kPolicyFixed);
    setU32(record, 40, layer.hasRasterSelection() ? quint32(GeometryType::Path) : 0);
    if (!setSize(record, 32, source->bytes.size(), error) || !setSize(record, 44, selection.size(), error))
        return Failure();
    record.reserve(record.size() + source->bytes.size() + selection.size());
    return record.append(source->bytes).append(selection);
}

std::optional<ImageContent> decodeImageContent(QByteArrayView record, PixelReading pixels, Error &error)
{
    ByteReader reader(record);
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    if (!header || u32At(*header, 0) != 1 || !isStorableSize(sizeAt(*header, 16))
        || quint64(u32At(*header, 32)) + u32At(*header, 44) != quint64(reader.remaining()))
        return error.fail(FileMessage::tr("An image layer payload is invalid."));
    const QByteArrayView bytes = record.sliced(kHeaderSize, u32At(*header, 32));
    const QByteArrayView selectionRecord = record.last(u32At(*header, 44));
    std::optional<EditablePath> selection;
    if (!selectionRecord.isEmpty()) {
        selection = decodeSelection(u32At(*header, 40), selectionRecord, error);
        if (!selection)
            return Failure();
    }
    std::optional<ImageLayerSource> source = decodeSource(*header, bytes, pixels, error);
    if (!source)
        return Failure();
    const quint32 policy = u32At(*header, 36);
    if (policy > kPolicyExpanding)
        return error.fail(FileMessage::tr("An image layer has an unknown raster surface policy."));
    const QSizeF size = std::holds_alternative<SvgImageSource>(*source) ? logicalSize(*source) : sizeAt(*header, 16);
    return ImageContent{std::move(*source), QSize(int(u32At(*header, 8)), int(u32At(*header, 12))), size,
                        policy == kPolicyExpanding ? RasterSurfacePolicy::Expanding : RasterSurfacePolicy::Fixed,
                        normalizedRasterSelection(selection, size)};
}

} // namespace zm
