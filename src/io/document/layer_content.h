#pragma once

#include "document/image_layer.h"
#include "document/shape_layer.h"
#include "document/text_layer.h"
#include "io/document/embedded_image.h"
#include "io/document/record_fields.h"

#include <variant>

namespace zm {

// What the kinds of layers hold, as it stands in a document file.

/// What an image layer holds. The image of a raster is null when its pixels were not asked for.
struct ImageContent
{
    ImageLayerSource source;
    /// Zero for an SVG.
    QSize pixelSize;
    /// Layer units.
    QSizeF size;
    RasterSurfacePolicy policy = RasterSurfacePolicy::Fixed;
    /// As the layer keeps it.
    std::optional<EditablePath> selection;
};

struct ShapeContent
{
    SizedShapeGeometry shape;
    Stroke stroke;
    Fill fill;
};

using LayerContent = std::variant<ImageContent, ShapeContent, TextLayerState>;

/// Whether the embedded pixels of rasters are decoded, or only checked by their headers.
enum class PixelReading { Decode, Skip };

/// A layer with that name and id. The content's pixels have to be decoded.
std::unique_ptr<Layer> layerFrom(LayerContent content, const QString &name, const QUuid &id);

std::optional<QByteArray> encodeImageContent(const ImageLayer &layer, EmbeddedImageMode mode, Error &error);
std::optional<QByteArray> encodeShapeContent(const ShapeLayer &layer, Error &error);
std::optional<QByteArray> encodeTextContent(const TextLayer &layer, Error &error);

// All of the bytes have to be the content.
std::optional<ImageContent> decodeImageContent(QByteArrayView record, PixelReading pixels, Error &error);
std::optional<ShapeContent> decodeShapeContent(QByteArrayView record, Error &error);
std::optional<TextLayerState> decodeTextContent(QByteArrayView record, Error &error);

} // namespace zm
