#include "io/document/embedded_image.h"
#include "io/pictures/software_tag.h"
#include "support/file_bytes.h"
#include "support/pictures.h"

#include <QImageReader>
#include <QTest>

using namespace zm;
using namespace zm::test;
using namespace Qt::StringLiterals;

namespace {

constexpr auto kLossless = EmbeddedImageMode::Lossless;
constexpr auto kCompressed = EmbeddedImageMode::Compressed;

QByteArray encoded(const QImage &image, EmbeddedImageMode mode)
{
    Error error;
    return encodeWebp(image, mode, error).value_or(QByteArray());
}

QImage decoded(const QByteArray &file, const QSize &size = {})
{
    Error error;
    return decodeWebp(file, size, error).value_or(QImage());
}

/// A chunk with a pad byte where its size is odd.
QByteArray chunk(const QByteArray &name, const QByteArray &payload)
{
    return FileBytes(name).u32(quint32(payload.size())).bytes(payload).zeros(payload.size() & 1);
}

QByteArray webp(const QByteArray &chunks)
{
    return FileBytes("RIFF").u32(quint32(chunks.size() + 4)).bytes("WEBP" + chunks);
}

QByteArray canvas(quint8 flags, int width, int height)
{
    const QByteArray w = FileBytes().u32(quint32(width - 1));
    const QByteArray h = FileBytes().u32(quint32(height - 1));
    return chunk("VP8X", QByteArray(1, char(flags)) + QByteArray(3, '\0') + w.first(3) + h.first(3));
}

/// The picture as the one frame of an animation.
QByteArray animationOf(const QImage &image)
{
    const QByteArray sizes = canvas(0, image.width(), image.height()).sliced(12, 6);
    const QByteArray frame = QByteArray(6, '\0') + sizes + QByteArray(4, '\0') + encoded(image, kLossless).sliced(12);
    return webp(canvas(0x12, image.width(), image.height()) + chunk("ANIM", QByteArray(6, '\0'))
                + chunk("ANMF", frame));
}

/// Soft colours under an alpha of every value.
QImage softPicture()
{
    QImage picture(64, 64, QImage::Format_RGBA8888);
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x)
            picture.setPixel(x, y, qRgba(60 + x * 2, 60 + y * 2, 120, (x + y * 64) % 256));
    }
    return picture;
}

} // namespace

class TestEmbeddedImage : public QObject
{
    Q_OBJECT

private slots:
    void losslessKeepsEveryPixel_data()
    {
        QTest::addColumn<QImage>("picture");
        QTest::newRow("colour under transparent pixels") << noisePicture(61, 37, 1);
        QTest::newRow("one transparent pixel, less than 40 bytes") << plainPicture(1, 1, QColor(200, 10, 10, 0));
        QTest::newRow("opaque") << gradientPicture(40, 30);
        QTest::newRow("longest side") << noisePicture(16'383, 2, 2);
        QTest::newRow("longest height") << noisePicture(1, 16'383, 3);
        QTest::newRow("another format") << gradientPicture(9, 9).convertToFormat(QImage::Format_RGB888);
    }
    void losslessKeepsEveryPixel()
    {
        QFETCH(const QImage, picture);
        const QImage result = decoded(encoded(picture, kLossless), picture.size());
        QCOMPARE(result.format(), QImage::Format_RGBA8888);
        QCOMPARE(result, picture.convertToFormat(QImage::Format_RGBA8888));
    }

    void compressedKeepsAlphaAndNearlyTheColour()
    {
        const QImage picture = softPicture();
        const QByteArray file = encoded(picture, kCompressed);
        const QImage result = decoded(file, picture.size());
        QCOMPARE(result.convertToFormat(QImage::Format_Alpha8), picture.convertToFormat(QImage::Format_Alpha8));
        // Chroma of half the resolution and quality 90; transparent pixels are kept as well.
        const int difference = maximumDifference(result, picture);
        QVERIFY2(difference > 0 && difference <= 16, qPrintable(QString::number(difference)));
    }

    void refusesWhatNoWebpHolds()
    {
        const QImage longest(1, 16'384, QImage::Format_RGBA8888);
        const std::pair<QImage, EmbeddedImageMode> refused[] = {
            {QImage(), kLossless}, {longest, kCompressed}, {plainPicture(2, 2, Qt::red), EmbeddedImageMode::Raw}};
        for (const auto &[picture, mode] : refused) {
            Error error;
            QVERIFY(!encodeWebp(picture, mode, error));
            QCOMPARE(error.message(), u"An image cannot be represented as WebP."_s);
        }
        QVERIFY(fitsWebp({16'383, 6'103}));
        QVERIFY(!fitsWebp({16'383, 6'104}));
    }

    void badFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QSize>("expected");
        QTest::addColumn<QString>("message");
        const QString dimensions = u"An embedded WebP has invalid dimensions."_s;
        const QString decoding = u"Could not decode WebP: "_s;
        const QByteArray file = encoded(noisePicture(30, 20, 4), kLossless);
        const QByteArray compressed = encoded(softPicture(), kCompressed);
        QTest::newRow("nothing") << QByteArray() << QSize() << dimensions;
        QTest::newRow("another format") << QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(60, '\0') << QSize()
                                        << dimensions;
        QTest::newRow("another size") << file << QSize(20, 30) << dimensions;
        QTest::newRow("header alone") << file.first(20) << QSize(30, 20) << dimensions;
        QTest::newRow("cut") << file.first(file.size() - 40) << QSize(30, 20) << decoding;
        QTest::newRow("compressed, cut") << compressed.first(compressed.size() - 40) << QSize(64, 64) << decoding;
        QTest::newRow("too many pixels") << webp(
            chunk("VP8L", "\x2f" + QByteArray(FileBytes().u32(0x0FFFFFFF)) + QByteArray(60, '\0')))
                                         << QSize() << dimensions;
        QTest::newRow("canvas too wide") << webp(canvas(0, 16'384, 1) + file.sliced(12)) << QSize() << dimensions;
        QTest::newRow("canvas of another size")
            << webp(canvas(0, 31, 20) + file.sliced(12)) << QSize(31, 20) << decoding;
        QTest::newRow("canvas of nine bytes")
            << webp(chunk("VP8X", QByteArray(9, '\0')) + file.sliced(12)) << QSize() << dimensions;
    }
    void badFilesAreRefused()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const QSize, expected);
        QFETCH(const QString, message);
        Error error;
        QVERIFY(!decodeWebp(file, expected, error));
        QVERIFY2(error.message().startsWith(message), qPrintable(error.message()));
    }

    /// No cut is read, and damage is either told or leaves a picture of the size and format that was asked for.
    void damagedFilesAreReadOrRefused_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("lossless") << encoded(noisePicture(9, 7, 8), kLossless);
        QTest::newRow("compressed") << encoded(noisePicture(9, 7, 8), kCompressed);
        QTest::newRow("animation") << animationOf(gradientPicture(9, 7));
    }
    void damagedFilesAreReadOrRefused()
    {
        QFETCH(const QByteArray, file);
        const QSize size(9, 7);
        QVERIFY(!decoded(file, size).isNull());
        for (qsizetype at = 0; at < file.size(); ++at) {
            Error cutError;
            QVERIFY2(!sourceFromWebp(file.first(at), size, cutError), qPrintable(QString::number(at)));
            QVERIFY(cutError.isSet());
            for (const uchar flip : {0x01, 0x80, 0xFF}) {
                QByteArray damaged = file;
                damaged[at] = char(damaged[at] ^ flip);
                Error error;
                const std::optional<RasterImageSource> source = sourceFromWebp(damaged, size, error);
                QCOMPARE(source.has_value(), !error.isSet());
                if (source)
                    QVERIFY(source->image.size() == size && source->image.format() == QImage::Format_RGBA8888);
            }
        }
    }

    void qtsLimitDoesNotStandInTheWay()
    {
        const QImage picture = plainPicture(1000, 600, Qt::red);
        QImageReader::setAllocationLimit(1);
        QCOMPARE(decoded(encoded(picture, kLossless)), picture);
    }

    void unchangedPixelsKeepTheirFile_data()
    {
        QTest::addColumn<int>("mode");
        QTest::newRow("lossless") << int(kLossless);
        QTest::newRow("compressed") << int(kCompressed);
    }
    void unchangedPixelsKeepTheirFile()
    {
        QFETCH(const int, mode);
        const auto used = EmbeddedImageMode(mode);
        const auto other = used == kLossless ? kCompressed : kLossless;
        QByteArray file = encoded(softPicture(), used);
        QVERIFY(embedSoftwareTag(file, "webp", u"not what the encoder writes"_s));

        Error error;
        const std::optional<RasterImageSource> source = sourceFromWebp(file, {64, 64}, error);
        QVERIFY2(source, qPrintable(error.message()));
        QCOMPARE(source->image, decoded(file));
        QCOMPARE(webpFile(*source, used, error), file);
        const QByteArray inOtherMode = encoded(source->image, other);
        QCOMPARE(webpFile(*source, other, error), inOtherMode);
        QCOMPARE(source->encodings->find(source->image, other), inOtherMode);
        QCOMPARE(webpFile(*source, used, error), file);

        RasterImageSource painted = *source;
        painted.image.setPixel(0, 0, qRgba(1, 2, 3, 4));
        QCOMPARE(webpFile(painted, used, error), encoded(painted.image, used));
        QVERIFY(!error.isSet());
    }

    void animationsShowTheirFirstFrameAndAreNotKept()
    {
        const QImage picture = gradientPicture(12, 10);
        const QByteArray file = animationOf(picture);
        Error error;
        const std::optional<RasterImageSource> source = sourceFromWebp(file, picture.size(), error);
        QVERIFY2(source, qPrintable(error.message()));
        QCOMPARE(source->image, picture);
        QVERIFY(source->encodings->find(source->image, kLossless).isEmpty());
    }

    void rawPixelsHaveNoPadding()
    {
        // Rows of 12 bytes, of which 8 are pixels.
        const QByteArray rows("\1\2\3\4\5\6\7\0....\x9\xa\xb\xc\xd\xe\xf\x10....", 24);
        const QByteArray pixels = rows.sliced(0, 8) + rows.sliced(12, 8);
        const QImage padded(reinterpret_cast<const uchar *>(rows.constData()), 2, 2, 12, QImage::Format_RGBA8888);
        Error error;
        QCOMPARE(encodeRawRgba(padded, error), pixels);
        QCOMPARE(decodeRawRgba(pixels, {2, 2}, error), padded.copy());
        QVERIFY(!error.isSet());
    }

    void badRawPixelsAreRefused()
    {
        const QString dimensions = u"A raw RGBA image has invalid dimensions."_s;
        const QString length = u"A raw RGBA image has an invalid byte length."_s;
        const std::pair<QSize, QString> refused[] = {
            {{0, 2}, dimensions}, {{1'000'001, 1}, dimensions}, {{10'001, 10'000}, dimensions}, {{2, 2}, length},
            {{1, 1}, length},     {{10'000, 10'000}, length}};
        for (const auto &[size, message] : refused) {
            Error error;
            QVERIFY(!decodeRawRgba(QByteArray(8, '\0'), size, error));
            QCOMPARE(error.message(), message);
        }
        Error error;
        QVERIFY(!encodeRawRgba({}, error));
        QCOMPARE(error.message(), u"An image cannot be represented as raw RGBA data."_s);
    }
};

QTEST_GUILESS_MAIN(TestEmbeddedImage)
#include "tst_embedded_image.moc"
