#include "generators/bundled_texture_loader.h"
#include "services/user_notification_center.h"
#include "support/textures.h"

#include <QDirIterator>
#include <QResource>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace Qt::StringLiterals;
using namespace zm;

namespace {

const QString kBundles = zm::test::textureFolder();

void write(const QString &path, const QByteArray &bytes)
{
    QVERIFY(QFileInfo(path).dir().mkpath(u"."_s));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

QStringList codes(const DiskTextureLoader &loader)
{
    QStringList result;
    for (const TextureFailure &failure : loader.failures())
        result.append(failure.code);
    return result;
}

/// The average difference of a channel between two neighbouring columns (or rows), the last one's being the first.
double stepAfter(const QImage &image, int line, bool column, int channel)
{
    const int size = image.width();
    const int next = (line + 1) % size;
    double sum = 0.0;
    for (int i = 0; i < size; ++i) {
        const auto value = [&](int at) {
            return int(column ? image.constScanLine(i)[4 * at + channel] : image.constScanLine(at)[4 * i + channel]);
        };
        sum += std::abs(value(line) - value(next));
    }
    return sum / size;
}

} // namespace

class TestTextureLoader : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(m_folder.isValid()); }

    void unsafePathsAreRefused_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("empty") << u""_s;
        QTest::newRow("parent") << u".."_s;
        QTest::newRow("above") << u"../secret.png"_s;
        QTest::newRow("up and down") << u"a/../secret.png"_s;
        QTest::newRow("absolute") << m_folder.filePath(u"secret.png"_s);
        QTest::newRow("resource") << u":/textures/secret.png"_s;
    }

    void unsafePathsAreRefused()
    {
        QFETCH(QString, path);
        picture().save(m_folder.filePath(u"secret.png"_s));
        QVERIFY(QDir(m_folder.path()).mkpath(u"root/a"_s));
        BundledTextureLoader loader({m_folder.path()}, {m_folder.filePath(u"root"_s), m_folder.filePath(u"root/a"_s)});
        QVERIFY(loader.loadImage(path).isNull());
        QVERIFY(loader.loadData(path).isEmpty());
        QCOMPARE(codes(loader), QStringList({u"invalid:"_s + path, u"data-invalid:"_s + path}));
    }

    void rootsAreSearchedInOrder()
    {
        const QString first = m_folder.filePath(u"first"_s);
        const QString second = m_folder.filePath(u"second"_s);
        write(first + "/f/x.txt"_L1, "1");
        write(second + "/f/x.txt"_L1, "2");
        write(second + "/f/y.txt"_L1, "3");
        write(second + "/f/empty.txt"_L1, "");
        DiskTextureLoader loader({u" "_s, first, second});
        QCOMPARE(loader.loadData(u"f/x.txt"_s), "1");
        QCOMPARE(loader.loadData(u"f/y.txt"_s), "3");
        QCOMPARE(loader.loadData(QStringList{u"../x"_s, u"f/none"_s, u"f/y.txt"_s, u"f/x.txt"_s}), "3");
        QVERIFY(loader.loadData(u"f/empty.txt"_s).isEmpty());
        QCOMPARE(codes(loader), QStringList({u"data-invalid:../x"_s, u"data-read:f/empty.txt"_s}));
        QVERIFY(loader.failures().constLast().text.endsWith("file is empty"_L1));
    }

    void missingTextureIsToldOnceWithEachRoot()
    {
        QSignalSpy toasts(&UserNotificationCenter::instance(), &UserNotificationCenter::toastRequested);
        DiskTextureLoader loader({u"/nowhere"_s, u"  "_s, u"/elsewhere"_s});
        QVERIFY(loader.loadImage(u"f/none.png"_s).isNull());
        QVERIFY(loader.loadImage(u"f/none.png"_s).isNull());
        QVERIFY(loader.loadData(u"f/none.png"_s).isEmpty());
        QVERIFY(loader.loadData(QStringList{u"a"_s, u"b"_s}).isEmpty());
        loader.setSearchRoots({});
        QVERIFY(loader.loadImage(u"f/other.png"_s).isNull());
        const QList<TextureFailure> expected = {
            {u"missing:f/none.png"_s, u"Texture image not found: f/none.png (searched: /nowhere, /elsewhere)"_s},
            {u"data-missing:f/none.png"_s, u"Texture data not found: f/none.png (searched: /nowhere, /elsewhere)"_s},
            {u"data-candidates-missing:a, b:/nowhere, /elsewhere"_s,
             u"Texture data not found for any candidate: a, b (searched: /nowhere, /elsewhere)"_s},
            {u"missing:f/other.png"_s, u"Texture image not found: f/other.png (searched: <none>)"_s},
        };
        QCOMPARE(loader.failures(), expected);
        QCOMPARE(toasts.size(), expected.size());
        QCOMPARE(toasts.constFirst().constFirst().toString(), expected.constFirst().text);
    }

    void damagedPictureIsTold()
    {
        const QString path = m_folder.filePath(u"damaged/f/x.png"_s);
        QVERIFY(QFileInfo(path).dir().mkpath(u"."_s) && picture().save(path));
        QFile file(path);
        QVERIFY(file.resize(file.size() / 2));
        DiskTextureLoader loader({m_folder.filePath(u"damaged"_s)});
        QVERIFY(loader.loadImage(u"f/x.png"_s).isNull());
        QCOMPARE(codes(loader), QStringList(u"decode:f/x.png"_s));
        QVERIFY(loader.failures().constFirst().text.startsWith("Unable to load texture image f/x.png from "_L1 + path));

        QVERIFY(picture().save(path)); // repaired while the program runs
        QCOMPARE(loader.loadImage(u"f/x.png"_s), picture());
    }

    void picturesAreDecodedOnceUntilTheRootsChange()
    {
        const QString path = m_folder.filePath(u"kept/f/x.png"_s);
        QVERIFY(QFileInfo(path).dir().mkpath(u"."_s) && picture().save(path));
        DiskTextureLoader loader({m_folder.filePath(u"kept"_s)});
        const qint64 key = loader.loadImage(u"f/x.png"_s).cacheKey();
        QCOMPARE(loader.loadImage(u"f/x.png"_s).cacheKey(), key);
        loader.setSearchRoots({});
        QVERIFY(loader.loadImage(u"f/x.png"_s).isNull());
    }

    void bundleIsSearchedOnce()
    {
        QVERIFY(QFile::exists(kBundles + "/zelmoraatelier-textures-pencil.rcc"_L1));
        const QString late = m_folder.filePath(u"late"_s);
        const QString file = late + "/zelmoraatelier-textures-pencil.rcc"_L1;
        const auto path = u"pencil/graphite-hatching.png"_s;
        BundledTextureLoader early({u""_s, late}, {});
        QVERIFY(early.loadImage(path).isNull());
        write(file, "no bundle");
        BundledTextureLoader damaged({late, kBundles}, {});
        QTest::ignoreMessage(QtWarningMsg, qUtf8Printable(u"Unable to register texture resource bundle: "_s + file));
        QVERIFY(damaged.loadImage(path).isNull()); // the first file is the bundle, be it good or not
        QVERIFY(QFile::remove(file) && QFile::copy(kBundles + "/zelmoraatelier-textures-pencil.rcc"_L1, file));
        QVERIFY(early.loadImage(path).isNull());
        QVERIFY(damaged.loadImage(path).isNull());
        QVERIFY(!BundledTextureLoader({late}, {}).loadImage(path).isNull());
    }

    void everyTextureTiles_data()
    {
        QTest::addColumn<QString>("path");
        for (const auto &family : {u"scratch-mask"_s, u"star-mask"_s, u"pencil"_s}) {
            QVERIFY(
                QResource::registerResource(kBundles + "/zelmoraatelier-textures-%1.rcc"_L1.arg(family), u"/listed"_s));
            QDirIterator files(u":/listed/textures/"_s + family, QDir::Files);
            QVERIFY(files.hasNext());
            while (files.hasNext()) {
                const QString path = family + u'/' + QFileInfo(files.next()).fileName();
                QTest::newRow(qUtf8Printable(path)) << path;
            }
        }
    }

    void everyTextureTiles()
    {
        QFETCH(QString, path);
        BundledTextureLoader loader({kBundles}, {});
        const QImage image = loader.loadImage(path);
        QVERIFY2(loader.failures().isEmpty(), "the texture loads");
        QCOMPARE(image.format(), QImage::Format_RGBA8888);
        QCOMPARE(image.width(), image.height());
        const int channel = path.startsWith("pencil/"_L1) ? 0 : 3;
        for (const bool column : {true, false}) {
            std::vector<double> inside;
            for (int line = 0; line + 1 < image.width(); ++line)
                inside.push_back(stepAfter(image, line, column, channel));
            std::sort(inside.begin(), inside.end());
            QCOMPARE_GT(inside.back(), 0.0);
            // An edge that does not continue stands out among the sharpest twentieth.
            QCOMPARE_LE(stepAfter(image, image.width() - 1, column, channel), inside[inside.size() * 95 / 100]);
        }
    }

    /// With so many pixels of each grey, a tone of any darkness gets its share of graphite.
    void hatchingHoldsEveryGreyEquallyOften()
    {
        const QImage image = BundledTextureLoader({kBundles}, {}).loadImage(u"pencil/graphite-hatching.png"_s);
        QList<int> counts(256);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                ++counts[image.constScanLine(y)[4 * x]];
        }
        const double share = double(image.width()) * image.height() / 255.0; // rounding halves the first and the last
        for (int grey = 1; grey < 255; ++grey)
            QCOMPARE_LT(std::abs(counts[grey] - share), 0.02 * share);
    }

private:
    static QImage picture()
    {
        QImage image(40, 40, QImage::Format_RGBA8888);
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 40; ++x)
                image.setPixelColor(x, y, QColor(x * 6, y * 6, (x * y) % 256, 255 - x));
        }
        return image;
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestTextureLoader)
#include "tst_texture_loader.moc"
