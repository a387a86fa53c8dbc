#include "support/pictures.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

using namespace zm;
using namespace Qt::StringLiterals;

namespace {

struct Run
{
    int status = -1;
    QString output;
    QString errors;
};

/// Colour of the middle of a quarter of the picture, which lossy encoders keep nearly.
bool isNearly(const QColor &a, const QColor &b)
{
    return std::abs(a.red() - b.red()) < 12 && std::abs(a.green() - b.green()) < 12
        && std::abs(a.blue() - b.blue()) < 12 && std::abs(a.alpha() - b.alpha()) < 12;
}

} // namespace

/// Drives the real program in a folder of its own, whose files are photo.jpg, drawing.svg and some broken ones.
class TestZelmora : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        QVERIFY(test::gradientPicture(300, 201).save(path("photo.jpg"), "jpeg", 95));
        QVERIFY(test::plainPicture(40, 40, QColor(0, 0, 255, 128)).save(path("glass.png")));
        QVERIFY(test::plainPicture(4, 4, Qt::green).save(path("tiny.png")));
        write("drawing.svg",
              "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'>"
              "<rect width='64' height='48' fill='#f00'/></svg>");
        write("empty.png", {});
        QFile photo(path("photo.jpg"));
        QVERIFY(photo.open(QIODevice::ReadOnly));
        write("cut.jpg", photo.readAll().first(photo.size() / 2));
        QFile glass(path("glass.png"));
        QVERIFY(glass.open(QIODevice::ReadOnly));
        write("cut.png", glass.readAll().chopped(20));
        QVERIFY(QDir(m_folder->path()).mkdir(u"folder.png"_s));
        m_before = listing();
    }

    void failuresAreOneLineAndLeaveNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("errors");
        const auto row = [](const char *name, const QString &arguments, const QString &errors) {
            QTest::newRow(name) << arguments.split(u' ') << errors;
        };
        const QString cannotLoad = u"Could not load the selected image file."_s;
        const QString notAFile = u"Choose an existing file."_s;
        row("missing", u"export none.png out.jpg"_s, u"none.png: "_s + notAFile);
        row("folder as input", u"export folder.png out.jpg"_s, u"folder.png: "_s + notAFile);
        row("empty", u"export empty.png out.jpg"_s, u"empty.png: "_s + cannotLoad);
        row("cut jpeg", u"export cut.jpg out.jpg"_s, u"cut.jpg: "_s + cannotLoad);
        row("cut png", u"export cut.png out.jpg"_s, u"cut.png: "_s + cannotLoad);
        row("cut jpeg, told without decoding", u"info --no-digest cut.jpg"_s, u"cut.jpg: "_s + cannotLoad);
        row("cut png, told", u"info --json cut.png"_s, u"cut.png: "_s + cannotLoad);
        row("folder as target", u"export photo.jpg folder.png"_s,
            u"folder.png: Could not save the image: Filename refers to a directory"_s);
        row("target in no folder", u"export photo.jpg none/out.png"_s,
            u"none/out.png: Could not save the image: No such file or directory"_s);
        row("into no folder", u"export --into none photo.jpg"_s,
            u"none/photo.jpg: Could not save the image: No such file or directory"_s);
        row("sheet in no folder", u"shapes none/sheet.png"_s,
            u"none/sheet.png: Could not save the image: No such file or directory"_s);
        row("batch over its own input", u"export --into . photo.jpg"_s,
            u"photo.jpg: The output ./photo.jpg would replace another file of this call."_s);
    }

    void failuresAreOneLineAndLeaveNothing()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, errors);
        const Run run = zelmora(arguments);
        QCOMPARE(run.errors, u"zelmora: %1\n"_s.arg(errors));
        QCOMPARE(run.status, 1);
        QCOMPARE(run.output, QString());
        QCOMPARE(listing(), m_before);
    }

    void wrongUsageIsStatusTwoWithTheUsageLine_data()
    {
        QTest::addColumn<QString>("arguments");
        for (const char *arguments : {"",
                                      "paint photo.jpg",
                                      "info",
                                      "info --verbose photo.jpg",
                                      "info --json=yes photo.jpg",
                                      "export photo.jpg",
                                      "export a b c.png",
                                      "export photo.jpg out.gif",
                                      "export photo.jpg out",
                                      "export --quality 101 photo.jpg o.jpg",
                                      "export --quality photo.jpg",
                                      "export --width 15 photo.jpg o.jpg",
                                      "export --height 8193 photo.jpg o.jpg",
                                      "export --max-side big photo.jpg o.jpg",
                                      "export --transparent photo.jpg o.jpg",
                                      "export --into",
                                      "export --into folder.png",
                                      "export --into . --format gif photo.jpg",
                                      "export --format png photo.jpg o.png",
                                      "export --into . --transparent photo.jpg",
                                      "shapes",
                                      "shapes sheet.svg",
                                      "shapes --set spikes=7 sheet.png",
                                      "shapes --generator star5 star.jpg",
                                      "shapes --generator star star.png",
                                      "shapes --generator star5 --set rays=7 star.png",
                                      "shapes --generator star5 --set spikes star.png",
                                      "shapes --generator star5 --set spikes=many star.png",
                                      "shapes --generator star5 --set tipRoundness=nan star.png",
                                      "shapes --generator star5 --size 0x10 star.png",
                                      "shapes --generator star5 --size 9000x10 star.png"})
            QTest::newRow(*arguments ? arguments : "nothing") << QString::fromLatin1(arguments);
    }

    void wrongUsageIsStatusTwoWithTheUsageLine()
    {
        QFETCH(QString, arguments);
        const Run run = zelmora(arguments.split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(run.status, 2);
        QVERIFY2(run.errors.startsWith("zelmora: "_L1) && run.errors.contains("\nusage: zelmora "_L1),
                 qPrintable(run.errors));
        QCOMPARE(run.output, QString());
        QCOMPARE(listing(), m_before);
    }

    void picturesAreExported_data()
    {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QColor>("middle");
        const auto row = [](const QString &arguments, const char *format, const QSize &size, const QColor &middle) {
            QTest::newRow(qPrintable(arguments)) << arguments << QByteArray(format) << size << middle;
        };
        row(u"photo.jpg out.jpg"_s, "jpeg", {300, 201}, {});
        row(u"photo.jpg out.WEBP"_s, "webp", {300, 201}, {});
        row(u"--quality=40 photo.jpg out.jpeg"_s, "jpeg", {300, 201}, {});
        row(u"photo.jpg --width 150 out.png"_s, "png", {150, 101}, {});
        row(u"--height 402 photo.jpg out.png"_s, "png", {600, 402}, {});
        row(u"--max-side 100 photo.jpg out.webp"_s, "webp", {100, 67}, {});
        row(u"--max-side 1000 photo.jpg out.png"_s, "png", {300, 201}, {});
        row(u"--width 1000 --max-side 60 photo.jpg out.png"_s, "png", {60, 40}, {});
        row(u"--width 1000 --height 500 --max-side 100 photo.jpg out.png"_s, "png", {100, 50}, {});
        row(u"--width 64 --height 64 photo.jpg out.png"_s, "png", {64, 64}, {});
        row(u"tiny.png out.png"_s, "png", {16, 16}, Qt::green);
        row(u"drawing.svg out.jpg"_s, "jpeg", {64, 48}, Qt::red);
        row(u"--unclipped drawing.svg out.png"_s, "png", {64, 48}, Qt::red);
        row(u"glass.png out.png"_s, "png", {40, 40}, QColor(127, 127, 255));
        row(u"glass.png out.jpg"_s, "jpeg", {40, 40}, QColor(127, 127, 255));
        row(u"--transparent glass.png out.png"_s, "png", {40, 40}, QColor(0, 0, 255, 128));
        row(u"--transparent glass.png out.webp"_s, "webp", {40, 40}, QColor(0, 0, 255, 128));
    }

    void picturesAreExported()
    {
        QFETCH(QString, arguments);
        QFETCH(QByteArray, format);
        QFETCH(QSize, size);
        QFETCH(QColor, middle);
        const QStringList words = arguments.split(u' ');
        write(words.last().toUtf8(), "replaced");
        const Run run = zelmora(QStringList(u"export"_s) + words);
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.output, QString());
        QCOMPARE(run.status, 0);
        QImage result;
        QVERIFY(result.load(path(words.last().toUtf8()), format.constData()));
        QCOMPARE(result.size(), size);
        if (middle.isValid()) {
            const QColor seen = result.pixelColor(size.width() / 2, size.height() / 2);
            QVERIFY2(isNearly(seen, middle), qPrintable(seen.name(QColor::HexArgb)));
        }
        QCOMPARE(listing().size(), m_before.size() + 1);
    }

    void orientationIsAppliedOnce()
    {
        QFile photo(path("photo.jpg"));
        QVERIFY(photo.open(QIODevice::ReadOnly));
        // An Exif block of one entry, orientation 6: to be turned a quarter clockwise for viewing.
        const QByteArray exif = QByteArray::fromHex("ffe10022457869660000"
                                                    "4d4d002a00000008000101120003000000010006000000000000");
        write("turned.jpg", photo.readAll().insert(2, exif));
        QCOMPARE(zelmora({u"export"_s, u"turned.jpg"_s, u"out.jpg"_s}).status, 0);
        const QImage result(path("out.jpg"));
        QCOMPARE(result.size(), QSize(201, 300));
        QVERIFY(result.pixelColor(100, 20).red() < result.pixelColor(100, 280).red());
        QVERIFY(result.pixelColor(20, 150).green() > result.pixelColor(180, 150).green());
    }

    void oneBadInputDoesNotStopTheOthers()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"out"_s));
        const Run run = zelmora({u"export"_s, u"--into"_s, u"out"_s, u"--format"_s, u"webp"_s, u"photo.jpg"_s,
                                 u"empty.png"_s, u"tiny.png"_s, u"./tiny.png"_s});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.errors,
                 u"zelmora: ./tiny.png: The output out/tiny.webp would replace another file of this call.\n"
                 "zelmora: empty.png: Could not load the selected image file.\n"_s);
        QCOMPARE(QDir(path("out")).entryList(QDir::Files), QStringList({u"photo.webp"_s, u"tiny.webp"_s}));
    }

    void aFullDiskLeavesTheOldFile()
    {
        write("out.png", "old");
        QProcess process;
        // Stands for a full disk: no file may grow beyond 1000 bytes.
        process.setChildProcessModifier([] {
            const rlimit limit{1000, 1000};
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN);
        });
        const Run run = finished(process, {u"export"_s, u"photo.jpg"_s, u"out.png"_s});
        QCOMPARE(run.status, 1);
        QVERIFY2(run.errors.startsWith("zelmora: out.png: Could not save the image: "_L1), qPrintable(run.errors));
        QFile file(path("out.png"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "old"_ba);
        QCOMPARE(listing().size(), m_before.size() + 1);
    }

    void anOutputThatCannotTakeResultsIsAFailure()
    {
        QProcess process;
        process.setStandardOutputFile(u"/dev/full"_s);
        const Run run = finished(process, {u"info"_s, u"tiny.png"_s});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.errors, u"zelmora: standard output: The result could not be written.\n"_s);
    }

    void infoTellsTheSchema()
    {
        const Run run = zelmora({u"info"_s, u"--json"_s, u"glass.png"_s, u"drawing.svg"_s});
        QCOMPARE(run.status, 0);
        const QStringList lines = run.output.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        const QJsonObject glass = QJsonDocument::fromJson(lines[0].toUtf8()).object();
        QCOMPARE(glass["file"_L1].toString(), u"glass.png"_s);
        QCOMPARE(glass["size"_L1].toArray(), QJsonArray({40, 40}));
        QCOMPARE(glass["background"_L1].toArray(), QJsonArray({1, 1, 1, 1}));
        QCOMPARE(glass["layers"_L1].toArray().size(), 1);
        const QJsonValue layer = glass["layers"_L1][0];
        QCOMPARE(layer["name"_L1].toString(), u"glass"_s);
        QCOMPARE(layer["type"_L1].toString(), u"image"_s);
        QCOMPARE(layer["blendMode"_L1].toString(), u"source-over"_s);
        QCOMPARE(layer["transform"_L1]["position"_L1].toArray(), QJsonArray({-20, -20}));
        QVERIFY(!QUuid::fromString(layer["id"_L1].toString()).isNull());
        QByteArray pixels;
        for (int i = 0; i < 40 * 40; ++i)
            pixels.append("\x00\x00\xFF\x80", 4);
        QCOMPARE(layer["image"_L1]["sha256"_L1].toString().toLatin1(),
                 QCryptographicHash::hash(pixels, QCryptographicHash::Sha256).toHex());
        const QJsonObject drawing = QJsonDocument::fromJson(lines[1].toUtf8()).object();
        QCOMPARE(drawing["layers"_L1][0]["image"_L1]["encoding"_L1].toString(), u"svg"_s);

        const Run quick = zelmora({u"info"_s, u"--json"_s, u"--no-digest"_s, u"photo.jpg"_s});
        const QJsonObject photo = QJsonDocument::fromJson(quick.output.toUtf8()).object();
        const QJsonObject image = photo["layers"_L1][0]["image"_L1].toObject();
        QVERIFY(!image.contains("sha256"_L1));
        QCOMPARE(image["pixelSize"_L1].toArray(), QJsonArray({300, 201}));
        QVERIFY(zelmora({u"info"_s, u"photo.jpg"_s}).output.contains("300 x 201"_L1));
    }

    void shapesAreDrawn()
    {
        const Run sheet = zelmora({u"shapes"_s, u"sheet.png"_s});
        QCOMPARE(sheet.errors, QString());
        QCOMPARE(sheet.status, 0);
        QVERIFY(QImage(path("sheet.png")).pixelColor(0, 0).lightness() > 200);

        const QStringList star{u"shapes"_s, u"--generator"_s, u"star5"_s,
                               u"--set"_s,  u"spikes=3"_s,    u"--set=spikes=4"_s};
        QCOMPARE(zelmora(star + QStringList{u"star.png"_s}).status, 0);
        const QImage large(path("star.png"));
        QCOMPARE(large.size(), QSize(400, 400));
        QCOMPARE(large.pixelColor(200, 200), QColor(0xff, 0xdf, 0x00));
        QCOMPARE(large.pixelColor(0, 0).alpha(), 0);

        QCOMPARE(zelmora(star + QStringList{u"--size"_s, u"200x80"_s, u"star.svg"_s}).status, 0);
        QFile file(path("star.svg"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray svg = file.readAll();
        QVERIFY(svg.contains(R"(viewBox="0 0 200 80")") && svg.contains(R"(stroke="#222222")"));
        QCOMPARE(svg.count("L "), 7 + 1); // the last of the two values holds: four rays and the way back
        QCOMPARE(zelmora({u"export"_s, u"--transparent"_s, u"star.svg"_s, u"drawn.png"_s}).status, 0);
        const QImage drawn(path("drawn.png"));
        QCOMPARE(drawn.size(), QSize(200, 80));
        QCOMPARE(drawn.pixelColor(100, 40), QColor(0xff, 0xdf, 0x00));
        QCOMPARE(drawn.pixelColor(50, 40).alpha(), 0);
        QCOMPARE(listing().size(), m_before.size() + 4);
    }

    void helpAndVersionAreResults()
    {
        const Run help = zelmora({u"--help"_s});
        QCOMPARE(help.status, 0);
        QVERIFY(help.output.contains("zelmora export"_L1) && help.errors.isEmpty());
        QCOMPARE(zelmora({u"export"_s, u"--help"_s}).output, help.output);
        const Run version = zelmora({u"--version"_s});
        QCOMPARE(version.status, 0);
        QVERIFY(version.output.startsWith("zelmora "_L1) && version.output.endsWith(u'\n'));
    }

    void namesThatLookLikeOptionsFollowTheDoubleDash()
    {
        QVERIFY(QFile::copy(path("tiny.png"), path("--help")));
        QCOMPARE(zelmora({u"export"_s, u"--"_s, u"--help"_s, u"out.png"_s}).status, 0);
        QVERIFY(QFile::exists(path("out.png")));
    }

    void anyEnvironmentWillDo_data()
    {
        QTest::addColumn<QStringList>("environment");
        QTest::newRow("none at all") << QStringList();
        QTest::newRow("a display that does not answer") << QStringList(u"DISPLAY=:4711"_s);
        QTest::newRow("another platform") << QStringList(u"QT_QPA_PLATFORM=minimal"_s);
        QTest::newRow("a platform with windows, and no display") << QStringList(u"QT_QPA_PLATFORM=xcb"_s);
        QTest::newRow("a platform that does not exist") << QStringList(u"QT_QPA_PLATFORM=bogus"_s);
        QTest::newRow("an empty platform") << QStringList(u"QT_QPA_PLATFORM="_s);
        QTest::newRow("a locale without UTF-8") << QStringList({u"LC_ALL=C"_s, u"HOME=/none"_s});
    }

    void anyEnvironmentWillDo()
    {
        QFETCH(QStringList, environment);
        write("text.svg",
              "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'>"
              "<text y='40' font-size='40'>Text</text></svg>");
        write("x.zelmora", "not yet a document"); // asks for OpenGL before it is looked at
        QProcess process;
        process.setEnvironment(environment);
        const Run run = finished(process, {u"export"_s, u"text.svg"_s, u"out.png"_s});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.status, 0);
        QVERIFY(QImage(path("out.png")).convertToFormat(QImage::Format_Grayscale8)
                != test::plainPicture(64, 48, Qt::white).convertToFormat(QImage::Format_Grayscale8));
        QProcess second;
        second.setEnvironment(environment);
        QCOMPARE(finished(second, {u"info"_s, u"x.zelmora"_s}).errors,
                 u"zelmora: x.zelmora: Could not load the selected image file.\n"_s);
    }

private:
    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }

    void write(const QByteArray &name, const QByteArray &bytes) const
    {
        QFile file(path(name.constData()));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    QStringList listing() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    Run zelmora(const QStringList &arguments) const
    {
        QProcess process;
        return finished(process, arguments);
    }

    Run finished(QProcess &process, const QStringList &arguments) const
    {
        process.setWorkingDirectory(m_folder->path());
        process.start(QStringLiteral(ZELMORA_PROGRAM), arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_before;
};

QTEST_GUILESS_MAIN(TestZelmora)
#include "tst_zelmora.moc"
