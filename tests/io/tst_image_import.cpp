#include "document/document.h"
#include "io/image_allocation.h"
#include "io/image_import.h"
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

QByteArray pngHeaderOnly(quint32 width, quint32 height)
{
    QByteArray png = encoded(test::plainPicture(1, 1, Qt::white), "png");
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    // The checksum of the header chunk's 17 bytes from its name on (ISO 3309).
    quint32 crc = ~0u;
    for (const char byte : png.sliced(12, 17)) {
        crc ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320 : 0);
    }
    qToBigEndian(~crc, png.data() + 29);
    return png;
}

QByteArray smallGif()
{
    return QByteArray::fromHex(
        "47494638396101000100800000ff0000ffffff21f90400000000002c00000000010001000002024401003b");
}

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

    void dimensionsUpToTheLimitPass()
    {
        ImageImportError error;
        const auto header = readImageFileHeader(write(u"x.png"_s, pngHeaderOnly(10'000, 10'000)), &error);
        QVERIFY(header);
        QCOMPARE(header->size, QSizeF(10'000, 10'000));
    }

    void filesOpenByWhatTheyHold_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("layerName");
        QTest::addColumn<QSizeF>("size");
        const QImage picture = test::gradientPicture(31, 20);
        QTest::newRow("png") << u"a photo.one.png"_s << encoded(picture, "png") << u"a photo.one"_s << QSizeF(31, 20);
        QTest::newRow("jpeg") << u"x.jpeg"_s << encoded(picture, "jpeg") << u"x"_s << QSizeF(31, 20);
        QTest::newRow("png called jpg") << u"x.jpg"_s << encoded(picture, "png") << u"x"_s << QSizeF(31, 20);
        QTest::newRow("jpeg called png") << u"x.png"_s << encoded(picture, "jpeg") << u"x"_s << QSizeF(31, 20);
        QTest::newRow("webp without a suffix") << u"x"_s << encoded(picture, "webp") << u"x"_s << QSizeF(31, 20);
        QTest::newRow("bmp") << u"x.bmp"_s << encoded(picture, "bmp") << u"x"_s << QSizeF(31, 20);
        QTest::newRow("gif") << u"x.gif"_s << smallGif() << u"x"_s << QSizeF(1, 1);
        QTest::newRow("no base name") << u".png"_s << encoded(picture, "png") << u"Image"_s << QSizeF(31, 20);
        QTest::newRow("density suffix") << u"x@2x.png"_s << encoded(picture, "png") << u"x@2x"_s << QSizeF(31, 20);
        QTest::newRow("16 bits a channel")
            << u"x.png"_s << encoded(picture.convertToFormat(QImage::Format_RGBA64), "png") << u"x"_s << QSizeF(31, 20);
        QTest::newRow("palette") << u"x.png"_s << encoded(picture.convertToFormat(QImage::Format_Indexed8), "png")
                                 << u"x"_s << QSizeF(31, 20);
        QTest::newRow("svg") << u"x.SvG"_s << kSvg << u"x"_s << QSizeF(40, 30);
        QTest::newRow("quarter turn") << u"x.jpg"_s << orientedJpeg(picture, 6) << u"x"_s << QSizeF(20, 31);
        QTest::newRow("data behind the end")
            << u"x.jpg"_s << encoded(picture, "jpeg") + QByteArray(99, 'x') << u"x"_s << QSizeF(31, 20);
    }

    void filesOpenByWhatTheyHold()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, layerName);
        QFETCH(QSizeF, size);
        const QString path = write(name, bytes);
        ImageImportResult result = importImageLayer(path);
        QCOMPARE(result.error, ImageImportError::None);
        QCOMPARE(result.layer->name(), layerName);
        QCOMPARE(result.layer->layerSize(), size);
        if (result.layer->isRaster()) {
            QCOMPARE(result.layer->rasterImage().format(), QImage::Format_RGBA8888);
            QCOMPARE(result.layer->rasterImage().devicePixelRatio(), 1.0);
        } else {
            QCOMPARE(result.layer->svgSource()->data, bytes);
        }
        ImageImportError error;
        const std::optional<ImageFileHeader> header = readImageFileHeader(path, &error);
        QVERIFY(header);
        QCOMPARE(header->size, size);
        QCOMPARE(header->name, layerName);

        Document document;
        QCOMPARE(replaceWithImage(document, std::move(result.layer)), ImageImportError::None);
        QCOMPARE(document.size(), size);
        const SceneObject *layer = document.selectedObject();
        QVERIFY(layer);
        const QRectF local(QPointF(), size);
        QCOMPARE(layer->transform().matrix(local).mapRect(local), document.documentRect());
    }

    void orientationIsAppliedToThePixels()
    {
        QImage picture = test::plainPicture(32, 16, Qt::blue);
        for (int y = 0; y < 16; ++y) {
            for (int x = 0; x < 16; ++x)
                picture.setPixelColor(x, y, Qt::red);
        }
        // 6: the first row of the file is the right side of the picture, so what is left goes to the top.
        const ImageImportResult result = importImageLayer(write(u"x.jpg"_s, orientedJpeg(picture, 6)));
        QVERIFY(result.layer);
        const QImage upright = result.layer->rasterImage();
        QVERIFY(upright.pixelColor(8, 6).red() > 200);
        QVERIFY(upright.pixelColor(8, 26).blue() > 200);
    }

    void unusableFilesAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("message");
        const QString cannotLoad = u"Could not load the selected image file."_s;
        const QString badSvg = u"Could not load the selected SVG image."_s;
        const QImage picture = test::gradientPicture(64, 64);
        QTest::newRow("empty") << u"x.png"_s << QByteArray() << cannotLoad;
        QTest::newRow("text") << u"x.png"_s << "not a picture"_ba << cannotLoad;
        QTest::newRow("only a jpeg's first bytes") << u"x.jpg"_s << "\xFF\xD8"_ba << cannotLoad;
        QTest::newRow("dimensions above the limit") << u"x.png"_s << pngHeaderOnly(10'001, 10'000) << cannotLoad;
        QTest::newRow("greatest dimensions") << u"x.png"_s << pngHeaderOnly(0x7FFFFFFF, 0x7FFFFFFF) << cannotLoad;
        QTest::newRow("empty svg") << u"x.svg"_s << QByteArray() << badSvg;
        QTest::newRow("png called svg") << u"x.svg"_s << encoded(picture, "png") << badSvg;
        QTest::newRow("svg without a size")
            << u"x.svg"_s << R"(<svg xmlns="http://www.w3.org/2000/svg"/>)"_ba << badSvg;
        QTest::newRow("svg above the limit")
            << u"x.svg"_s << R"(<svg xmlns="http://www.w3.org/2000/svg" width="99999" height="99999"/>)"_ba << badSvg;
    }

    void unusableFilesAreRefused()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, message);
        const QString path = write(name, bytes);
        const ImageImportResult result = importImageLayer(path);
        QVERIFY(!result.layer);
        QCOMPARE(importErrorText(result.error), message);
        ImageImportError error = ImageImportError::None;
        QVERIFY(!readImageFileHeader(path, &error));
        QCOMPARE(error, result.error);
    }

    void whatIsNoFileIsRefused()
    {
        for (const QString &path : {m_folder.path(), m_folder.filePath(u"none"_s), QString()})
            QCOMPARE(importImageLayer(path).error, ImageImportError::NotAFile);
    }

    void everyCutOffPictureIsRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QImage picture = test::gradientPicture(48, 32);
        for (const char *format : {"jpeg", "png", "webp", "bmp"})
            QTest::newRow(format) << encoded(picture, format);
        QTest::newRow("gif") << smallGif().chopped(1); // the trailer that follows the frame tells nothing
    }

    void everyCutOffPictureIsRefused()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(importImageLayer(write(u"x"_s, bytes)).layer);
        // The last 12 bytes of a PNG are an empty end chunk, and WebP pads to an even length.
        const bool endIsEmpty = bytes.startsWith("\x89PNG") || bytes.startsWith("RIFF");
        for (qsizetype length = bytes.size() - (endIsEmpty ? 13 : 1); length >= 0; length -= 1 + length / 40) {
            const ImageImportResult result = importImageLayer(write(u"x"_s, bytes.first(length)));
            QVERIFY2(!result.layer, qPrintable(u"%1 of %2 bytes"_s.arg(length).arg(bytes.size())));
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

    void dialogPatternsAreSortedAndUnique()
    {
        const QStringList patterns = supportedImageFilePatterns();
        QVERIFY(std::is_sorted(patterns.begin(), patterns.end()));
        QCOMPARE(patterns.count(u"*.svg"_s), 1);
        QVERIFY(patterns.contains(u"*.jpg"_s) && patterns.contains(u"*.webp"_s));
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
