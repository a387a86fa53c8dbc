#include "document/document.h"
#include "io/image_allocation.h"
#include "io/pictures/image_import.h"
#include "support/pictures.h"

#include <QBuffer>
#include <QImageReader>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace zm;
using namespace Qt::StringLiterals;

namespace {

QByteArray encoded(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter(&buffer, format).write(image);
    return bytes;
}

/// A JPEG with an Exif orientation right behind its first two bytes.
QByteArray orientedJpeg(const QImage &image, int orientation)
{
    QByteArray exif("Exif\0\0MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0", 25);
    exif.append(char(orientation)).append("\0\0\0\0\0\0", 6);
    QByteArray segment("\xFF\xE1\0", 3);
    segment.append(char(exif.size() + 2)).append(exif);
    return encoded(image, "jpeg").insert(2, segment);
}

/// The checksum is that of the header chunk.
QByteArray pngClaiming(quint32 width, quint32 height, quint32 checksum)
{
    QByteArray png = encoded(test::plainPicture(1, 1, Qt::white), "png");
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    qToBigEndian(checksum, png.data() + 29);
    return png;
}

const QByteArray kSmallGif =
    QByteArray::fromHex("47494638396101000100800000ff0000ffffff21f90400000000002c00000000010001000002024401003b");

const QByteArray kSvg =
    R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 40 30"><rect width="9" height="9"/></svg>)";

} // namespace

class TestImageImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false"_s);
        raiseImageAllocationLimit();
        // Qt counts in mebibytes: 10,000 x 10,000 pixels of four bytes take 381.5.
        QVERIFY(QImageReader::allocationLimit() >= 382);
    }

    void filesOpenByWhatTheyHoldAndUpright()
    {
        const QImage picture = test::gradientPicture(31, 20);
        const QSizeF size = picture.size();
        const QByteArray png = encoded(picture, "png");
        const QByteArray jpeg = encoded(picture, "jpeg");
        const QByteArray deep = encoded(picture.convertToFormat(QImage::Format_RGBA64), "png");
        const QByteArray palette = encoded(picture.convertToFormat(QImage::Format_Indexed8), "png");
        const std::tuple<QString, QByteArray, QString, QSizeF> files[] = {
            {u"a photo.one.png"_s, png, u"a photo.one"_s, size},
            {u"png.jpg"_s, png, u"png"_s, size},
            {u"jpeg.png"_s, jpeg, u"jpeg"_s, size},
            {u"webp"_s, encoded(picture, "webp"), u"webp"_s, size},
            {u"x.gif"_s, kSmallGif, u"x"_s, {1, 1}},
            {u".png"_s, png, u"Image"_s, size},
            {u"density@2x.png"_s, png, u"density@2x"_s, size},
            {u"16 bits a channel.png"_s, deep, u"16 bits a channel"_s, size},
            {u"palette.png"_s, palette, u"palette"_s, size},
            {u"x.SvG"_s, kSvg, u"x"_s, {40, 30}},
            {u"fraction.svg"_s,
             R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 20.5 0.25"/>)",
             u"fraction"_s,
             {20.5, 1}},
            {u"quarter turn.jpg"_s, orientedJpeg(picture, 6), u"quarter turn"_s, {20, 31}},
            {u"data behind the end.jpg"_s, jpeg + QByteArray(99, 'x'), u"data behind the end"_s, size},
        };
        for (const auto &[name, bytes, layerName, layerSize] : files) {
            const QString path = write(name, bytes);
            ImageImportResult result = importImageLayer(path);
            QVERIFY2(result.layer, qPrintable(name));
            QCOMPARE(result.layer->name(), layerName);
            QCOMPARE(result.layer->layerSize(), layerSize);
            if (const SvgImageSource *svg = result.layer->svgSource()) {
                QCOMPARE(svg->data, bytes);
            } else {
                QCOMPARE(result.layer->rasterImage().format(), QImage::Format_RGBA8888);
                QCOMPARE(result.layer->rasterImage().devicePixelRatio(), 1.0);
            }
            ImageImportError error;
            const std::optional<ImageFileHeader> header = readImageFileHeader(path, &error);
            QVERIFY2(header && header->size == layerSize && header->name == layerName, qPrintable(name));

            Document document;
            QCOMPARE(replaceWithImage(document, std::move(result.layer)), ImageImportError::None);
            QCOMPARE(document.size(), QSizeF(std::ceil(layerSize.width()), std::ceil(layerSize.height())));
            const QRectF local(QPointF(), layerSize);
            const SceneObject *layer = document.selectedObject();
            const QRectF framed = QRectF(QPointF(), layerSize).translated(-local.center());
            QVERIFY(layer && layer->transform().matrix(local).mapRect(local) == framed);
        }
        // 6: the first row of the file is the right side of the picture, so what is left goes to the top.
        const auto turned = importImageLayer(write(u"x.jpg"_s, orientedJpeg(picture, 6)));
        const QImage upright = turned.layer->rasterImage();
        QCOMPARE_LT(upright.pixelColor(10, 4).red() + 100, upright.pixelColor(10, 26).red());
        QCOMPARE_GT(upright.pixelColor(4, 15).green(), upright.pixelColor(15, 15).green() + 100);
    }

    void unusableFilesAreRefused()
    {
        const QByteArray svg = R"(<svg xmlns="http://www.w3.org/2000/svg")";
        const std::pair<QString, QByteArray> files[] = {
            {u"empty.png"_s, {}},
            {u"text.png"_s, "not a picture"},
            {u"first bytes.jpg"_s, "\xFF\xD8"},
            {u"above the limit.png"_s, pngClaiming(10'001, 10'000, 0x558C0919)},
            {u"greatest dimensions.png"_s, pngClaiming(0x7FFFFFFF, 0x7FFFFFFF, 0x14C90B66)},
            {u"empty.svg"_s, {}},
            {u"png.svg"_s, encoded(test::gradientPicture(64, 64), "png")},
            {u"without a size.svg"_s, svg + "/>"},
            {u"above the limit.svg"_s, svg + R"( width="99999" height="99999"/>)"},
        };
        ImageImportError error = ImageImportError::None;
        for (const auto &[name, bytes] : files) {
            const QString path = write(name, bytes);
            const ImageImportResult result = importImageLayer(path);
            QVERIFY2(!result.layer && !readImageFileHeader(path, &error), qPrintable(name));
            QCOMPARE(error, result.error);
            QCOMPARE(importErrorText(error),
                     name.endsWith(u".svg") ? u"Could not load the selected SVG image."_s
                                            : u"Could not load the selected image file."_s);
        }
        const auto header = readImageFileHeader(write(u"x.png"_s, pngClaiming(10'000, 10'000, 0xBA4E6227)), &error);
        QVERIFY2(header && header->size == QSizeF(10'000, 10'000), "dimensions up to the limit pass");
        for (const QString &path : {m_folder.path(), m_folder.filePath(u"none"_s), QString()})
            QCOMPARE(importImageLayer(path).error, ImageImportError::NotAFile);
    }

    void everyCutOffPictureIsRefused()
    {
        const QImage picture = test::gradientPicture(48, 32);
        // The last 12 bytes of a PNG are an empty end chunk, WebP pads to an even length, and the trailer that follows
        // a GIF's frame tells nothing.
        const std::pair<QByteArray, int> files[] = {{encoded(picture, "jpeg"), 1},
                                                    {encoded(picture, "bmp"), 1},
                                                    {encoded(picture, "png"), 13},
                                                    {encoded(picture, "webp"), 13},
                                                    {kSmallGif.chopped(1), 1}};
        for (const auto &[bytes, missing] : files) {
            QVERIFY2(importImageLayer(write(u"x"_s, bytes)).layer, bytes.first(12).toHex());
            for (qsizetype length = bytes.size() - missing; length >= 0; length -= 1 + length / 40) {
                const ImageImportResult result = importImageLayer(write(u"x"_s, bytes.first(length)));
                QVERIFY2(!result.layer, qPrintable(u"%1 of %2 bytes"_s.arg(length).arg(bytes.size())));
            }
        }
    }

    void heifFailuresAreTold()
    {
        QVERIFY(isHeifFormat("HEIC") && isHeifFormat("heif") && !isHeifFormat("jpeg") && !isHeifFormat({}));
        QBuffer device;
        const QImageReader reader(&device);
        const auto isFailure = [&](const QVariant &reason, const char *format) {
            device.setProperty("_zelmoraatelier_heif_decoderFailure", reason);
            return isHeifDecoderFailure(reader, format);
        };
        QVERIFY(!isFailure({}, "heic"));
        QVERIFY(isFailure(1, "heic") && isFailure(3, "HEIF"));
        QVERIFY(!isFailure(0, "heic") && !isFailure(4, "heic") && !isFailure(u"x"_s, "heic") && !isFailure(2, "png"));
        QVERIFY(!isHeifDecoderFailure(QImageReader(), "heic"));
        QCOMPARE(importErrorText(ImageImportError::HeifCodecMissing),
                 u"Windows could not decode the selected HEIC/HEIF image."_s);
    }

private:
    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? path : QString();
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestImageImport)
#include "tst_image_import.moc"
