#include "io/document/layer_section.h"

#include "io/document/file_message.h"
#include "io/document/filter_records.h"

#include <cmath>

namespace zm {

namespace {

constexpr qsizetype kHeaderSize = 128;
constexpr quint32 kPayloadVersion = 1;
constexpr quint32 kVisibleFlag = 1;

/// The numbers of a layer as a file tells them, before any setter limits them.
struct Placement
{
    double opacity;
    QPointF position;
    QPointF scale;
    double rotation;
    QPointF shear;
    QPointF anchor;
};

Placement placementOf(const Layer &layer)
{
    const ObjectTransform &transform = layer.transform();
    return {layer.opacity(),      transform.position(), transform.scale(),
            transform.rotation(), transform.shear(),    transform.anchor()};
}

Placement placementAt(QByteArrayView header)
{
    return {f64At(header, 40), pointAt(header, 48), pointAt(header, 64),
            f64At(header, 80), pointAt(header, 88), pointAt(header, 104)};
}

void setPlacement(QByteArray &header, const Placement &placement)
{
    setF64(header, 40, placement.opacity);
    setPoint(header, 48, placement.position);
    setPoint(header, 64, placement.scale);
    setF64(header, 80, placement.rotation);
    setPoint(header, 88, placement.shear);
    setPoint(header, 104, placement.anchor);
}

// False for NaN, as are the checks below.
bool isWithin(double value, double low, double high)
{
    return value >= low && value <= high;
}

template<typename Check>
bool both(const QPointF &point, Check check)
{
    return check(point.x()) && check(point.y());
}

bool isFraction(double value)
{
    return isWithin(value, 0.0, 1.0);
}

bool isValid(const Placement &placement)
{
    const auto isFinite = [](double value) { return std::isfinite(value); };
    const auto isScale = [](double value) {
        return std::isfinite(value) && std::abs(value) >= ObjectTransform::kMinimumScale;
    };
    const auto isShear = [](double value) {
        return isWithin(value, -ObjectTransform::kMaximumShear, ObjectTransform::kMaximumShear);
    };
    return isFraction(placement.opacity) && both(placement.position, isFinite) && both(placement.scale, isScale)
        && isFinite(placement.rotation) && both(placement.shear, isShear) && both(placement.anchor, isFraction);
}

ObjectTransform transformFrom(const Placement &placement)
{
    ObjectTransform transform;
    transform.setPosition(placement.position);
    transform.setScale(placement.scale);
    transform.setRotation(placement.rotation);
    transform.setShear(placement.shear);
    transform.setAnchor(placement.anchor);
    return transform;
}

std::optional<QByteArray> encodeContent(const Layer &layer, EmbeddedImageMode mode, Error &error)
{
    switch (layer.layerType()) {
    case LayerType::Image:
        if (const auto *image = dynamic_cast<const ImageLayer *>(&layer))
            return encodeImageContent(*image, mode, error);
        break;
    case LayerType::Text:
        if (const auto *text = dynamic_cast<const TextLayer *>(&layer))
            return encodeTextContent(*text, error);
        break;
    case LayerType::Shape:
        if (const auto *shape = dynamic_cast<const ShapeLayer *>(&layer))
            return encodeShapeContent(*shape, error);
        break;
    default:
        return error.fail(FileMessage::tr("The document contains an unsupported layer type."));
    }
    return std::nullopt;
}

std::optional<LayerContent> decodeContent(quint32 type, QByteArrayView record, PixelReading pixels, Error &error)
{
    switch (SectionType(type)) {
    case SectionType::ImageLayer:
        return decodeImageContent(record, pixels, error);
    case SectionType::TextLayer:
        return decodeTextContent(record, error);
    case SectionType::ShapeLayer:
        return decodeShapeContent(record, error);
    default:
        return error.fail(FileMessage::tr("A section is not a supported layer type."));
    }
}

/// The effects' records one after the other.
std::optional<QByteArray> encodeFilters(const QList<FilterInstance> &filters, Error &error)
{
    if (filters.size() > kMaximumFileCount)
        return error.fail(FileMessage::tr("A layer has too many filters."));
    QByteArray records;
    QSet<QUuid> seen;
    for (const FilterInstance &filter : filters) {
        if (seen.contains(filter.instanceId))
            return error.fail(FileMessage::tr("A layer contains a duplicated filter instance ID."));
        seen.insert(filter.instanceId);
        const std::optional<QByteArray> record = encodeFilter(filter, error);
        if (!record)
            return std::nullopt;
        records += *record;
    }
    return records;
}

std::optional<QList<FilterInstance>> decodeFilters(ByteReader &reader, quint32 count, bool honourSelectionFlag,
                                                   Error &error)
{
    QList<FilterInstance> filters;
    QSet<QUuid> seen;
    for (quint32 i = 0; i < count; ++i) {
        const std::optional<FilterInstance> filter = decodeFilter(reader, honourSelectionFlag, error);
        if (!filter)
            return std::nullopt;
        if (seen.contains(filter->instanceId))
            return error.fail(FileMessage::tr("A layer contains a duplicated filter instance ID."));
        seen.insert(filter->instanceId);
        filters.append(*filter);
    }
    return filters;
}

} // namespace

SectionType sectionType(const Layer &layer)
{
    switch (layer.layerType()) {
    case LayerType::Text:
        return SectionType::TextLayer;
    case LayerType::Shape:
        return SectionType::ShapeLayer;
    case LayerType::Image:
        break;
    }
    return SectionType::ImageLayer;
}

std::optional<QByteArray> encodeLayerSection(const Layer &layer, EmbeddedImageMode mode, Error &error)
{
    const Placement placement = placementOf(layer);
    if (layer.id().isNull() || !isValid(placement))
        return error.fail(FileMessage::tr("A layer has invalid identity or transform properties."));
    const QByteArray name = layer.name().toUtf8();
    const QByteArray blendMode = layer.blendMode().toUtf8();
    if (name.size() > kMaximumFileTextSize || blendMode.size() > kMaximumFileTextSize)
        return error.fail(FileMessage::tr("A layer name or blend-mode ID is too large."));
    const std::optional<QByteArray> content = encodeContent(layer, mode, error);
    if (!content)
        return error.fail(FileMessage::tr("A layer type does not match its content."));
    const std::optional<QByteArray> filters = encodeFilters(layer.filters(), error);
    if (!filters)
        return std::nullopt;

    const qsizetype size = kHeaderSize + name.size() + blendMode.size() + content->size() + filters->size();
    if (size > kMaximumSectionSize)
        return error.fail(FileMessage::tr("A layer section is too large."));
    QByteArray section;
    section.reserve(size);
    section.resize(kHeaderSize, '\0');
    setU32(section, 0, kPayloadVersion);
    setUuid(section, 4, layer.id());
    setU32(section, 20, layer.isVisible() ? kVisibleFlag : 0);
    setU32(section, 24, quint32(name.size()));
    setU32(section, 28, quint32(blendMode.size()));
    setU32(section, 32, quint32(layer.filters().size()));
    setU32(section, 36, quint32(content->size()));
    setPlacement(section, placement);
    return section.append(name).append(blendMode).append(*content).append(*filters);
}

std::optional<LayerRecord> decodeLayerRecord(quint32 type, QByteArrayView payload, bool honourFilterSelectionFlag,
                                             PixelReading pixels, Error &error)
{
    const QString invalidHeader = FileMessage::tr("A layer payload header is invalid.");
    ByteReader reader(payload);
    const std::optional<QByteArrayView> header = reader.take(kHeaderSize);
    if (!header || u32At(*header, 0) != kPayloadVersion)
        return error.fail(invalidHeader);
    const quint32 nameSize = u32At(*header, 24);
    const quint32 blendModeSize = u32At(*header, 28);
    const quint32 filterCount = u32At(*header, 32);
    const Placement placement = placementAt(*header);
    if (nameSize > kMaximumFileTextSize || blendModeSize > kMaximumFileTextSize || filterCount > kMaximumFileCount
        || !isValid(placement))
        return error.fail(invalidHeader);
    const std::optional<QByteArrayView> name = reader.take(nameSize);
    const std::optional<QByteArrayView> blendMode = reader.take(blendModeSize);
    const std::optional<QByteArrayView> contentBytes = reader.take(u32At(*header, 36));
    if (!name || !blendMode || !contentBytes)
        return error.fail(invalidHeader);

    const std::optional<QUuid> id = uuidAt(*header, 4, error);
    if (!id)
        return std::nullopt;
    LayerRecord record{.id = *id,
                       .name = QString::fromUtf8(*name),
                       .visible = (u32At(*header, 20) & kVisibleFlag) != 0,
                       .opacity = placement.opacity,
                       .blendMode = QString::fromUtf8(*blendMode),
                       .transform = transformFrom(placement),
                       .content = {},
                       .filters = {}};
    if (record.blendMode.isEmpty())
        return error.fail(FileMessage::tr("A layer has an empty blend-mode ID."));
    std::optional<LayerContent> content = decodeContent(type, *contentBytes, pixels, error);
    if (!content)
        return std::nullopt;
    std::optional<QList<FilterInstance>> filters = decodeFilters(reader, filterCount, honourFilterSelectionFlag, error);
    if (!filters)
        return std::nullopt;
    if (!reader.atEnd())
        return error.fail(FileMessage::tr("A layer section has trailing data."));
    record.content = std::move(*content);
    record.filters = std::move(*filters);
    return record;
}

std::unique_ptr<Layer> layerFrom(LayerRecord record, Error &error)
{
    std::unique_ptr<Layer> layer = layerFrom(std::move(record.content), record.name, record.id);
    if (!layer)
        return nullptr;
    layer->setTransform(record.transform);
    layer->setVisible(record.visible);
    layer->setOpacity(record.opacity);
    layer->setBlendMode(record.blendMode);
    if (!layer->setFilters(record.filters) && !record.filters.isEmpty())
        return error.fail(FileMessage::tr("Could not restore a layer filter stack."));
    return layer;
}

std::unique_ptr<Layer> decodeLayerSection(quint32 type, QByteArrayView payload, bool honourFilterSelectionFlag,
                                          Error &error)
{
    std::optional<LayerRecord> record =
        decodeLayerRecord(type, payload, honourFilterSelectionFlag, PixelReading::Decode, error);
    return record ? layerFrom(std::move(*record), error) : nullptr;
}

} // namespace zm
