#include "cli/document_info.h"

#include "cli/quiet_libraries.h"
#include "io/image_import.h"

#include <QCryptographicHash>

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

QJsonArray pair(double x, double y)
{
    return {x, y};
}

QJsonArray pair(const QPointF &point)
{
    return pair(point.x(), point.y());
}

QJsonArray pair(const QSizeF &size)
{
    return pair(size.width(), size.height());
}

QJsonObject transformInfo(const ObjectTransform &transform)
{
    return {{u"position"_s, pair(transform.position())},
            {u"scale"_s, pair(transform.scale())},
            {u"shear"_s, pair(transform.shear())},
            {u"anchor"_s, pair(transform.anchor())},
            {u"rotation"_s, transform.rotation()}};
}

/// Of the RGBA8888 rows without padding, or of the SVG text.
QString contentDigest(const ImageLayer &layer)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (const SvgImageSource *svg = layer.svgSource()) {
        hash.addData(svg->data);
    } else {
        const QImage image = layer.rasterImage();
        for (int y = 0; y < image.height(); ++y)
            hash.addData(QByteArrayView(image.constScanLine(y), qsizetype(image.width()) * 4));
    }
    return QString::fromLatin1(hash.result().toHex());
}

} // namespace

std::optional<QJsonObject> documentInfo(const QString &path, bool withDigest, QString *error)
{
    const QuietLibraries quiet;
    ImageImportError failure = ImageImportError::None;
    std::optional<ImageFileHeader> header;
    QString digest;
    if (withDigest) {
        const ImageImportResult imported = importImageLayer(path);
        failure = imported.error;
        if (imported.layer) {
            header = {imported.layer->name(), !imported.layer->isRaster(), imported.layer->layerSize()};
            digest = contentDigest(*imported.layer);
        }
    } else {
        header = readImageFileHeader(path, &failure);
    }
    if (!header) {
        *error = importErrorText(failure);
        return std::nullopt;
    }

    const QSizeF size = header->size;
    QJsonObject image{{u"encoding"_s, header->svg ? u"svg"_s : u"raster"_s},
                      {u"pixelSize"_s, pair(std::ceil(size.width()), std::ceil(size.height()))},
                      {u"size"_s, pair(size)},
                      {u"policy"_s, u"fixed"_s},
                      {u"selection"_s, QJsonValue::Null}};
    if (!digest.isEmpty())
        image.insert(u"sha256"_s, digest);
    const QJsonObject layer{{u"id"_s, QUuid::createUuid().toString(QUuid::WithoutBraces)},
                            {u"type"_s, u"image"_s},
                            {u"name"_s, header->name},
                            {u"visible"_s, true},
                            {u"opacity"_s, 1.0},
                            {u"blendMode"_s, defaultBlendMode()},
                            {u"transform"_s, transformInfo(framedTransform({}, size))},
                            {u"filters"_s, QJsonArray()},
                            {u"image"_s, image}};
    return QJsonObject{{u"file"_s, path},
                       {u"formatVersion"_s, 0},
                       {u"size"_s, pair(size)},
                       {u"background"_s, QJsonArray{1.0, 1.0, 1.0, 1.0}},
                       {u"layers"_s, QJsonArray{layer}}};
}

} // namespace zm::cli
