#include "io/pictures/image_import.h"

#include "base/pixel_limits.h"
#include "document/document.h"
#include "io/pictures/picture_completeness.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

bool hasSvgSuffix(const QFileInfo &file)
{
    return file.suffix().compare("svg"_L1, Qt::CaseInsensitive) == 0;
}

ImageImportError readSvg(const QFileInfo &info, SvgImageSource *source)
{
    QFile file(info.absoluteFilePath());
    if (!file.open(QIODevice::ReadOnly))
        return ImageImportError::CannotOpen;
    std::optional<SvgImageSource> svg = svgSourceFromData(file.readAll());
    if (!svg || !isAllocatableRasterSize(pixelSize(*svg)))
        return ImageImportError::InvalidSvg;
    *source = std::move(*svg);
    return ImageImportError::None;
}

bool fileEndsBeforePicture(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const uchar *bytes = file.map(0, file.size());
    return bytes && endsBeforePicture({bytes, qsizetype(file.size())});
}

/// One raster file on its way to pixels: every check that needs no decoding, then the decoding.
class RasterFile
{
public:
    RasterFile(const QFileInfo &info, bool noHevcCodec)
        : m_reader(info.absoluteFilePath())
        , m_noHevcCodec(noHevcCodec)
    {
        m_reader.setAutoTransform(true);
        m_format = m_reader.format();
    }

    ImageImportError check()
    {
        if (m_noHevcCodec && isHeifFormat(m_format))
            return ImageImportError::HeifCodecMissing;
        const QSize size = m_reader.size();
        if (size.isValid() && !isAllocatableRasterSize(size))
            return ImageImportError::CannotDecode;
        if (fileEndsBeforePicture(m_reader.fileName()))
            return ImageImportError::CannotDecode;
        return m_reader.canRead() ? ImageImportError::None : failure();
    }

    /// Invalid when the format does not tell.
    QSize orientedSize() const
    {
        const QSize size = m_reader.size();
        return m_reader.transformation() & QImageIOHandler::TransformationRotate90 ? size.transposed() : size;
    }

    ImageImportError decode(QImage *image)
    {
        QImage decoded = m_reader.read();
        if (decoded.isNull())
            return failure();
        if (!isAllocatableRasterSize(decoded.size()))
            return ImageImportError::CannotDecode;
        // The reader takes a name such as "photo@2x.png" for a density; a layer's pixels are document units.
        decoded.setDevicePixelRatio(1.0);
        *image = std::move(decoded);
        return ImageImportError::None;
    }

private:
    ImageImportError failure() const
    {
        return isHeifDecoderFailure(m_reader, m_format) ? ImageImportError::HeifCodecMissing
                                                        : ImageImportError::CannotDecode;
    }

    QImageReader m_reader;
    QByteArray m_format;
    bool m_noHevcCodec;
};

/// The way of every picture file as far as both kinds share it: what is then wanted of an SVG or of a raster that
/// passed its checks is the caller's.
template<typename TakeSvg, typename TakeRaster>
ImageImportError readPictureFile(const QString &path, bool noHevcCodec, TakeSvg takeSvg, TakeRaster takeRaster)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return ImageImportError::NotAFile;
    if (hasSvgSuffix(info)) {
        SvgImageSource svg;
        const ImageImportError error = readSvg(info, &svg);
        if (error == ImageImportError::None)
            takeSvg(std::move(svg));
        return error;
    }
    RasterFile file(info, noHevcCodec);
    const ImageImportError error = file.check();
    return error == ImageImportError::None ? takeRaster(file) : error;
}

} // namespace

QString importErrorText(ImageImportError error)
{
    const auto text = [](const char *source) {
        return QCoreApplication::translate("zm::DocumentFileController", source);
    };
    switch (error) {
    case ImageImportError::None:
        return {};
    case ImageImportError::NotAFile:
        return text(QT_TRANSLATE_NOOP("zm::DocumentFileController", "Choose an existing file."));
    case ImageImportError::CannotOpen:
        return text(QT_TRANSLATE_NOOP("zm::DocumentFileController", "Could not open the selected image file."));
    case ImageImportError::InvalidSvg:
        return text(QT_TRANSLATE_NOOP("zm::DocumentFileController", "Could not load the selected SVG image."));
    case ImageImportError::HeifCodecMissing:
        return text(
            QT_TRANSLATE_NOOP("zm::DocumentFileController", "Windows could not decode the selected HEIC/HEIF image."));
    case ImageImportError::CannotDecode:
        return text(QT_TRANSLATE_NOOP("zm::DocumentFileController", "Could not load the selected image file."));
    case ImageImportError::EmptySize:
        return text(QT_TRANSLATE_NOOP("zm::DocumentFileController", "The selected image does not have a usable size."));
    case ImageImportError::DocumentRefused:
        return text(
            QT_TRANSLATE_NOOP("zm::DocumentFileController", "Could not create a document from the selected image."));
    }
    return {};
}

DecodedPicture decodePicture(const QString &path, bool noHevcCodec)
{
    DecodedPicture picture;
    picture.error = readPictureFile(
        path, noHevcCodec, [&picture](SvgImageSource svg) { picture.source = std::move(svg); },
        [&picture](RasterFile &file) { return file.decode(&picture.source.emplace<RasterImageSource>().image); });
    if (picture.error == ImageImportError::None && logicalSize(picture.source).isEmpty())
        picture.error = ImageImportError::EmptySize;
    return picture;
}

ImageImportResult imageLayerFrom(DecodedPicture picture, const QString &name)
{
    if (picture.error != ImageImportError::None)
        return {nullptr, picture.error};
    if (auto *raster = std::get_if<RasterImageSource>(&picture.source)) {
        // Converted while nobody else holds the pixels, which 32-bit formats allow without a second buffer.
        raster->image = std::move(raster->image).convertToFormat(QImage::Format_RGBA8888);
        if (raster->image.isNull())
            return {nullptr, ImageImportError::CannotDecode};
    }
    return {std::make_unique<ImageLayer>(picture.source, name), ImageImportError::None};
}

ImageImportResult importImageLayer(const QString &path, bool noHevcCodec)
{
    return imageLayerFrom(decodePicture(path, noHevcCodec), imageLayerName(path));
}

std::optional<ImageFileHeader> readImageFileHeader(const QString &path, ImageImportError *error)
{
    ImageFileHeader header{imageLayerName(path), false, {}};
    const auto takeSvg = [&header](const SvgImageSource &svg) {
        header.svg = true;
        header.size = svg.size;
    };
    const auto takeRaster = [&header](RasterFile &file) {
        QImage image;
        const QSize size = file.orientedSize();
        const ImageImportError failure = size.isValid() ? ImageImportError::None : file.decode(&image);
        header.size = size.isValid() ? size : image.size();
        return failure;
    };
    *error = readPictureFile(path, false, takeSvg, takeRaster);
    if (*error != ImageImportError::None)
        return std::nullopt;
    return header;
}

ImageImportError replaceWithImage(Document &document, std::unique_ptr<ImageLayer> layer)
{
    const QSizeF size = layer->layerSize();
    if (size.isEmpty())
        return ImageImportError::EmptySize;
    layer->setTransform(framedTransform(layer->transform(), size));
    const QUuid id = layer->id();
    std::vector<std::unique_ptr<SceneObject>> objects;
    objects.push_back(std::move(layer));
    // A flat SVG is of the fractional size of its view box, which a document's file cannot hold: the document is
    // rounded up to whole units, and the layer keeps its size in the middle of it.
    if (!document.replaceContents(coveringPixels(size), Qt::white, std::move(objects)))
        return ImageImportError::DocumentRefused;
    document.selectObject(id);
    return ImageImportError::None;
}

ObjectTransform framedTransform(ObjectTransform transform, const QSizeF &layerSize)
{
    const QRectF local(QPointF(), layerSize);
    const QRectF mapped = transform.matrix(local).mapRect(local);
    if (!mapped.isEmpty())
        transform.setPosition(transform.position() - mapped.center());
    return transform;
}

QString imageLayerName(const QString &path)
{
    const QString name = QFileInfo(path).completeBaseName().trimmed();
    return name.isEmpty() ? QCoreApplication::translate("zm::DocumentFileController", "Image") : name;
}

QStringList supportedImageFilePatterns()
{
    QStringList patterns{u"*.svg"_s};
    const QList<QByteArray> formats = QImageReader::supportedImageFormats();
    for (const QByteArray &format : formats)
        patterns.append(u"*.%1"_s.arg(QString::fromLatin1(format.trimmed()).toLower()));
    patterns.removeDuplicates();
    patterns.sort();
    return patterns;
}

bool isHeifFormat(const QByteArray &format)
{
    return format.compare("heic", Qt::CaseInsensitive) == 0 || format.compare("heif", Qt::CaseInsensitive) == 0;
}

bool isHeifDecoderFailure(const QImageReader &reader, const QByteArray &format)
{
    if (!isHeifFormat(format) || !reader.device())
        return false;
    bool isNumber = false;
    const int reason = reader.device()->property("_zelmoraatelier_heif_decoderFailure").toInt(&isNumber);
    return isNumber && reason >= 1 && reason <= 3;
}

} // namespace zm
