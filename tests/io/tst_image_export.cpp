#include "document/document.h"
#include "io/file_names.h"
#include "io/pictures/covering_image.h"
#include "io/pictures/image_export.h"
#include "io/pictures/image_import.h"
#include "io/pictures/software_tag.h"
#include "scene/scene_renderer.h"
#include "support/pictures.h"

#include <QColorSpace>
#include <QDir>
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

/// Empty when the export fails.
QByteArray exported(const SceneSnapshot &scene, const ExportSettings &settings)
{
    Error error;
    return exportImage(scene, settings, error).value_or(QByteArray());
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

/// A lossless picture's header.
const QByteArray kLossless = chunk("VP8L", QByteArray::fromHex("2f0f400700ff"));

} // namespace

class TestImageExport : public QObject
{
    Q_OBJECT

private slots:
    void aLonePictureIsSharedAndEqualsItsRendering()
    {
        const QImage picture = test::gradientPicture(101, 51); // odd, so half a pixel beside the middle
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
        const SceneSnapshot plain = snapshotOf(test::gradientPicture(20, 10));
        const auto isShared = [&](auto change) {
            SceneSnapshot scene = plain;
            change(scene);
            return !imageCovering(scene, documentRect(plain)).isNull();
        };
        QVERIFY(isShared([](SceneSnapshot &) {}));
        QVERIFY(isShared([](SceneSnapshot &s) { s.items.prepend(s.items.first()); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items.clear(); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].image.setPixelColor(19, 9, QColor(1, 2, 3, 254)); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].opacity = 0.5; }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].blendMode = u"multiply"_s; }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].transform.setPosition({-9.5, -5.0}); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].transform.setScale({-1.0, 1.0}); }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].imageSize = {10.0, 5.0}; }));
        QVERIFY(!isShared([](SceneSnapshot &s) { s.items[0].image = QImage(); }));
    }

    void fileNamesFromOtherNames()
    {
        const std::pair<QString, QString> names[] = {
            {u"  a: b\\c|d\t.  . "_s, u"a_ b_c_d_"_s},
            {u"..."_s, u"zelmora"_s},
            {u""_s, u"zelmora"_s},
            {u".hidden"_s, u".hidden"_s},
            {u"<>\"/?*"_s, u"______"_s},
            {u"ä 🐟"_s, u"ä 🐟"_s},
            {QString(119, u'x') + u"🐟"_s, QString(119, u'x')},
            {QString(200, u'y'), QString(120, u'y')},
        };
        for (const auto &[name, clean] : names)
            QCOMPARE(cleanFileName(name), clean);
        const std::pair<QString, QString> pictures[] = {
            {u"/a.b/c.d.jpg"_s, u"/a.b/c.d.zelmora"_s},
            {u"/a/b"_s, u"/a/b.zelmora"_s},
            {u"/a/.jpg"_s, {}},
            {u"/a/"_s, {}},
            {u"c.jpg"_s, QDir::current().filePath(u"c.zelmora"_s)},
        };
        for (const auto &[picture, document] : pictures)
            QCOMPARE(sidecarPath(picture), document);
    }

    void exportAsDecodedWritesTheSameFile()
    {
        QImage decoded = test::gradientPicture(53, 37).convertToFormat(QImage::Format_RGB32);
        decoded.setColorSpace(QColorSpace::AdobeRgb); // belongs to the file that was read, not to the document
        decoded.setDotsPerMeterX(1234);
        decoded.setText(u"Comment"_s, u"private"_s);
        for (const QString &key : {u"jpeg"_s, u"png"_s, u"webp"_s}) {
            const ExportSettings settings{key, kDefaultExportQuality, decoded.size()};
            QVERIFY(isExportedAsDecoded(decoded, settings));
            Error error;
            const std::optional<QByteArray> bytes = exportAsDecoded(decoded, settings, error);
            QVERIFY2(bytes, qPrintable(error.message()));
            QCOMPARE(*bytes, exported(snapshotOf(decoded), settings));
            QVERIFY(!isExportedAsDecoded(decoded.convertToFormat(QImage::Format_ARGB32), settings));
        }
        QVERIFY(!isExportedAsDecoded(decoded, {u"png"_s, kDefaultExportQuality, {54, 37}}));
        QVERIFY(!isExportedAsDecoded(decoded, {u"pngTransparent"_s, kDefaultExportQuality, decoded.size()}));
    }

    void transparencyIsKeptOnlyWhereItIsAskedFor()
    {
        const QColor half(255, 0, 0, 128);
        const QColor overBlue(128, 0, 127);
        const SceneSnapshot scene = snapshotOf(test::plainPicture(32, 32, half), Qt::blue);
        for (const QString &key :
             {u"png"_s, u"pngTransparent"_s, u"webp"_s, u"webpTransparent"_s, u"jpeg"_s, u"tiff"_s}) {
            const QImage read = QImage::fromData(exported(scene, {key, kDefaultExportQuality, {32, 32}}));
            const bool transparent = key.endsWith(u"Transparent");
            QCOMPARE(read.hasAlphaChannel(), transparent);
            const QImage expected = test::plainPicture(32, 32, transparent ? half : overBlue);
            QVERIFY2(test::maximumDifference(read, expected) <= 6, qPrintable(key)); // lossy codecs
        }
    }

    void sizesFollowTheRulesAndRectanglesKeepWholePixels()
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

        SceneSnapshot scene = snapshotOf(test::gradientPicture(101, 51));
        QCOMPARE(exportRectangle(scene, false), documentRect(scene));
        scene.items[0].transform.setPosition(scene.items[0].transform.position() + QPointF(10.25, -3.0));
        QCOMPARE(exportRectangle(scene, true), documentRect(scene));
        QCOMPARE(exportRectangle(scene, false), QRectF(-40.5, -28.5, 102, 51));
        scene.items.clear();
        scene.documentSize = {10.2, 3.5};
        QCOMPARE(exportRectangle(scene, false).size(), QSizeF(11, 4));
    }

    void enlargesTheFinishedPictureOrGivesNoBytes()
    {
        const QImage picture = test::gradientPicture(20, 16);
        const SceneSnapshot scene = snapshotOf(picture);
        const QImage enlarged = QImage::fromData(exported(scene, {u"png"_s, kDefaultExportQuality, {40, 32}}));
        const QImage expected = picture.scaled(40, 32, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        QCOMPARE(test::maximumDifference(enlarged, expected), 0);
        QCOMPARE(QImage::fromData(exported(scene, {u"jpeg"_s, kDefaultExportQuality, {17, 99}})).size(), QSize(17, 99));

        Error tooWide;
        QVERIFY(!exportImage(scene, {u"webp"_s, kDefaultExportQuality, {16'384, 16}}, tooWide));
        QVERIFY2(tooWide.message().startsWith(u"Could not encode the saved image: "_s), qPrintable(tooWide.message()));
        const std::atomic_bool cancelled = true;
        Error none;
        QVERIFY(!exportImage(scene, {u"png"_s, kDefaultExportQuality, {20, 20}}, none, &cancelled));
        QVERIFY(!none.isSet());
    }

    void suffixesChooseFormats()
    {
        QCOMPARE(exportFormatKeyForFile(u"PHOTO.JPEG"_s, false), u"jpeg"_s);
        QCOMPARE(exportFormatKeyForFile(u"a.b.WebP"_s, true), u"webpTransparent"_s);
        QCOMPARE(exportFormatKeyForFile(u"a.jpg"_s, true), QString());
        for (const QString &other : {u"a.gif"_s, u"jpg"_s})
            QCOMPARE(exportFormatKeyForFile(other, false), QString());
        QVERIFY(!acceptsSuffix(exportFormat(u"jpeg"_s), u"png"_s));
    }

    void failedWritesLeaveNothing()
    {
        QTemporaryDir folder;
        Error none;
        QVERIFY(writeExportedImage(folder.filePath(u"a.png"_s), "bytes", none));
        QVERIFY(!none.isSet());
        Error noFolder;
        QVERIFY(!writeExportedImage(folder.filePath(u"none/a.png"_s), "bytes", noFolder));
        QVERIFY2(noFolder.message().startsWith(u"Could not save the image: "_s), qPrintable(noFolder.message()));
        Error folderItself;
        QVERIFY(!writeExportedImage(folder.path(), "bytes", folderItself));
        QVERIFY(folderItself.isSet());
        QVERIFY(QFile::link(u"/dev/null"_s, folder.filePath(u"device.png"_s)));
        Error device;
        QVERIFY(!writeExportedImage(folder.filePath(u"device.png"_s), "bytes", device));
        QCOMPARE(device.message(), u"Could not save the image: The target is not a regular file."_s);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::System | QDir::Hidden).size(), 2);
    }

    void jpegTagReplacesWhatWasThere()
    {
        const SceneSnapshot scene = snapshotOf(test::gradientPicture(20, 20));
        QByteArray file = exported(scene, {u"jpeg"_s, kDefaultExportQuality, {20, 20}});
        QCOMPARE(file.count("Exif"), 1);
        const qsizetype tiff = file.indexOf("Exif") + 6;
        // One entry: Software, ASCII, 16 bytes at offset 26 of the little-endian TIFF.
        QCOMPARE(file.sliced(tiff, 26).toHex(), "49492a0008000000010031010200100000001a00000000000000"_ba);
        QCOMPARE(file.sliced(tiff + 26, 16), QByteArray("Zelmora Atelier\0", 16));
        QVERIFY(embedSoftwareTag(file, "jpeg", u"Ex\u00e9"_s));
        QVERIFY(file.count("Exif") == 1 && file.contains("Ex??") && !file.contains("Zelmora"));
        QVERIFY(!QImage::fromData(file).isNull());
    }

    void webpTagKeepsTheOtherChunks()
    {
        const SceneSnapshot scene = snapshotOf(test::plainPicture(40, 20, QColor(9, 9, 9, 99)));
        for (const QString &key : {u"webp"_s, u"webpTransparent"_s}) {
            const QByteArray file = exported(scene, {key, kDefaultExportQuality, {40, 20}});
            const QByteArrayList names = chunkNames(file);
            QVERIFY2(names.startsWith("VP8X") && names.endsWith("EXIF"), names.join(' '));
            QCOMPARE(QImage::fromData(file).size(), QSize(40, 20));
        }
        QByteArray file = webpOf(kLossless + chunk("EXIF", "old") + chunk("XMP ", "odd") + chunk("ABCD", "kept!"));
        QVERIFY(embedSoftwareTag(file, "webp", u"Me"_s));
        QCOMPARE(chunkNames(file), QByteArrayList({"VP8X", "VP8L", "XMP ", "ABCD", "EXIF"}));
        // Alpha, Exif and XMP; 16 x 30 less one each, from the 14-bit fields of the lossless header.
        QCOMPARE(file.sliced(20, 10).toHex(), "1c0000000f00001d0000"_ba);
        QCOMPARE(qFromLittleEndian<quint32>(file.constData() + 4), quint32(file.size() - 8));
        QVERIFY(file.contains(chunk("ABCD", "kept!")));
    }

    void malformedContainersStayUntagged()
    {
        const std::pair<const char *, QByteArray> files[] = {
            {"png", "\x89PNG"},
            {"jpeg", "GIF89a"},
            {"jpeg", QByteArray("\xFF\xD8\xFF\xE0\x00\x10JF", 8)}, // cut in a segment
            {"jpeg", "\xFF\xD8"}, // no scan
            {"webp", webpOf(chunk("VP8X", QByteArray(9, '\0')) + kLossless)}, // one byte less than the header has
            {"webp", webpOf(kLossless) + "x"}, // wrong outer size
            {"webp", webpOf(kLossless.chopped(1))}, // the chunk overruns
            {"webp", webpOf(chunk("ABCD", "12"))}, // no picture
            {"webp", webpOf(chunk("VP8 ", QByteArray(10, '\1')))}, // bad start code
            {"webp", "RIFF"},
        };
        for (const auto &[format, bytes] : files) {
            QByteArray file = bytes;
            QVERIFY2(!embedSoftwareTag(file, format, u"Me"_s), bytes.toHex());
            QCOMPARE(file, bytes);
        }
    }
};

QTEST_GUILESS_MAIN(TestImageExport)
#include "tst_image_export.moc"
