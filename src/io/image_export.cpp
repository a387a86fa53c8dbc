#include "io/image_export.h"

#include "document/scene_renderer.h"
#include "io/covering_image.h"
#include "io/save_target.h"
#include "io/software_tag.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

#include <cmath>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

QString exportText(const char *source)
{
    return QCoreApplication::translate("zm::ExportController", source);
}

/// What a chain of transforms may add to a whole number of pixels.
constexpr double kRoundingError = 1e-6;

int exportSide(double pixels, int maximumSide)
{
    return int(std::clamp(std::round(pixels), double(kMinimumExportSide), double(maximumSide)));
}

/// Both sides by one factor, which is lowered until the longer side fits.
QSize scaledExportSize(const QRectF &rectangle, double factor, int maximumSide)
{
    const double longer = std::max(rectangle.width(), rectangle.height());
    const double fitting = std::min(factor, maximumSide / std::max(longer, 1.0));
    return {exportSide(rectangle.width() * fitting, maximumSide),
            exportSide(rectangle.height() * fitting, maximumSide)};
}

QImage renderFlattened(const SceneSnapshot &snapshot, const ExportSettings &settings, const QRectF &rectangle)
{
    // Content is never rendered above its native scale; enlarging is left to the scaling of the finished picture.
    const double scale = std::min({settings.size.height() / std::max(rectangle.height(), 1.0),
                                   settings.size.width() / std::max(rectangle.width(), 1.0), 1.0});
    if (scale == 1.0) {
        const QImage shared = imageCovering(snapshot, rectangle);
        if (!shared.isNull())
            return shared;
    }
    return settings.clipToDocument ? renderDocumentImage(snapshot, scale)
                                   : renderSceneRegion(snapshot, rectangle, scale);
}

ExportResult encode(const QImage &image, const ExportFormat &format, int quality)
{
    ExportResult result;
    QBuffer buffer(&result.bytes);
    if (!buffer.open(QIODevice::WriteOnly))
        return {{},
                exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not create the in-memory image buffer."))};
    QImageWriter writer(&buffer, format.writerFormat);
    if (format.writerFormat == "png")
        writer.setCompression(100);
    else
        writer.setQuality(std::clamp(quality, 0, 100));
    if (!writer.write(image)) {
        return {{},
                exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not encode the saved image: %1"))
                    .arg(writer.errorString())};
    }
    embedSoftwareTag(result.bytes, format.writerFormat, u"Zelmora Atelier"_s);
    return result;
}

} // namespace

QList<ExportFormat> exportFormats()
{
    const QString jpeg = exportText(QT_TRANSLATE_NOOP("zm::ExportController", "JPEG images (*.jpg *.jpeg)"));
    const QString webp = exportText(QT_TRANSLATE_NOOP("zm::ExportController", "WebP images (*.webp)"));
    const QString png = exportText(QT_TRANSLATE_NOOP("zm::ExportController", "PNG images (*.png)"));
    return {
        {u"jpeg"_s, "jpeg", u"jpg"_s, false, jpeg},
        {u"webp"_s, "webp", u"webp"_s, false, webp},
        {u"webpTransparent"_s, "webp", u"webp"_s, true, webp},
        {u"png"_s, "png", u"png"_s, false, png},
        {u"pngTransparent"_s, "png", u"png"_s, true, png},
    };
}

ExportFormat exportFormat(const QString &key)
{
    const QList<ExportFormat> formats = exportFormats();
    for (const ExportFormat &format : formats) {
        if (format.key == key)
            return format;
    }
    return formats.first();
}

bool isExportFormatKey(const QString &key)
{
    return exportFormat(key).key == key;
}

QString exportFormatKeyForFile(const QString &path, bool transparent)
{
    const QString suffix = QFileInfo(path).suffix();
    const QList<ExportFormat> formats = exportFormats();
    for (const ExportFormat &format : formats) {
        if (format.transparent == transparent && acceptsSuffix(format, suffix))
            return format.key;
    }
    return {};
}

bool acceptsSuffix(const ExportFormat &format, const QString &suffix)
{
    return suffix.compare(format.suffix, Qt::CaseInsensitive) == 0
        || (format.key == "jpeg"_L1 && suffix.compare("jpeg"_L1, Qt::CaseInsensitive) == 0);
}

QRectF exportRectangle(const SceneSnapshot &snapshot, bool clipToDocument)
{
    const QRectF document = documentRect(snapshot);
    const QRectF shown = clipToDocument ? document : unitedItemBounds(snapshot);
    // Pixels are counted from the document's corner: its centre is the origin, and half of an odd side is no whole
    // pixel.
    const QPointF corner = document.topLeft();
    const QRectF fromCorner = shown.translated(-corner);
    const double left = std::floor(fromCorner.left() + kRoundingError);
    const double top = std::floor(fromCorner.top() + kRoundingError);
    const double right = std::ceil(fromCorner.right() - kRoundingError);
    const double bottom = std::ceil(fromCorner.bottom() - kRoundingError);
    return {corner.x() + left, corner.y() + top, std::max(right - left, 1.0), std::max(bottom - top, 1.0)};
}

QSize defaultExportSize(const QRectF &rectangle, int maximumSide)
{
    return scaledExportSize(rectangle, 1.0, maximumSide);
}

QSize exportSizeForWidth(const QRectF &rectangle, int width, int maximumSide)
{
    return scaledExportSize(rectangle, width / rectangle.width(), maximumSide);
}

QSize exportSizeForHeight(const QRectF &rectangle, int height, int maximumSide)
{
    return scaledExportSize(rectangle, height / rectangle.height(), maximumSide);
}

ExportResult exportImage(const SceneSnapshot &snapshot, const ExportSettings &settings,
                         const std::atomic_bool *cancelled)
{
    const auto isCancelled = [cancelled] { return cancelled && cancelled->load(); };
    const ExportResult stopped{{}, {}, true};
    const ExportFormat format = exportFormat(settings.formatKey);

    if (isCancelled())
        return stopped;
    SceneSnapshot scene = snapshot;
    if (format.transparent)
        scene.backgroundColor.setAlpha(0);
    QImage image = renderFlattened(scene, settings, exportRectangle(scene, settings.clipToDocument));
    if (image.isNull())
        return {{}, exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not render the image."))};
    if (isCancelled())
        return stopped;
    if (image.size() != settings.size)
        image = image.scaled(settings.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (isCancelled())
        return stopped;
    // Alpha is dropped, and its colour kept, where the format does not ask for it.
    if (!format.transparent)
        image = pixelsReadAs(image, QImage::Format_RGBX8888);
    ExportResult result = encode(image, format, settings.quality);
    return isCancelled() ? stopped : result;
}

bool isExportedAsDecoded(const QImage &picture, const ExportSettings &settings)
{
    return picture.format() == QImage::Format_RGB32 && picture.size() == settings.size
        && !exportFormat(settings.formatKey).transparent;
}

ExportResult exportAsDecoded(const QImage &picture, const ExportSettings &settings)
{
    return encode(pixelsReadAs(picture, picture.format()), exportFormat(settings.formatKey), settings.quality);
}

bool writeExportedImage(const QString &path, const QByteArray &bytes, QString *error)
{
    const auto fail = [error](const QString &reason) {
        *error = exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not save the image: %1")).arg(reason);
        return false;
    };
    if (!mayBeReplaced(path))
        return fail(exportText(QT_TRANSLATE_NOOP("zm::ExportController", "The target is not a regular file.")));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    const QString reason = file.errorString();
    file.cancelWriting();
    return fail(reason);
}

} // namespace zm
