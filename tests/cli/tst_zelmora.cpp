#include "program_driver.h"
#include "support/pictures.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonArray>
#include <QUuid>

#include <csignal>
#include <sys/resource.h>

using namespace zm;
using test::Run;
using namespace Qt::StringLiterals;

/// Drives the real program in a folder of its own, whose files are photo.jpg, drawing.svg and some broken ones.
class TestZelmora : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_program = std::make_unique<test::ProgramDriver>();
        QVERIFY(test::gradientPicture(300, 201).save(path("photo.jpg"), "jpeg", 95));
        QVERIFY(test::plainPicture(40, 40, QColor(0, 0, 255, 128)).save(path("glass.png")));
        QVERIFY(test::plainPicture(4, 4, Qt::green).save(path("tiny.png")));
        QVERIFY(QFile::copy(path("tiny.png"), path("--help")));
        write("drawing.svg",
              "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'>"
              "<rect width='64' height='48' fill='#f00'/></svg>");
        write("empty.png", {});
        const QByteArray photo = read("photo.jpg");
        write("cut.jpg", photo.first(photo.size() / 2));
        write("cut.png", read("glass.png").chopped(20));
        QVERIFY(m_program->makeFolder("folder.png"));
        m_before = listing();
    }

    void failuresAreOneLineAndLeaveNothing()
    {
        const char *const rows[][2] = {
            {"export none.png out.jpg", "none.png: Choose an existing file."},
            {"export folder.png out.jpg", "folder.png: Choose an existing file."},
            {"export empty.png out.jpg", "empty.png: Could not load the selected image file."},
            {"export cut.jpg out.jpg", "cut.jpg: Could not load the selected image file."},
            {"export cut.png out.jpg", "cut.png: Could not load the selected image file."},
            {"info --no-digest cut.jpg", "cut.jpg: Could not load the selected image file."},
            {"info --json cut.png", "cut.png: Could not load the selected image file."},
            {"export photo.jpg folder.png", "folder.png: Could not save the image: Filename refers to a directory"},
            {"export photo.jpg none/out.png", "none/out.png: Could not save the image: No such file or directory"},
            {"export --into photo.jpg tiny.png", "photo.jpg: Could not make the folder: Not a directory"},
            {"convert --into photo.jpg/out tiny.png", "photo.jpg/out: Could not make the folder: Not a directory"},
            {"effects --sheet photo.jpg/out tiny.png", "photo.jpg/out: Could not make the folder: Not a directory"},
            {"convert photo.jpg none/out.zelmora",
             "none/out.zelmora: Could not open none/out.zelmora for writing: No such file or directory"},
            {"convert empty.png out.zelmora", "empty.png: Could not load the selected image file."},
            {"export none.ZELMORA out.jpg",
             "none.ZELMORA: Could not open none.ZELMORA for reading: No such file or directory"},
            {"shapes none/sheet.png", "none/sheet.png: Could not save the image: No such file or directory"},
            {"apply --effect bevel cut.jpg out.jpg", "cut.jpg: Could not load the selected image file."},
            {"apply --effect bevel photo.jpg none/out.png",
             "none/out.png: Could not save the image: No such file or directory"},
            {"effects --sheet . none.png", "none.png: Choose an existing file."},
            {"export --into . photo.jpg", "photo.jpg: The output ./photo.jpg would replace another file of this call."},
        };
        for (const auto &[arguments, errors] : rows) {
            QCOMPARE(zelmora(arguments), Run(1, {}, u"zelmora: %1\n"_s.arg(QLatin1StringView(errors))));
            QCOMPARE(listing(), m_before);
        }
    }

    void wrongUsageIsStatusTwoWithTheUsageLine()
    {
        const QList<std::pair<QByteArray, QByteArrayList>> wrong{
            {"",
             {"", "paint photo.jpg", "info", "info --verbose photo.jpg", "info --json=yes photo.jpg", "shapes",
              "shapes sheet.svg", "shapes --set spikes=7 sheet.png", "shapes --generator star star.png"}},
            {"export ",
             {"photo.jpg", "a b c.png", "photo.jpg out.gif", "photo.jpg out", "--quality 101 photo.jpg o.jpg",
              "--quality photo.jpg", "--width 15 photo.jpg o.jpg", "--height 8193 photo.jpg o.jpg",
              "--max-side big photo.jpg o.jpg", "--transparent photo.jpg o.jpg", "--format png photo.jpg o.png"}},
            {"export --into ", {"", "folder.png", ". --format gif photo.jpg", ". --transparent photo.jpg"}},
            {"convert ",
             {"photo.jpg", "photo.jpg out.png", "--into .", "--into", "--quality 90 photo.jpg out.zelmora"}},
            {"apply ",
             {"photo.jpg out.png", "--effect bevel photo.jpg", "--effect bevel photo.jpg out.gif",
              "--set size=2 --effect bevel photo.jpg out.png", "--effect bevil photo.jpg out.png",
              "--effect bevel --set sise=2 photo.jpg out.png", "--effect bevel --set size=big photo.jpg out.png"}},
            {"effects ", {"photo.jpg", "--sheet .", "--sheet . --json photo.jpg"}},
            {"shapes --generator star5 ",
             {"star.jpg", "--set rays=7 star.png", "--set spikes star.png", "--set spikes=many star.png",
              "--set tipRoundness=nan star.png", "--size 0x10 star.png", "--size 9000x10 star.png"}}};
        for (const auto &[start, ends] : wrong) {
            for (const QByteArray &end : ends) {
                const Run run = zelmora(start + end);
                QVERIFY2(run.status == 2 && run.output.isEmpty(), start + end);
                QVERIFY2(run.errors.startsWith("zelmora: "_L1) && run.errors.contains("\nusage: zelmora "_L1),
                         start + end);
                QCOMPARE(listing(), m_before);
            }
        }
    }

    void picturesAreExported_data()
    {
        QTest::addColumn<QByteArray>("format");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QColor>("middle");
        const auto row = [](const char *arguments, const char *format, const QSize &size, const QColor &middle = {}) {
            QTest::newRow(arguments) << QByteArray(format) << size << middle;
        };
        row("--quality=40 photo.jpg out.jpeg", "jpeg", {300, 201});
        row("photo.jpg --width 150 out.png", "png", {150, 101});
        row("--height 402 photo.jpg out.png", "png", {600, 402});
        row("--max-side 100 photo.jpg out.WEBP", "webp", {100, 67});
        row("--max-side 1000 photo.jpg out.png", "png", {300, 201});
        row("--width 1000 --max-side 60 photo.jpg out.png", "png", {60, 40});
        row("--width 1000 --height 500 --max-side 100 photo.jpg out.png", "png", {100, 50});
        row("tiny.png out.png", "png", {16, 16}, Qt::green);
        row("-- --help out.png", "png", {16, 16}, Qt::green);
        row("--unclipped drawing.svg out.png", "png", {64, 48}, Qt::red);
        row("glass.png out.png", "png", {40, 40}, QColor(127, 127, 255));
        row("glass.png out.jpg", "jpeg", {40, 40}, QColor(127, 127, 255));
        row("--transparent glass.png out.png", "png", {40, 40}, QColor(0, 0, 255, 128));
        row("--transparent glass.png out.webp", "webp", {40, 40}, QColor(0, 0, 255, 128));
    }

    void picturesAreExported()
    {
        QFETCH(QByteArray, format);
        QFETCH(QSize, size);
        QFETCH(QColor, middle);
        const QByteArray arguments = QTest::currentDataTag();
        const QByteArray target = arguments.split(' ').last();
        write(target, "replaced");
        QCOMPARE(zelmora("export " + arguments), Run(0));
        QImage result;
        QVERIFY(result.load(path(target), format.constData()));
        QCOMPARE(result.size(), size);
        if (middle.isValid()) { // lossy encoders keep it nearly
            const QColor seen = result.pixelColor(size.width() / 2, size.height() / 2);
            for (const auto channel : {&QColor::red, &QColor::green, &QColor::blue, &QColor::alpha})
                QVERIFY2(std::abs((seen.*channel)() - (middle.*channel)()) < 12,
                         qPrintable(seen.name(QColor::HexArgb)));
        }
        QCOMPARE(listing().size(), m_before.size() + 1);
    }

    void orientationIsAppliedOnce()
    {
        // An Exif block of one entry, orientation 6: to be turned a quarter clockwise for viewing.
        const auto exif = "ffe100224578696600004d4d002a00000008000101120003000000010006000000000000"_ba;
        write("turned.jpg", read("photo.jpg").insert(2, QByteArray::fromHex(exif)));
        QCOMPARE(zelmora("export turned.jpg out.jpg"), Run(0));
        const QImage result(path("out.jpg"));
        QCOMPARE(result.size(), QSize(201, 300));
        QVERIFY(result.pixelColor(100, 20).red() < result.pixelColor(100, 280).red());
        QVERIFY(result.pixelColor(20, 150).green() > result.pixelColor(180, 150).green());
    }

    void intoMakesItsFolder()
    {
        QCOMPARE(zelmora("export --into new/pictures/ photo.jpg"), Run(0));
        QCOMPARE(zelmora("convert --into new/documents photo.jpg"), Run(0));
        QCOMPARE(QImage(path("new/pictures/photo.jpg")).size(), QImage(path("photo.jpg")).size());
        QVERIFY(QFile::exists(path("new/documents/photo.zelmora")));
    }

    void oneBadInputDoesNotStopTheOthers()
    {
        QCOMPARE(zelmora("export --into out --format webp photo.jpg empty.png tiny.png ./tiny.png"),
                 Run(1, {},
                     u"zelmora: ./tiny.png: The output out/tiny.webp would replace another file of this call.\n"
                     "zelmora: empty.png: Could not load the selected image file.\n"_s));
        QCOMPARE(QDir(path("out")).entryList(QDir::Files), QStringList({u"photo.webp"_s, u"tiny.webp"_s}));
    }

    void aFullDiskLeavesTheOldFile()
    {
        write("out.png", "old");
        // Stands for a full disk: no file may grow beyond 1000 bytes.
        m_program->process().setChildProcessModifier([] {
            const rlimit limit{1000, 1000};
            setrlimit(RLIMIT_FSIZE, &limit);
            std::signal(SIGXFSZ, SIG_IGN);
        });
        const Run run = zelmora("export photo.jpg out.png");
        QCOMPARE(run.status, 1);
        QVERIFY2(run.errors.startsWith("zelmora: out.png: Could not save the image: "_L1), qPrintable(run.errors));
        QCOMPARE(read("out.png"), "old"_ba);
        QCOMPARE(listing().size(), m_before.size() + 1);
    }

    void anOutputThatCannotTakeResultsIsAFailure()
    {
        m_program->process().setStandardOutputFile(u"/dev/full"_s);
        QCOMPARE(zelmora("info tiny.png"),
                 Run(1, {}, u"zelmora: standard output: The result could not be written.\n"_s));
    }

    void infoTellsTheSchema()
    {
        const Run run = zelmora("info --json glass.png drawing.svg");
        QCOMPARE(run.status, 0);
        const QStringList lines = run.output.split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 2);
        const auto object = [](const QString &text) { return QJsonDocument::fromJson(text.toUtf8()).object(); };
        const QJsonObject glass = object(lines[0]);
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
        const QByteArray pixels = QByteArray::fromHex("0000ff80").repeated(40 * 40);
        QCOMPARE(layer["image"_L1]["sha256"_L1].toString().toLatin1(),
                 QCryptographicHash::hash(pixels, QCryptographicHash::Sha256).toHex());
        QCOMPARE(object(lines[1])["layers"_L1][0]["image"_L1]["encoding"_L1].toString(), u"svg"_s);

        const QJsonObject photo = object(zelmora("info --json --no-digest photo.jpg").output);
        const QJsonObject image = photo["layers"_L1][0]["image"_L1].toObject();
        QVERIFY(!image.contains("sha256"_L1));
        QCOMPARE(image["pixelSize"_L1].toArray(), QJsonArray({300, 201}));
        QVERIFY(zelmora("info photo.jpg").output.contains("300 x 201"_L1));
    }

    void shapesAreDrawn()
    {
        QCOMPARE(zelmora("shapes sheet.png"), Run(0));
        QVERIFY(QImage(path("sheet.png")).pixelColor(0, 0).lightness() > 200);

        QCOMPARE(zelmora("shapes --generator star5 --set spikes=3 --set=spikes=4 star.png"), Run(0));
        const QImage large(path("star.png"));
        QCOMPARE(large.size(), QSize(400, 400));
        QCOMPARE(large.pixelColor(200, 200), QColor(0xff, 0xdf, 0x00));
        QCOMPARE(large.pixelColor(0, 0).alpha(), 0);

        QCOMPARE(zelmora("shapes --generator star5 --set spikes=3 --set=spikes=4 --size 200x80 star.svg"), Run(0));
        const QByteArray svg = read("star.svg");
        QVERIFY(svg.contains(R"(viewBox="0 0 200 80")") && svg.contains(R"(stroke="#222222")"));
        QCOMPARE(svg.count("L "), 7 + 1); // the last of the two values holds: four rays and the way back
        QCOMPARE(zelmora("export --transparent star.svg drawn.png"), Run(0));
        const QImage drawn(path("drawn.png"));
        QCOMPARE(drawn.size(), QSize(200, 80));
        QCOMPARE(drawn.pixelColor(100, 40), QColor(0xff, 0xdf, 0x00));
        QCOMPARE(drawn.pixelColor(50, 40).alpha(), 0);
        QCOMPARE(listing().size(), m_before.size() + 4);
    }

    void effectsAreApplied()
    {
        const QByteArray cut = "apply --effect shape-tool --set mask=ellipse --set mask.stroke=#ff00ff@20 ";
        QCOMPARE(zelmora(cut + "photo.jpg out.png"), Run(0));
        const QImage stroked(path("out.png"));
        QCOMPARE(stroked.size(), QSize(300, 201));
        QCOMPARE(stroked.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(stroked.pixelColor(150, 2), QColor(Qt::magenta));
        // Each --set belongs to the effect before it, and the first effect comes first: the fade takes the line along.
        QCOMPARE(zelmora(cut
                         + "--effect fade-image --set position=0.5,0,0.5,0.1 --set fadeColor=#00ff00 "
                           "photo.jpg out.png"),
                 Run(0));
        QCOMPARE(QImage(path("out.png")).pixelColor(150, 195), QColor(Qt::green));
        QCOMPARE(QImage(path("out.png")).pixelColor(0, 0).alpha(), 0);
        // What there is, is named.
        QVERIFY(zelmora("apply --effect bevil photo.jpg out.png").errors.contains("vignette"_L1));
        QVERIFY(zelmora("apply --effect bevel --set sise=2 photo.jpg out.png").errors.contains("smoothness"_L1));
    }

    void effectsAreListed()
    {
        const QJsonArray effects = QJsonDocument::fromJson(zelmora("effects --json").output.toUtf8()).array();
        const auto bevel = std::ranges::find_if(
            effects, [](const QJsonValue &effect) { return effect["id"_L1].toString() == "bevel"_L1; });
        QVERIFY(bevel != effects.end());
        QCOMPARE((*bevel)["group"_L1].toString(), u"Edges"_s);
        QCOMPARE((*bevel)["category"_L1].toString(), u"Edge"_s);
        const QJsonValue size = (*bevel)["controls"_L1][0];
        QCOMPARE(size["type"_L1].toString(), u"range"_s);
        QCOMPARE(size["unit"_L1].toString(), u"px"_s);
        QVERIFY(size["minimum"_L1].toDouble() < size["default"_L1].toDouble());
        const QString list = zelmora("effects").output;
        QVERIFY(list.contains("  bevel "_L1) && list.count(u'\n') > effects.size());

        QCOMPARE(zelmora("effects --sheet . photo.jpg"), Run(0));
        QCOMPARE(listing().size(), m_before.size() + effects.size() + 1);
        QCOMPARE(QImage(path("bevel.webp")).size(), QSize(300, 201));
        QVERIFY(!QImage(path("sheet.png")).isNull());
    }

    void helpAndVersionAreResults()
    {
        const Run help = zelmora("--help");
        QCOMPARE(help, Run(0, help.output));
        QVERIFY(help.output.contains("zelmora export"_L1));
        QCOMPARE(zelmora("export --help"), help);
        const Run version = zelmora("--version");
        QCOMPARE(version.status, 0);
        QVERIFY(version.output.startsWith("zelmora "_L1) && version.output.endsWith(u'\n'));
    }

    void anyEnvironmentWillDo()
    {
        write("text.svg",
              "<svg xmlns='http://www.w3.org/2000/svg' width='64' height='48'>"
              "<text y='40' font-size='40'>Text</text></svg>");
        write("x.zelmora", "not yet a document"); // asks for OpenGL before it is looked at
        const QImage white = test::plainPicture(64, 48, Qt::white).convertToFormat(QImage::Format_Grayscale8);
        for (const QString &environment :
             {u""_s, u"DISPLAY=:4711"_s, u"QT_QPA_PLATFORM=minimal"_s, u"QT_QPA_PLATFORM=xcb"_s,
              u"QT_QPA_PLATFORM=bogus"_s, u"QT_QPA_PLATFORM="_s, u"LC_ALL=C HOME=/none"_s}) {
            m_program->process().setEnvironment(environment.split(u' ', Qt::SkipEmptyParts));
            write("out.png", {});
            const Run drawn = zelmora("export text.svg out.png");
            QVERIFY2(drawn == Run(0), qPrintable(environment + u": "_s + drawn.errors));
            const QImage picture = QImage(path("out.png")).convertToFormat(QImage::Format_Grayscale8);
            QVERIFY2(picture.size() == white.size() && picture != white, qPrintable(environment));
            QVERIFY(
                zelmora("export x.zelmora out.png").errors.startsWith("zelmora: x.zelmora: The .zelmora file is "_L1));
        }
    }

private:
    QString path(const char *name) const { return m_program->path(name); }
    void write(const QByteArray &name, const QByteArray &bytes) const { m_program->write(name, bytes); }
    QByteArray read(const char *name) const { return m_program->read(name); }
    QStringList listing() const { return m_program->listing(); }
    Run zelmora(const QByteArray &arguments) const { return m_program->run(arguments); }

    std::unique_ptr<test::ProgramDriver> m_program;
    QStringList m_before;
};

QTEST_GUILESS_MAIN(TestZelmora)
#include "tst_zelmora.moc"
