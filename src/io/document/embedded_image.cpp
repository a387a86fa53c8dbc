#include "io/document/embedded_image.h"

#include "base/pixel_limits.h"
#include "io/document/file_message.h"
#include "io/document/webp_container.h"
#include "io/image_allocation.h"

#include <QBuffer>
#include <QImageReader>

#include <cstring>
#include <limits>
#include <webp/encode.h>

namespace zm {

namespace {

/// The longest side of a raster in a file, pixels.
constexpr int kMaximumRawSide = 1'000'000;
static_assert(kMaximumRasterPixels * kBytesPerPixel <= std::numeric_limits<quint32>::max(),
              "raw pixels fit the sizes of a file");

QString encoderErrorText(int code)
{
    switch (code) {
    case VP8_ENC_ERROR_OUT_OF_MEMORY:
        return FileMessage::tr("out of memory");
    case VP8_ENC_ERROR_BITSTREAM_OUT_OF_MEMORY:
        return FileMessage::tr("out of memory while writing the bitstream");
    case VP8_ENC_ERROR_NULL_PARAMETER:
        return FileMessage::tr("a required encoder parameter is missing");
    case VP8_ENC_ERROR_INVALID_CONFIGURATION:
        return FileMessage::tr("the encoder configuration is invalid");
    case VP8_ENC_ERROR_BAD_DIMENSION:
        return FileMessage::tr("the image dimensions are invalid");
    case VP8_ENC_ERROR_PARTITION0_OVERFLOW:
    case VP8_ENC_ERROR_PARTITION_OVERFLOW:
        return FileMessage::tr("an encoder partition is too large");
    case VP8_ENC_ERROR_BAD_WRITE:
        return FileMessage::tr("the encoded data could not be written");
    case VP8_ENC_ERROR_FILE_TOO_BIG:
        return FileMessage::tr("the encoded image is too large");
    case VP8_ENC_ERROR_USER_ABORT:
        return FileMessage::tr("encoding was cancelled");
    default:
        return FileMessage::tr("unknown encoder error (code %1)").arg(code);
    }
}

/// Saving must not stall: lossless files take the fastest setting, others the second fastest and a further thread.
bool configure(WebPConfig *config, EmbeddedImageMode mode)
{
    if (mode == EmbeddedImageMode::Lossless) {
        if (!WebPConfigPreset(config, WEBP_PRESET_DEFAULT, 75.0F) || !WebPConfigLosslessPreset(config, 0))
            return false;
        config->thread_level = 0;
    } else {
        if (!WebPConfigPreset(config, WEBP_PRESET_PHOTO, 90.0F))
            return false;
        config->lossless = 0;
        config->method = 1;
        config->thread_level = 1;
        config->alpha_quality = 100;
        config->pass = 1;
        config->use_sharp_yuv = 0;
    }
    config->exact = 1; // keeps the colour under transparent pixels
    return true;
}

/// What libwebp works on.
struct WebpEncoding
{
    WebpEncoding() { WebPMemoryWriterInit(&writer); }
    ~WebpEncoding()
    {
        WebPMemoryWriterClear(&writer);
        WebPPictureFree(&picture);
    }
    Q_DISABLE_COPY_MOVE(WebpEncoding)

    WebPPicture picture = {};
    WebPMemoryWriter writer;
};

/// The mode that a file was made in; nothing for an animation and for a container that is not as it should be.
std::optional<EmbeddedImageMode> modeOf(QByteArrayView file)
{
    if (!isWholeWebp(file))
        return std::nullopt;
    std::optional<EmbeddedImageMode> mode;
    for (ByteReader rest(file.sliced(kWebpHeaderSize)); !rest.atEnd();) {
        const std::optional<WebpChunk> chunk = takeWebpChunk(rest);
        if (!chunk || chunk->tag == "ANIM" || chunk->tag == "ANMF")
            return std::nullopt;
        if (chunk->tag == "VP8L" || chunk->tag == "VP8 ") {
            if (mode)
                return std::nullopt;
            mode = chunk->tag == "VP8L" ? EmbeddedImageMode::Lossless : EmbeddedImageMode::Compressed;
        }
    }
    return mode;
}

bool fitsRaw(const QSize &size)
{
    return isAllocatableRasterSize(size) && size.width() <= kMaximumRawSide && size.height() <= kMaximumRawSide;
}

} // namespace

bool fitsWebp(const QSize &size)
{
    return isAllocatableRasterSize(size) && size.width() <= kMaximumWebpSide && size.height() <= kMaximumWebpSide;
}

std::optional<QByteArray> encodeWebp(const QImage &image, EmbeddedImageMode mode, Error &error)
{
    if (!fitsWebp(image.size()) || mode == EmbeddedImageMode::Raw)
        return error.fail(FileMessage::tr("An image cannot be represented as WebP."));
    WebPConfig config;
    if (!configure(&config, mode))
        return error.fail(FileMessage::tr("Could not initialize the WebP encoder."));
    if (!WebPValidateConfig(&config))
        return error.fail(FileMessage::tr("The WebP encoder configuration is invalid."));
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    if (pixels.isNull() || pixels.bytesPerLine() > std::numeric_limits<int>::max())
        return error.fail(FileMessage::tr("Could not prepare the image for WebP encoding."));

    WebpEncoding encoding;
    WebPPicture &picture = encoding.picture;
    if (!WebPPictureInit(&picture))
        return error.fail(FileMessage::tr("Could not initialize the WebP encoder."));
    picture.use_argb = 1;
    picture.width = pixels.width();
    picture.height = pixels.height();
    picture.writer = WebPMemoryWrite;
    picture.custom_ptr = &encoding.writer;
    if (!WebPPictureImportRGBA(&picture, pixels.constBits(), int(pixels.bytesPerLine())))
        return error.fail(FileMessage::tr("Could not prepare the image for WebP encoding: %1")
                              .arg(encoderErrorText(picture.error_code)));
    if (!WebPEncode(&config, &picture))
        return error.fail(FileMessage::tr("Could not encode WebP: %1").arg(encoderErrorText(picture.error_code)));
    if (encoding.writer.size == 0)
        return error.fail(FileMessage::tr("The WebP encoder produced no data."));
    if (encoding.writer.size > size_t(kMaximumSectionSize))
        return error.fail(FileMessage::tr("The encoded WebP image is too large."));
    return QByteArray(reinterpret_cast<const char *>(encoding.writer.mem), qsizetype(encoding.writer.size));
}

bool checkWebpSize(QByteArrayView file, const QSize &expectedSize, Error &error)
{
    const std::optional<QSize> size = webpCanvas(file);
    if (!size || !fitsWebp(*size) || (expectedSize.isValid() && *size != expectedSize))
        return error.fail(FileMessage::tr("An embedded WebP has invalid dimensions."));
    return true;
}

std::optional<QImage> decodeWebp(QByteArrayView file, const QSize &expectedSize, Error &error)
{
    // Asked for its size, Qt's reader makes room for an animation at once.
    if (!checkWebpSize(file, expectedSize, error))
        return Failure();
    raiseImageAllocationLimit();
    // Qt's reader wants to see 40 bytes, and a few pixels without loss take less. What follows the container does not
    // count.
    constexpr qsizetype leastBytes = 40;
    QByteArray bytes = QByteArray::fromRawData(file.data(), file.size());
    if (bytes.size() < leastBytes)
        bytes = bytes.leftJustified(leastBytes, '\0');
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::ReadOnly))
        return error.fail(FileMessage::tr("Could not open an embedded image."));
    QImageReader reader(&buffer, "webp");
    reader.setAutoTransform(false);
    const QSize size = reader.size();
    if (size != webpCanvas(file))
        return error.fail(FileMessage::tr("An embedded WebP has invalid dimensions."));
    QImage image = reader.read();
    if (!image.isNull() && image.size() == size)
        image = std::move(image).convertToFormat(QImage::Format_RGBA8888);
    if (image.size() != size)
        return error.fail(FileMessage::tr("Could not decode WebP: %1").arg(reader.errorString()));
    return image;
}

std::optional<QByteArray> webpFile(const RasterImageSource &source, EmbeddedImageMode mode, Error &error)
{
    if (const QByteArray kept = source.encodings->find(source.image, mode); !kept.isEmpty())
        return kept;
    std::optional<QByteArray> file = encodeWebp(source.image, mode, error);
    if (file)
        source.encodings->keep(source.image, mode, *file);
    return file;
}

std::optional<RasterImageSource> sourceFromWebp(QByteArrayView file, const QSize &expectedSize, Error &error)
{
    const std::optional<QImage> image = decodeWebp(file, expectedSize, error);
    if (!image)
        return Failure();
    RasterImageSource source{*image};
    if (const std::optional<EmbeddedImageMode> mode = modeOf(file))
        source.encodings->keep(source.image, *mode, file.toByteArray());
    return source;
}

std::optional<QByteArray> encodeRawRgba(const QImage &image, Error &error)
{
    if (!fitsRaw(image.size()))
        return error.fail(FileMessage::tr("An image cannot be represented as raw RGBA data."));
    const QImage pixels = image.convertToFormat(QImage::Format_RGBA8888);
    if (pixels.isNull())
        return error.fail(FileMessage::tr("An image cannot be represented as raw RGBA data."));
    const qsizetype rowBytes = kBytesPerPixel * pixels.width();
    QByteArray bytes(rowBytes * pixels.height(), Qt::Uninitialized);
    for (int y = 0; y < pixels.height(); ++y)
        std::memcpy(bytes.data() + y * rowBytes, pixels.constScanLine(y), size_t(rowBytes));
    return bytes;
}

bool checkRawRgba(QByteArrayView bytes, const QSize &size, Error &error)
{
    if (!fitsRaw(size))
        return error.fail(FileMessage::tr("A raw RGBA image has invalid dimensions."));
    if (bytes.size() != kBytesPerPixel * size.width() * size.height())
        return error.fail(FileMessage::tr("A raw RGBA image has an invalid byte length."));
    return true;
}

std::optional<QImage> decodeRawRgba(QByteArrayView bytes, const QSize &size, Error &error)
{
    if (!checkRawRgba(bytes, size, error))
        return Failure();
    QImage image(size, QImage::Format_RGBA8888);
    if (image.isNull())
        return error.fail(FileMessage::tr("Could not allocate a raw RGBA image."));
    const qsizetype rowBytes = kBytesPerPixel * size.width();
    for (int y = 0; y < size.height(); ++y)
        std::memcpy(image.scanLine(y), bytes.data() + y * rowBytes, size_t(rowBytes));
    return image;
}

} // namespace zm
