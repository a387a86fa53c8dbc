#include "io/document/file_message.h"
#include "io/document/fill_records.h"
#include "io/document/geometry_records.h"
#include "io/document/layer_content.h"
#include "io/document/layer_size.h"

#include <cmath>

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 64;

bool isStrokeWidth(double width)
{
    return std::isfinite(width) && width >= 0.0;
}

} // namespace

std::optional<QByteArray> encodeShapeContent(const ShapeLayer &layer, Error &error)
{
    if (!isStorableSize(layer.layerSize()) || !isStrokeWidth(layer.stroke().width))
        return error.fail(FileMessage::tr("A shape layer has invalid dimensions or stroke."));
    const std::optional<QByteArray> geometry = encodeGeometry(layer.geometry(), error);
    if (!geometry)
        return Failure();
    const std::optional<QByteArray> fill = encodeFill(layer.fill(), error);
    if (!fill)
        return Failure();
    QByteArray record(kHeaderSize, '\0');
    setU32(record, 0, 1);
    setU32(record, 4, quint32(geometryType(layer.geometry())));
    setLayerSize(record, 8, layer.layerSize());
    if (!setSize(record, 24, geometry->size(), error) || !setSize(record, 28, fill->size(), error))
        return Failure();
    setColor(record, 32, layer.stroke().color);
    setF64(record, 48, layer.stroke().width);
    return record + *geometry + *fill;
}

std::optional<ShapeContent> decodeShapeContent(QByteArrayView record, Error &error)
{
    ByteReader reader(record);
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    if (!header || u32At(*header, 0) != 1 || !isStorableSize(sizeAt(*header, 8)) || !isStrokeWidth(f64At(*header, 48)))
        return error.fail(FileMessage::tr("A shape layer payload is invalid."));
    const std::optional<QByteArrayView> geometryRecord = reader.take(u32At(*header, 24));
    const std::optional<QByteArrayView> fillRecord = reader.take(u32At(*header, 28));
    if (!geometryRecord || !fillRecord || !reader.atEnd())
        return error.fail(FileMessage::tr("A shape layer payload is truncated."));
    std::optional<ShapeGeometry> geometry = decodeGeometry(u32At(*header, 4), *geometryRecord, error);
    if (!geometry)
        return Failure();
    std::optional<Fill> fill = decodeFill(*fillRecord, error);
    if (!fill)
        return Failure();
    const std::optional<QColor> strokeColor = colorAt(*header, 32, error);
    if (!strokeColor)
        return Failure();
    return ShapeContent{
        {std::move(*geometry), sizeAt(*header, 8)}, {*strokeColor, f64At(*header, 48)}, std::move(*fill)};
}

} // namespace zm
