#include "document/document.h"
#include "document/scene_renderer.h"
#include "io/covering_image.h"
#include "io/image_export.h"
#include "io/image_import.h"
#include "io/software_tag.h"
#include "support/pictures.h"

#include <QColorSpace>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace zm;
using namespace Qt::StringLiterals;

namespace {

SceneSnapshot snapshotOf(const QImage &image, const QColor &background = Qt::white)
{
    Document document;
    replaceWithImage(document, std::make_unique<ImageLayer>(image, u"x"_s));
    document.setBackgroundColor(background);
    return buildSceneSnapshot(document, {}, nullptr);
}

QImage randomPicture(int width, int height, bool opaque)
{
    QRandomGenerator random(7);
    QImage image(width, height, QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const quint32 bits = random.generate();
            image.setPixel(x, y, opaque ? bits | 0xFF000000 : bits);
        }
    }
    return image;
}

ExportSettings settingsFor(const QString &key, const QSize &size, bool clip = true)
{
    return {key, kDefaultExportQuality, size, clip};
}

/// The chunks of a WebP file in order, by their names.
QByteArrayList chunkNames(const QByteArray &file)
{
    QByteArrayList names;
    for (qsizetype at = 12; at + 8 <= file.size();) {
        names.append(file.sliced(at, 4));
        const quint32 size = qFromLittleEndian<quint32>(file.constData() + at + 4);
        at += 8 + size + (size & 1);
    }
    return names;
}

QByteArray webpOf(const QByteArray &chunks)
{
    QByteArray file("RIFF\0\0\0\0WEBP", 12);
    file += chunks;
    qToLittleEndian(quint32(file.size() - 8), file.data() + 4);
    return file;
}

QByteArray chunk(const char *name, const QByteArray &payload)
{
    QByteArray bytes(name, 4);
    const quint32 size = qToLittleEndian(quint32(payload.size()));
    bytes.append(reinterpret_cast<const char *>(&size), 4).append(payload);
    return payload.size() & 1 ? bytes + '\0' : bytes;
}

} // namespace

class TestImageExport : public QObject
{
    Q_OBJECT

private slots:
    void aLonePictureIsSharedAndEqualsItsRendering_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("even") << QSize(64, 48);
        QTest::newRow("odd") << QSize(101, 51);
        QTest::newRow("one pixel") << QSize(1, 1);
    }

    void aLonePictureIsSharedAndEqualsItsRendering()
    {
        QFETCH(QSize, size);
        const QImage picture = randomPicture(size.width(), size.height(), true);
        for (const QColor &background : {QColor(Qt::white), QColor(10, 20, 30, 40), QColor(0, 0, 0, 0)}) {
            const SceneSnapshot scene = snapshotOf(picture, background);
            const QImage shared = imageCovering(scene, exportRectangle(scene, true));
            QCOMPARE(shared.constBits(), scene.items.first().image.constBits());
            QCOMPARE(shared, renderDocumentImage(scene, 1.0));
            QCOMPARE(imageCovering(scene, exportRectangle(scene, false)),
                     renderSceneRegion(scene, exportRectangle(scene, false), 1.0));
        }
    }

    void whatNeedsComposingIsNotShared()
    {
        const QImage opaque = randomPicture(20, 10, true);
        const SceneSnapshot plain = snapshotOf(opaque);
        const QRectF rectangle = documentRect(plain);
        const auto isShared = [&](auto change) {
            SceneSnapshot scene = plain;
            change(scene);
            return !imageCovering(scene, rectangle).isNull();
        };
        QVERIFY(isShared([](SceneSnapshot &) {}));
        QVERIFY(isShared([](SceneSnapshot &s) { s.items.prepend(s.items.first()); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items.clear(); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].image.setPixelColor(19, 9, QColor(1, 2, 3, 254)); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].opacity = 0.5; }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].blendMode = u"multiply"_s; }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].transform.setPosition({-9.5, -5.0}); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].transform.setRotation(180.0); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].transform.setScale({-1.0, 1.0}); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].imageSize = {10.0, 5.0}; }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].image = QImage(); }));
    }

    void exportAsDecodedWritesTheSameFile_data()
    {
        QTest::addColumn<QString>("key");
        for (const char *key : {"jpeg", "png", "webp"})
            QTest::newRow(key) << QString::fromLatin1(key);
    }

    void exportAsDecodedWritesTheSameFile()
    {
        QFETCH(QString, key);
        QImage decoded = randomPicture(53, 37, true).convertToFormat(QImage::Format_RGB32);
        decoded.setColorSpace(QColorSpace::AdobeRgb); // belongs to the file that was read, not to the document
        decoded.setDotsPerMeterX(1234);
        decoded.setText(u"Comment"_s, u"private"_s);
        const ExportSettings settings = settingsFor(key, decoded.size());
        QVERIFY(isExportedAsDecoded(decoded, settings));
        QCOMPARE(exportAsDecoded(decoded, settings).bytes, exportImage(snapshotOf(decoded), settings).bytes);
        QVERIFY(!isExportedAsDecoded(decoded.convertToFormat(QImage::Format_ARGB32), settings));
        QVERIFY(!isExportedAsDecoded(decoded, settingsFor(key, {54, 37})));
        QVERIFY(!isExportedAsDecoded(decoded, settingsFor(u"pngTransparent"_s, decoded.size())));
    }

    void transparencyIsKeptOnlyWhereItIsAskedFor_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QColor>("seen");
        const QColor half(255, 0, 0, 128);
        const QColor overBackground(128, 0, 127); // half red over blue
        QTest::newRow("png") << u"png"_s << overBackground;
        QTest::newRow("pngTransparent") << u"pngTransparent"_s << half;
        QTest::newRow("webp") << u"webp"_s << overBackground;
        QTest::newRow("webpTransparent") << u"webpTransparent"_s << half;
        QTest::newRow("jpeg") << u"jpeg"_s << overBackground;
        QTest::newRow("unknown key") << u"tiff"_s << overBackground;
    }

    void transparencyIsKeptOnlyWhereItIsAskedFor()
    {
        QFETCH(QString, key);
        QFETCH(QColor, seen);
        const SceneSnapshot scene = snapshotOf(test::plainPicture(32, 32, QColor(255, 0, 0, 128)), Qt::blue);
        const ExportResult result = exportImage(scene, settingsFor(key, {32, 32}));
        const QImage read = QImage::fromData(result.bytes);
        QCOMPARE(read.size(), QSize(32, 32));
        QCOMPARE(read.hasAlphaChannel(), seen.alpha() < 255);
        QVERIFY(test::maximumDifference(read, test::plainPicture(32, 32, seen)) <= 6); // lossy codecs
    }

    void sizesFollowTheRules()
    {
        const QRectF wide(0, 0, 20'000, 10'000);
        QCOMPARE(defaultExportSize(wide), QSize(8192, 4096));
        QCOMPARE(defaultExportSize(QRectF(0, 0, 4, 4)), QSize(16, 16));
        QCOMPARE(defaultExportSize(QRectF(0, 0, 300, 200)), QSize(300, 200));
        QCOMPARE(defaultExportSize(QRectF(0, 0, 300, 200), 150), QSize(150, 100));
        QCOMPARE(exportSizeForWidth(QRectF(0, 0, 300, 200), 600), QSize(600, 400));
        QCOMPARE(exportSizeForHeight(QRectF(0, 0, 300, 200), 50), QSize(75, 50));
        QCOMPARE(exportSizeForHeight(wide, 8192), QSize(8192, 4096));
        QCOMPARE(exportSizeForWidth(wide, 20), QSize(20, 16));
    }

    void exportRectanglesKeepWholePixels()
    {
        SceneSnapshot scene = snapshotOf(randomPicture(101, 51, true));
        QCOMPARE(exportRectangle(scene, true), documentRect(scene));
        QCOMPARE(exportRectangle(scene, false), documentRect(scene));
        scene.items[0].transform.setPosition(scene.items[0].transform.position() + QPointF(10.25, -3.0));
        QCOMPARE(exportRectangle(scene, true), documentRect(scene));
        QCOMPARE(exportRectangle(scene, false), QRectF(-40.5, -28.5, 102, 51));
        scene.items.clear();
        scene.documentSize = {10.2, 3.5};
        QCOMPARE(exportRectangle(scene, false).size(), QSizeF(11, 4));
    }

    void enlargingScalesTheFinishedPicture()
    {
        const SceneSnapshot scene = snapshotOf(test::gradientPicture(20, 16));
        const ExportResult result = exportImage(scene, settingsFor(u"png"_s, {40, 32}));
        const QImage expected =
            test::gradientPicture(20, 16).scaled(40, 32, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QCOMPARE(test::maximumDifference(QImage::fromData(result.bytes), expected), 0);
        QCOMPARE(QImage::fromData(exportImage(scene, settingsFor(u"jpeg"_s, {17, 99})).bytes).size(), QSize(17, 99));
    }

    void aCancelledExportGivesNothing()
    {
        const std::atomic_bool cancelled = true;
        const ExportResult result =
            exportImage(snapshotOf(test::gradientPicture(20, 20)), settingsFor(u"png"_s, {20, 20}), &cancelled);
        QVERIFY(result.cancelled && result.bytes.isEmpty() && result.error.isEmpty());
    }

    void encodersThatCannotAreTold()
    {
        const ExportResult result =
            exportImage(snapshotOf(test::gradientPicture(20, 20)), settingsFor(u"webp"_s, {16'384, 16}));
        QVERIFY(result.bytes.isEmpty());
        QVERIFY2(result.error.startsWith(u"Could not encode the saved image: "_s), qPrintable(result.error));
    }

    void suffixesChooseFormats()
    {
        QCOMPARE(exportFormatKeyForFile(u"PHOTO.JPEG"_s, false), u"jpeg"_s);
        QCOMPARE(exportFormatKeyForFile(u"a.b.WebP"_s, true), u"webpTransparent"_s);
        QCOMPARE(exportFormatKeyForFile(u"a.png"_s, false), u"png"_s);
        QCOMPARE(exportFormatKeyForFile(u"a.jpg"_s, true), QString());
        QCOMPARE(exportFormatKeyForFile(u"a.gif"_s, false), QString());
        QCOMPARE(exportFormatKeyForFile(u"jpg"_s, false), QString());
        QVERIFY(!acceptsSuffix(exportFormat(u"jpeg"_s), u"png"_s));
    }

    void failedWritesLeaveNothing()
    {
        QTemporaryDir folder;
        QString error;
        QVERIFY(writeExportedImage(folder.filePath(u"a.png"_s), "bytes", &error));
        QVERIFY(!writeExportedImage(folder.filePath(u"none/a.png"_s), "bytes", &error));
        QVERIFY2(error.startsWith(u"Could not save the image: "_s), qPrintable(error));
        QVERIFY(!writeExportedImage(folder.path(), "bytes", &error));
        QVERIFY(QFile::link(u"/dev/null"_s, folder.filePath(u"device.png"_s)));
        QVERIFY(!writeExportedImage(folder.filePath(u"device.png"_s), "bytes", &error));
        QCOMPARE(error, u"Could not save the image: The target is not a regular file."_s);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden).size(), 2);
    }

    void jpegTagReplacesWhatWasThere()
    {
        QByteArray file =
            exportImage(snapshotOf(test::gradientPicture(20, 20)), settingsFor(u"jpeg"_s, {20, 20})).bytes;
        QCOMPARE(file.count("Exif"), 1);
        const qsizetype tiff = file.indexOf("Exif") + 6;
        // One entry: Software, ASCII, 16 bytes at offset 26 of the little-endian TIFF.
        QCOMPARE(file.sliced(tiff, 26).toHex(),
                 "49492a000800000001003101020010000000"
                 "1a00000000000000"_ba);
        QCOMPARE(file.sliced(tiff + 26, 16), QByteArray("Zelmora Atelier\0", 16));
        QVERIFY(embedSoftwareTag(file, "jpeg", u"Ex\u00e9"_s));
        QCOMPARE(file.count("Exif"), 1);
        QVERIFY(file.contains("Ex??") && !file.contains("Zelmora"));
        QVERIFY(!QImage::fromData(file).isNull());
    }

    void webpTagKeepsTheOtherChunks()
    {
        for (const QString &key : {u"webp"_s, u"webpTransparent"_s}) {
            const QByteArray file =
                exportImage(snapshotOf(test::plainPicture(40, 20, QColor(9, 9, 9, 99))), settingsFor(key, {40, 20}))
                    .bytes;
            const QByteArrayList names = chunkNames(file);
            QCOMPARE(names.first(), "VP8X"_ba);
            QCOMPARE(names.last(), "EXIF"_ba);
            QCOMPARE(QImage::fromData(file).size(), QSize(40, 20));
        }
        const QByteArray lossless = chunk("VP8L", QByteArray::fromHex("2f0f400700ff"));
        QByteArray file = webpOf(lossless + chunk("EXIF", "old") + chunk("XMP ", "odd") + chunk("ABCD", "kept!"));
        QVERIFY(embedSoftwareTag(file, "webp", u"Me"_s));
        QCOMPARE(chunkNames(file), QByteArrayList({"VP8X", "VP8L", "XMP ", "ABCD", "EXIF"}));
        // Alpha, Exif and XMP; 16 x 30 less one each, from the 14-bit fields of the lossless header.
        QCOMPARE(file.sliced(20, 10).toHex(), "1c0000000f00001d0000"_ba);
        QCOMPARE(qFromLittleEndian<quint32>(file.constData() + 4), quint32(file.size() - 8));
        QVERIFY(file.contains(chunk("ABCD", "kept!")));
    }

    void malformedContainersStayUntagged_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray lossless = chunk("VP8L", QByteArray::fromHex("2f0f400700ff"));
        QTest::newRow("png") << "png"_ba << "\x89PNG"_ba;
        QTest::newRow("no jpeg") << "jpeg"_ba << "GIF89a"_ba;
        QTest::newRow("jpeg cut in a segment") << "jpeg"_ba << QByteArray("\xFF\xD8\xFF\xE0\x00\x10JF", 8);
        QTest::newRow("jpeg without a scan") << "jpeg"_ba << "\xFF\xD8"_ba;
        QTest::newRow("extended header of 9 bytes")
            << "webp"_ba << webpOf(chunk("VP8X", QByteArray(9, '\0')) + lossless);
        QTest::newRow("wrong outer size") << "webp"_ba << webpOf(lossless) + "x";
        QTest::newRow("chunk overruns") << "webp"_ba << webpOf(lossless.chopped(1));
        QTest::newRow("no picture") << "webp"_ba << webpOf(chunk("ABCD", "12"));
        QTest::newRow("bad start code") << "webp"_ba << webpOf(chunk("VP8 ", QByteArray(10, '\1')));
        QTest::newRow("too short") << "webp"_ba << "RIFF"_ba;
    }

    void malformedContainersStayUntagged()
    {
        QFETCH(QByteArray, format);
        QFETCH(QByteArray, bytes);
        QByteArray file = bytes;
        QVERIFY(!embedSoftwareTag(file, format, u"Me"_s));
        QCOMPARE(file, bytes);
    }
};

QTEST_GUILESS_MAIN(TestImageExport)
#include "tst_image_export.moc"
