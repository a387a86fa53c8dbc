#include "io/document/embedded_image.h"
#include "io/document/zelmora_document_io.h"
#include "support/document_log.h"
#include "support/file_bytes.h"
#include "support/pictures.h"
#include "support/random_document.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <sys/resource.h>

using namespace zm;
using namespace zm::test;
using namespace Qt::StringLiterals;

namespace {

FileBytes fileHeader(quint32 sections, quint32 version = 5, quint32 width = 640, quint32 height = 480)
{
    return FileBytes("ZMDC").u32(version).u32(width).u32(height).u32(sections).zeros(108);
}

FileBytes section(quint32 type, const QByteArray &payload)
{
    return FileBytes("ZMSC").u32(type).u32(quint32(payload.size())).zeros(20).bytes(payload);
}

QByteArray properties(float red = 0.25F)
{
    return section(1, FileBytes().u32(1).color(red, 0.5F, 0.75F, 1.0F).zeros(12));
}

/// A filter that nobody knows, without values and with both flags set.
QByteArray filterRecord()
{
    return FileBytes().u32(1).uuid(testId(9)).u32(3).key("unknown").u32(0).u32(0);
}

/// A grey picture in the raw encoding; a tail of bytes too many spoils it.
FileBytes imageLayer(uint id, quint32 width = 2, quint32 height = 2, qsizetype tail = 0, const QByteArray &filters = {})
{
    const QByteArray pixels(qsizetype(width) * height * 4 + tail, '\x7f');
    const QByteArray content = FileBytes()
                                   .u32(1)
                                   .u32(3)
                                   .u32(width)
                                   .u32(height)
                                   .point(width, height)
                                   .u32(quint32(pixels.size()))
                                   .u32(1)
                                   .u32(0)
                                   .u32(0)
                                   .zeros(16)
                                   .bytes(pixels);
    return section(2,
                   FileBytes()
                       .u32(1)
                       .uuid(testId(id))
                       .u32(1)
                       .u32(4)
                       .u32(11)
                       .u32(filters.isEmpty() ? 0 : 1)
                       .u32(quint32(content.size()))
                       .f64(1.0)
                       .point(0.0, 0.0)
                       .point(1.0, 1.0)
                       .f64(0.0)
                       .point(0.0, 0.0)
                       .point(0.5, 0.5)
                       .zeros(8)
                       .text(u"name"_s)
                       .text(u"source-over"_s)
                       .bytes(content)
                       .bytes(filters));
}

std::optional<LoadedDocument> read(const QByteArray &file, QString *error = nullptr)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    return ZelmoraDocumentIO::readDocument(&buffer, error);
}

/// Empty when it failed.
QByteArray written(const Document &document, bool compressImages = false, QString *error = nullptr)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return ZelmoraDocumentIO::writeDocument(document, &buffer, compressImages, error) ? buffer.data() : QByteArray();
}

std::unique_ptr<Document> documentOf(std::optional<LoadedDocument> loaded)
{
    auto document = std::make_unique<Document>();
    std::vector<std::unique_ptr<SceneObject>> layers;
    for (std::unique_ptr<Layer> &layer : loaded->layers)
        layers.push_back(std::move(layer));
    document->replaceContents(loaded->documentSize, loaded->backgroundColor, std::move(layers));
    return document;
}

/// Gives what is to be read in small pieces and does not tell how much there is; takes a limited number of bytes.
class Pipe : public QIODevice
{
public:
    explicit Pipe(const QByteArray &toRead, qint64 room = 0)
        : m_toRead(toRead)
        , m_room(room)
    {
        open(QIODevice::ReadWrite | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const QByteArray piece = m_toRead.left(std::min<qint64>(size, 1000));
        m_toRead.remove(0, piece.size());
        std::copy(piece.begin(), piece.end(), data);
        return piece.size();
    }
    qint64 writeData(const char *, qint64 size) override
    {
        const qint64 taken = std::min<qint64>({size, 1000, m_room});
        if (taken == 0)
            setErrorString(u"pipe is full"_s);
        m_room -= taken;
        return taken > 0 ? taken : -1;
    }

private:
    QByteArray m_toRead;
    qint64 m_room;
};

/// Lets the program's address space grow by no more than that many bytes while it lives.
class MemoryLimit
{
public:
    explicit MemoryLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_AS, &m_before);
        QFile statm(u"/proc/self/statm"_s);
        statm.open(QIODevice::ReadOnly);
        const rlim_t pages = statm.readAll().split(' ').first().toULongLong();
        rlimit limit = m_before;
        limit.rlim_cur = pages * 4096 + bytes;
        setrlimit(RLIMIT_AS, &limit);
    }
    ~MemoryLimit() { setrlimit(RLIMIT_AS, &m_before); }

private:
    rlimit m_before{};
};

QString truncated()
{
    return u"The .zelmora file is truncated or unreadable: Unknown error"_s;
}

} // namespace

class TestDocumentFile : public QObject
{
    Q_OBJECT

private slots:
    void writesTheContainer()
    {
        Document document;
        document.setSize({640, 480});
        document.setBackgroundColor(QColor::fromRgbF(0.25F, 0.5F, 0.75F));
        const float red = document.backgroundColor().redF();
        const float green = document.backgroundColor().greenF();
        const float blue = document.backgroundColor().blueF();
        const QByteArray stored = section(1, FileBytes().u32(1).color(red, green, blue).zeros(12));
        QCOMPARE(written(document), QByteArray(fileHeader(1).bytes(stored)));

        Error error;
        FileBytes expected = fileHeader(4).bytes(stored);
        document.insertObject(std::make_unique<ImageLayer>(noisePicture(9, 7, 1), u"picture"_s));
        document.insertObject(std::make_unique<TextLayer>(QList<TextParagraph>(), 0.0, u"text"_s));
        document.insertObject(std::make_unique<ShapeLayer>(EditablePath(), QSizeF(3, 4), Stroke(), Fill(), u"s"_s));
        for (const quint32 type : {2, 3, 4}) {
            const auto &layer = static_cast<const Layer &>(*document.objectAt(type - 2));
            expected.bytes(section(type, *encodeLayerSection(layer, EmbeddedImageMode::Lossless, error)));
        }
        QCOMPARE(written(document), QByteArray(expected));
    }

    void readsTheContainer_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QList<uint>>("layers");
        const auto row = [](const char *name, const QByteArray &file, const QList<uint> &layers) {
            QTest::newRow(name) << file << layers;
        };
        row("no layers", fileHeader(1).bytes(properties()), {});
        for (const quint32 version : {1, 2, 3, 4, 5})
            QTest::addRow("version %u", version)
                << QByteArray(fileHeader(1, version).bytes(properties())) << QList<uint>();
        row("an unknown section between two layers",
            fileHeader(4).bytes(properties()).bytes(imageLayer(2)).bytes(section(7, "what?")).bytes(imageLayer(1)),
            {2, 1});
        row("an unknown section without payload at the end", fileHeader(2).bytes(properties()).bytes(section(0, {})),
            {});
        row("large pictures among small ones",
            fileHeader(6)
                .bytes(properties())
                .bytes(imageLayer(1, 200, 90))
                .bytes(imageLayer(2))
                .bytes(imageLayer(3))
                .bytes(imageLayer(4, 100, 90))
                .bytes(imageLayer(5)),
            {1, 2, 3, 4, 5});
        row("reserved bytes that are not zero",
            FileBytes(fileHeader(1))
                .patch(20, "x")
                .patch(127, "x")
                .bytes(FileBytes(properties()).patch(12, "x").patch(31, "x").patch(32 + 20, "x").patch(63, "x")),
            {});
    }
    void readsTheContainer()
    {
        QFETCH(QByteArray, file);
        QFETCH(QList<uint>, layers);
        QString error = u"stale"_s;
        const std::optional<LoadedDocument> document = read(file, &error);
        QVERIFY2(document, qPrintable(error));
        QCOMPARE(error, QString());
        QCOMPARE(document->documentSize, QSizeF(640, 480));
        QCOMPARE(document->backgroundColor, QColor::fromRgbF(0.25F, 0.5F, 0.75F));
        QList<uint> ids;
        for (const std::unique_ptr<Layer> &layer : document->layers)
            ids.append(layer->id().data1);
        QCOMPARE(ids, layers);

        Pipe pipe(file);
        QVERIFY(ZelmoraDocumentIO::readDocument(&pipe, &error));
        for (const qsizetype size : {qsizetype(0), qsizetype(127), qsizetype(140), file.size() - 1}) {
            QVERIFY(!read(file.first(size), &error));
            QCOMPARE(error, truncated());
        }
    }

    void refusesFiles_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("message");
        const auto row = [](const char *name, const QByteArray &file, const QString &message) {
            QTest::newRow(name) << file << message;
        };
        const QByteArray empty = fileHeader(1).bytes(properties());
        const QString dimensions = u"The .zelmora document dimensions are invalid."_s;
        const QString color = u"The .zelmora file contains an invalid color."_s;
        const QString sectionHeader = u"A .zelmora section header is invalid."_s;
        const QString layerHeader = u"A layer payload header is invalid."_s;
        const QString rawLength = u"A raw RGBA image has an invalid byte length."_s;
        row("magic", FileBytes(empty).patch(0, "ZMDX"), u"This is not a .zelmora document."_s);
        for (const quint32 version : {0U, 6U, 0xFFFFFFFFU})
            row(qPrintable(u"version %1"_s.arg(version)), fileHeader(1, version),
                u"This .zelmora format version is not supported."_s);
        row("width 0", fileHeader(1, 5, 0, 5), dimensions);
        row("width above the limit", fileHeader(1, 5, 1'000'001, 5), dimensions);
        row("height 0", fileHeader(1, 5, 5, 0), dimensions);
        row("height above the limit", fileHeader(1, 5, 5, 1'000'001), dimensions);
        for (const quint32 count : {0, 100'001})
            row(qPrintable(u"%1 sections"_s.arg(count)), fileHeader(count),
                u"The .zelmora section count is invalid."_s);
        row("section magic", FileBytes(empty).patch(128, "ZMSX"), sectionHeader);
        row("section above 1 GiB", FileBytes(empty).patch(136, FileBytes().u32(0x40000001)), sectionHeader);
        row("section of 1 GiB that is not there", FileBytes(empty).patch(136, FileBytes().u32(0x40000000)),
            truncated());
        row("first section is a layer", fileHeader(1).bytes(imageLayer(1)),
            u"The first .zelmora section is not document properties."_s);
        row("first section is unknown", fileHeader(1).bytes(section(7, {})),
            u"The first .zelmora section is not document properties."_s);
        row("properties of another size", fileHeader(1).bytes(section(1, QByteArray(33, '\0'))),
            u"The document-properties section has an invalid size."_s);
        row("properties of another version", fileHeader(1).bytes(section(1, QByteArray(32, '\0'))),
            u"The document-properties payload version is unsupported."_s);
        row("colour just above 1", fileHeader(1).bytes(properties(1.0000001F)), color);
        row("colour below 0", fileHeader(1).bytes(properties(-0.1F)), color);
        row("colour not a number", fileHeader(1).bytes(properties(std::numeric_limits<float>::quiet_NaN())), color);
        row("second properties", fileHeader(2).bytes(properties()).bytes(properties()),
            u"The .zelmora file contains duplicate document properties."_s);
        row("layer that is no layer", fileHeader(2).bytes(properties()).bytes(section(3, "text")), layerHeader);
        row("same layer twice", fileHeader(3).bytes(properties()).bytes(imageLayer(1)).bytes(imageLayer(1)),
            u"The .zelmora file contains a duplicated layer ID."_s);
        row("one byte too many", FileBytes(empty).bytes("x"), u"The .zelmora file has trailing data."_s);
        row("one section too many", fileHeader(2).bytes(properties()).bytes(section(7, {})).bytes(imageLayer(1)),
            u"The .zelmora file has trailing data."_s);
        row("one section too few", fileHeader(3).bytes(properties()).bytes(imageLayer(1)), truncated());

        // Large pictures are decoded while reading goes on; the failure that comes first in the file is told.
        const FileBytes spoiled = fileHeader(4).bytes(properties()).bytes(imageLayer(1, 300, 300, 1));
        row("large picture, then the end", spoiled, rawLength);
        row("large picture, then a small layer", FileBytes(spoiled).bytes(section(3, "text")), rawLength);
        row("large picture, then properties", FileBytes(spoiled).bytes(properties()), rawLength);
        row("large picture, then no section", FileBytes(spoiled).bytes("ZMSX").zeros(28), rawLength);
        row("large picture, then the same", FileBytes(spoiled).bytes(imageLayer(1, 300, 300, 1)), rawLength);
        row("large pictures, then trailing data",
            FileBytes(spoiled).bytes(imageLayer(2, 50, 50)).bytes(imageLayer(3, 50, 50)).bytes("x"), rawLength);
        row("a small layer, then a large picture",
            fileHeader(4)
                .bytes(properties())
                .bytes(imageLayer(2, 50, 50))
                .bytes(section(4, "shape"))
                .bytes(imageLayer(1, 300, 300, 1)),
            layerHeader);
        row("the id of a large picture again",
            fileHeader(4)
                .bytes(properties())
                .bytes(imageLayer(1, 300, 300))
                .bytes(imageLayer(1))
                .bytes("ZMSX")
                .zeros(28),
            u"The .zelmora file contains a duplicated layer ID."_s);
    }
    void refusesFiles()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, message);
        const MemoryLimit limit(512 * 1024 * 1024);
        QString error;
        QVERIFY(!read(file, &error));
        QCOMPARE(error, message);
        Pipe pipe(file);
        Error recordsError;
        QVERIFY(!ZelmoraDocumentIO::readRecords(&pipe, PixelReading::Decode, recordsError));
        QCOMPARE(recordsError.message(), message);
    }

    void oldVersionsLimitNoFilterToTheSelection()
    {
        for (const quint32 version : {3, 4, 5}) {
            const QByteArray file =
                fileHeader(2, version).bytes(properties()).bytes(imageLayer(1, 2, 2, 0, filterRecord()));
            const std::optional<LoadedDocument> document = read(file);
            QVERIFY(document);
            const FilterInstance filter = document->layers.front()->filters().value(0);
            QVERIFY(filter.enabled);
            QCOMPARE(filter.rasterSelectionScoped, version >= 4);
        }
    }

    void devicesThatDoNotServe()
    {
        QString error;
        QBuffer closed;
        QVERIFY(!ZelmoraDocumentIO::readDocument(&closed, &error));
        QCOMPARE(error, u"The source device is not readable."_s);
        QVERIFY(!ZelmoraDocumentIO::writeDocument(Document(), &closed, false, &error));
        QCOMPARE(error, u"The destination device is not writable."_s);

        Document document;
        document.insertObject(std::make_unique<ImageLayer>(noisePicture(50, 50, 1), u"x"_s));
        const qsizetype size = written(document).size();
        for (const qsizetype room : {qsizetype(0), qsizetype(128), qsizetype(200), size - 1}) {
            Pipe pipe({}, room);
            QVERIFY(!ZelmoraDocumentIO::writeDocument(document, &pipe, false, &error));
            QCOMPARE(error, u"Could not write the .zelmora file: pipe is full"_s);
        }
        Pipe pipe({}, size);
        QVERIFY(ZelmoraDocumentIO::writeDocument(document, &pipe, false, &error));
        QCOMPARE(error, QString());
    }

    void refusesDocuments()
    {
        const QString message = u"The document dimensions cannot be stored in .zelmora format."_s;
        QString error;
        Document document;
        for (const QSizeF size : {QSizeF(100.5, 200), QSizeF(200, 1'000'001)}) {
            document.setSize(size);
            Pipe untouched({}, 0);
            QVERIFY(!ZelmoraDocumentIO::writeDocument(document, &untouched, false, &error));
            QCOMPARE(error, message);
        }
        document.setSize({1'000'000, 1});
        QVERIFY(!written(document).isEmpty());

        Document crowded;
        for (uint i = 1; i <= 99'999; ++i)
            crowded.insertObject(std::make_unique<TextLayer>(QList<TextParagraph>(), 0.0, u"t"_s, testId(i)));
        const QByteArray file = written(crowded, false, &error);
        QVERIFY2(!file.isEmpty(), qPrintable(error));
        QCOMPARE(read(file)->layers.size(), size_t(99'999));
        crowded.insertObject(std::make_unique<TextLayer>(QList<TextParagraph>(), 0.0, u"t"_s, testId(100'000)));
        Pipe untouched({}, 0);
        QVERIFY(!ZelmoraDocumentIO::writeDocument(crowded, &untouched, false, &error));
        QCOMPARE(error, u"The document contains too many layers."_s);
    }

    void documentsComeBackEqual()
    {
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        for (int i = 0; i < 150; ++i) {
            const auto context = [&](const QString &what) {
                return u"seed %1, document %2: %3"_s.arg(seed).arg(i).arg(what).toUtf8();
            };
            QString error;
            const std::unique_ptr<Document> document = randomDocument(random);
            const QByteArray file = written(*document, false, &error);
            QVERIFY2(!file.isEmpty(), context(error));
            std::optional<LoadedDocument> loaded = read(file, &error);
            QVERIFY2(loaded, context(error));
            const std::unique_ptr<Document> reopened = documentOf(std::move(loaded));
            QVERIFY2(difference(*document, *reopened).isEmpty(), context(difference(*document, *reopened)));
            QVERIFY2(written(*reopened) == file, context(u"other bytes"_s));

            const QByteArray lossy = written(*document, true);
            QVERIFY2(written(*documentOf(read(lossy)), true) == lossy, context(u"other bytes with loss"_s));
        }
    }

    void savingWithLossWearsNothingOut()
    {
        Document document;
        document.setSize({64, 64});
        document.insertObject(std::make_unique<ImageLayer>(noisePicture(64, 64, 5), u"0"_s, testId(1)));
        QByteArray file = written(document, true);
        const QImage once = documentOf(read(file))->imageLayer(testId(1))->rasterImage();
        QVERIFY(maximumDifference(once, document.imageLayer(testId(1))->rasterImage()) > 0);
        for (int cycle = 1; cycle < 10; ++cycle) {
            const std::unique_ptr<Document> opened = documentOf(read(file));
            opened->setObjectName(testId(1), QString::number(cycle));
            file = written(*opened, true);
        }
        const std::unique_ptr<Document> last = documentOf(read(file));
        QCOMPARE(last->layer(testId(1))->name(), u"9"_s);
        QCOMPARE(last->imageLayer(testId(1))->rasterImage(), once);

        // Saved without loss, it is encoded anew, and what was read stays as it was.
        const QByteArray lossless = written(*last, false);
        QVERIFY(lossless.contains("VP8L") && file.contains("VP8 "));
        QCOMPARE(documentOf(read(lossless))->imageLayer(testId(1))->rasterImage(), once);
        QCOMPARE(written(*last, true), file);
    }

    void recordsDoNotNeedPixels()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"x.zelmora"_s);
        Document document;
        document.insertObject(std::make_unique<ImageLayer>(noisePicture(300, 200, 5), u"large"_s, testId(1)));
        document.insertObject(std::make_unique<ImageLayer>(noisePicture(3, 2, 5), u"small"_s, testId(2)));
        Error error;
        QVERIFY2(ZelmoraDocumentIO::writeDocumentFile(document, path, false, error), qPrintable(error.message()));
        const auto check = [&](const std::optional<DocumentRecords> &records, bool withPixels) {
            QVERIFY2(records, qPrintable(error.message()));
            QCOMPARE(records->formatVersion, 5U);
            QCOMPARE(records->layers.size(), size_t(2));
            for (const LayerRecord &layer : records->layers) {
                const auto &content = std::get<ImageContent>(layer.content);
                const ImageLayer &original = *document.imageLayer(layer.id);
                QCOMPARE(layer.name, original.name());
                QCOMPARE(content.pixelSize, original.pixelSize());
                const QImage image = std::get<RasterImageSource>(content.source).image;
                QCOMPARE(image, withPixels ? original.rasterImage() : QImage());
            }
        };
        for (const PixelReading pixels : {PixelReading::Decode, PixelReading::Skip}) {
            const bool withPixels = pixels == PixelReading::Decode;
            check(ZelmoraDocumentIO::readRecordsFile(path, pixels, error), withPixels);
            QFile file(path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QByteArray bytes = "before" + file.readAll();
            QBuffer buffer(&bytes);
            QVERIFY(buffer.open(QIODevice::ReadOnly) && buffer.seek(6));
            check(ZelmoraDocumentIO::readRecords(&buffer, pixels, error), withPixels);
            Pipe pipe(bytes.sliced(6));
            check(ZelmoraDocumentIO::readRecords(&pipe, pixels, error), withPixels);
            bytes.chop(1);
            Error cut;
            QVERIFY(buffer.seek(6) && !ZelmoraDocumentIO::readRecords(&buffer, pixels, cut));
            QCOMPARE(cut.message(), truncated());
        }
    }

    void filesThatCannotBeOpened()
    {
        const QTemporaryDir folder;
        const QString missing = folder.filePath(u"missing.zelmora"_s);
        QString error;
        QVERIFY(!ZelmoraDocumentIO::readDocumentFile(missing, &error));
        QCOMPARE(error, u"Could not open %1 for reading: No such file or directory"_s.arg(missing));
        Error folderError;
        QVERIFY(!ZelmoraDocumentIO::readRecordsFile(folder.path(), PixelReading::Skip, folderError));
        QVERIFY(folderError.message().startsWith(u"Could not open %1 for reading: "_s.arg(folder.path())));
    }
};

QTEST_MAIN(TestDocumentFile)
#include "tst_document_file.moc"
