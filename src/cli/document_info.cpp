#include "cli/document_info.h"

#include "base/pixel_limits.h"
#include "cli/content_info.h"
#include "cli/info_values.h"
#include "cli/quiet_libraries.h"
#include "cli/text_info.h"
#include "io/document_opening.h"
#include "io/pictures/image_import.h"

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

/// The layer that a picture is imported as.
LayerRecord importedLayer(const QString &name, const ImageLayerSource &source, const QSizeF &size)
{
    LayerRecord layer;
    layer.id = QUuid::createUuid();
    layer.name = name;
    layer.blendMode = defaultBlendMode();
    layer.transform = framedTransform({}, size);
    layer.content = ImageContent{source, size.toSize(), size, RasterSurfacePolicy::Fixed, std::nullopt};
    return layer;
}

std::optional<LayerRecord> readPicture(const QString &path, PixelReading pixels, ImageImportError *error)
{
    if (pixels == PixelReading::Decode) {
        const ImageImportResult imported = importImageLayer(path);
        *error = imported.error;
        return imported.layer ? std::optional(importedLayer(imported.layer->name(), imported.layer->source(),
                                                            imported.layer->layerSize()))
                              : std::nullopt;
    }
    const std::optional<ImageFileHeader> header = readImageFileHeader(path, error);
    if (!header)
        return std::nullopt;
    const ImageLayerSource source =
        header->svg ? ImageLayerSource(SvgImageSource{{}, header->size}) : RasterImageSource{};
    return importedLayer(header->name, source, header->size);
}

QJsonObject transformInfo(const ObjectTransform &transform)
{
    return {{u"position"_s, pointInfo(transform.position())},
            {u"scale"_s, pointInfo(transform.scale())},
            {u"shear"_s, pointInfo(transform.shear())},
            {u"anchor"_s, pointInfo(transform.anchor())},
            {u"rotation"_s, transform.rotation()}};
}

QJsonArray filtersInfo(const QList<FilterInstance> &filters)
{
    QJsonArray info;
    for (const FilterInstance &filter : filters) {
        info.append(QJsonObject{{u"instance"_s, idText(filter.instanceId)},
                                {u"filter"_s, filter.filterId},
                                {u"enabled"_s, filter.enabled},
                                {u"selectionScoped"_s, filter.rasterSelectionScoped},
                                {u"parameters"_s, parametersInfo(filter.parameters)}});
    }
    return info;
}

/// The layer's type, under which its content stands.
struct ContentWriter
{
    QJsonObject &layer;
    bool withDigest;

    void operator()(const ImageContent &image) const { write(u"image"_s, imageInfo(image, withDigest)); }
    void operator()(const ShapeContent &shape) const { write(u"shape"_s, shapeInfo(shape)); }
    void operator()(const TextLayerState &text) const { write(u"text"_s, textInfo(text)); }

private:
    void write(const QString &type, const QJsonObject &content) const
    {
        layer.insert(u"type"_s, type);
        layer.insert(type, content);
    }
};

QJsonObject layerInfo(const LayerRecord &layer, bool withDigest)
{
    QJsonObject info{{u"id"_s, idText(layer.id)},
                     {u"name"_s, layer.name},
                     {u"visible"_s, layer.visible},
                     {u"opacity"_s, layer.opacity},
                     {u"blendMode"_s, layer.blendMode},
                     {u"transform"_s, transformInfo(layer.transform)},
                     {u"filters"_s, filtersInfo(layer.filters)}};
    std::visit(ContentWriter{info, withDigest}, layer.content);
    return info;
}

} // namespace

std::optional<DocumentRecords> readFileRecords(const QString &path, PixelReading pixels, Error &error)
{
    const QuietLibraries quiet;
    if (hasDocumentSuffix(path))
        return ZelmoraDocumentIO::readRecordsFile(path, pixels, error);
    ImageImportError failure = ImageImportError::None;
    std::optional<LayerRecord> layer = readPicture(path, pixels, &failure);
    if (!layer)
        return error.fail(importErrorText(failure));
    // A document has whole units.
    DocumentRecords records{0, coveringPixels(std::get<ImageContent>(layer->content).size), Qt::white, {}};
    records.layers.push_back(*std::move(layer));
    return records;
}

QJsonObject documentInfo(const QString &path, const DocumentRecords &records, bool withDigest)
{
    QJsonArray layers;
    for (const LayerRecord &layer : records.layers)
        layers.append(layerInfo(layer, withDigest));
    return {{u"file"_s, path},
            {u"formatVersion"_s, qint64(records.formatVersion)},
            {u"size"_s, sizeInfo(records.documentSize)},
            {u"background"_s, colorInfo(records.backgroundColor)},
            {u"layers"_s, layers}};
}

} // namespace zm::cli
