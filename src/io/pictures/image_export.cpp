#include "io/pictures/image_export.h"

#include "io/pictures/covering_image.h"
#include "io/pictures/software_tag.h"
#include "io/save_target.h"
#include "scene/scene_renderer.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageReader>
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

/// Memory that takes no more bytes once the export is cancelled, which ends the writer in the middle of a picture.
class EncodingBuffer : public QBuffer
{
public:
    EncodingBuffer(QByteArray *bytes, const std::atomic_bool *cancelled)
        : QBuffer(bytes)
        , m_cancelled(cancelled)
    {
    }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        return m_cancelled && m_cancelled->load() ? -1 : QBuffer::writeData(data, size);
    }

private:
    const std::atomic_bool *m_cancelled;
};

/// For whom a picture is made, which tells in the words of a failure.
enum class Purpose { Save, Preview };

QString encodingFailure(Purpose purpose, const QString &reason)
{
    const char *pattern = purpose == Purpose::Preview
        ? QT_TRANSLATE_NOOP("zm::ExportController", "Could not encode the preview: %1")
        : QT_TRANSLATE_NOOP("zm::ExportController", "Could not encode the saved image: %1");
    return exportText(pattern).arg(reason);
}

std::optional<QByteArray> encode(const QImage &image, const ExportFormat &format, int quality, Purpose purpose,
                                 const std::atomic_bool *cancelled, Error &error)
{
    QByteArray bytes;
    // PNG, packed as tightly as it goes, takes many seconds. The other writers are quick, and would warn of a full
    // disk.
    const bool isPng = format.writerFormat == "png";
    EncodingBuffer buffer(&bytes, isPng ? cancelled : nullptr);
    if (!buffer.open(QIODevice::WriteOnly))
        return error.fail(
            exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not create the in-memory image buffer.")));
    QImageWriter writer(&buffer, format.writerFormat);
    if (isPng)
        writer.setCompression(100);
    else
        writer.setQuality(std::clamp(quality, 0, 100));
    const bool written = writer.write(image);
    if (cancelled && cancelled->load())
        return std::nullopt;
    if (!written)
        return error.fail(encodingFailure(purpose, writer.errorString()));
    embedSoftwareTag(bytes, format.writerFormat, u"Zelmora Atelier"_s);
    return bytes;
}

std::optional<QByteArray> renderAndEncode(const SceneSnapshot &snapshot, const ExportSettings &settings,
                                          Purpose purpose, const std::atomic_bool *cancelled, Error &error)
{
    const auto isCancelled = [cancelled] { return cancelled && cancelled->load(); };
    const ExportFormat format = exportFormat(settings.formatKey);

    if (isCancelled())
        return std::nullopt;
    SceneSnapshot scene = snapshot;
    if (format.transparent)
        scene.backgroundColor.setAlpha(0);
    QImage image = renderFlattened(scene, settings, exportRectangle(scene, settings.clipToDocument));
    if (image.isNull())
        return error.fail(exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not render the image.")));
    if (isCancelled())
        return std::nullopt;
    if (image.size() != settings.size)
        image = image.scaled(settings.size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (isCancelled())
        return std::nullopt;
    // Alpha is dropped, and its colour kept, where the format does not ask for it.
    if (!format.transparent)
        image = pixelsReadAs(image, QImage::Format_RGBX8888);
    return encode(image, format, settings.quality, purpose, cancelled, error);
}

std::optional<QImage> decodeAgain(QByteArray &bytes, const QByteArray &format, Error &error)
{
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return error.fail(
            exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not reopen the in-memory image buffer.")));
    QImageReader reader(&buffer, format);
    reader.setAutoTransform(false);
    const QImage image = reader.read();
    if (image.isNull())
        return error.fail(
            exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not decode the encoded preview: %1"))
                .arg(reader.errorString()));
    return image;
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

std::optional<QByteArray> exportImage(const SceneSnapshot &snapshot, const ExportSettings &settings, Error &error,
                                      const std::atomic_bool *cancelled)
{
    return renderAndEncode(snapshot, settings, Purpose::Save, cancelled, error);
}

std::optional<ExportPreview> exportPreview(const SceneSnapshot &snapshot, const ExportSettings &settings, Error &error,
                                           const std::atomic_bool *cancelled)
{
    std::optional<QByteArray> bytes = renderAndEncode(snapshot, settings, Purpose::Preview, cancelled, error);
    if (!bytes)
        return std::nullopt;
    std::optional<QImage> image = decodeAgain(*bytes, exportFormat(settings.formatKey).writerFormat, error);
    if (!image)
        return std::nullopt;
    return ExportPreview{*std::move(bytes), *std::move(image)};
}

bool isExportedAsDecoded(const QImage &picture, const ExportSettings &settings)
{
    return picture.format() == QImage::Format_RGB32 && picture.size() == settings.size
        && !exportFormat(settings.formatKey).transparent;
}

std::optional<QByteArray> exportAsDecoded(const QImage &picture, const ExportSettings &settings, Error &error)
{
    return encode(pixelsReadAs(picture, picture.format()), exportFormat(settings.formatKey), settings.quality,
                  Purpose::Save, nullptr, error);
}

bool writeWholeFile(const QString &path, const QByteArray &bytes, Error &error)
{
    if (!mayBeReplaced(path))
        return error.fail(exportText(QT_TRANSLATE_NOOP("zm::ExportController", "The target is not a regular file.")));
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return true;
    const QString reason = file.errorString();
    file.cancelWriting();
    return error.fail(reason);
}

bool writeExportedImage(const QString &path, const QByteArray &bytes, Error &error)
{
    Error reason;
    if (writeWholeFile(path, bytes, reason))
        return true;
    return error.fail(
        exportText(QT_TRANSLATE_NOOP("zm::ExportController", "Could not save the image: %1")).arg(reason.message()));
}

} // namespace zm
