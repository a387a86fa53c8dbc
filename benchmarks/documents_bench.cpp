#include "documents_bench.h"

#include "document/document.h"
#include "document/image_layer.h"
#include "document/shape_layer.h"
#include "document/text_layer.h"
#include "document/text_state.h"
#include "io/document/embedded_image.h"
#include "io/document/zelmora_document_io.h"
#include "pictures.h"

#include <QBuffer>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace zm::bench {

namespace {

constexpr QSize kPictureSize(4000, 3000);
constexpr int kPictures = 10;
constexpr int kSmallLayers = 10'000;
constexpr int kRuns = 3;

QString ratio(double value, double floor, const QString &note)
{
    return u"%1 x %2"_s.arg(value / floor, 0, 'f', 2).arg(note);
}

void addImageLayer(Document &document, const QImage &picture)
{
    document.insertObject(std::make_unique<ImageLayer>(picture, u"Picture"_s));
}

/// A document whose pictures have never been in a file.
void fill(Document &document, const QList<QImage> &pictures)
{
    std::vector<std::unique_ptr<SceneObject>> none;
    document.replaceContents(QSizeF(kPictureSize), Qt::white, std::move(none));
    for (const QImage &picture : pictures)
        addImageLayer(document, picture);
}

QByteArray written(const Document &document, bool compressImages)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return ZelmoraDocumentIO::writeDocument(document, &buffer, compressImages) ? buffer.data() : QByteArray();
}

bool canBeRead(QByteArray file)
{
    QBuffer buffer(&file);
    buffer.open(QIODevice::ReadOnly);
    return ZelmoraDocumentIO::readDocument(&buffer).has_value();
}

/// Saving and loading of the pictures in one mode, each beside the codec alone, one picture after the other.
QList<BenchRow> largeRasters(const QList<QImage> &pictures, bool compressImages)
{
    const EmbeddedImageMode mode = compressImages ? EmbeddedImageMode::Compressed : EmbeddedImageMode::Lossless;
    const QString name = u"10 x 12 MP, %1: "_s.arg(compressImages ? u"lossy"_s : u"lossless"_s);
    Error error;
    QList<QByteArray> webps;
    const double encode = medianMilliseconds(kRuns, [&] {
        webps.clear();
        for (const QImage &picture : pictures)
            webps.append(encodeWebp(picture, mode, error).value_or(QByteArray()));
    });
    const double decode = medianMilliseconds(kRuns, [&] {
        for (const QByteArray &webp : webps)
            (void)decodeWebp(webp, kPictureSize, error);
    });

    Document document;
    QByteArray file;
    const double save = medianMilliseconds(kRuns, [&] {
        fill(document, pictures); // a few microseconds
        file = written(document, compressImages);
    });
    const double saveAgain = medianMilliseconds(kRuns, [&] { file = written(document, compressImages); });
    const double copy = medianMilliseconds(kRuns, [&file] {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        buffer.write(file);
    });
    const double load = medianMilliseconds(kRuns, [&file] { (void)canBeRead(file); });
    if (error.isSet() || !canBeRead(file))
        return {};
    return {
        {name + u"libwebp encodes, one by one"_s, encode, u"floor"_s},
        {name + u"save"_s, save, ratio(save, encode, u"(goal 0.6)"_s)},
        {name + u"save again, nothing changed"_s, saveAgain, ratio(saveAgain, copy, u"a copy of the file's bytes"_s)},
        {name + u"libwebp decodes, one by one"_s, decode, u"floor"_s},
        {name + u"load"_s, load, ratio(load, decode, {})},
    };
}

/// A picture, a text or a shape, every tenth with an effect.
std::unique_ptr<Layer> smallLayer(int index)
{
    std::unique_ptr<Layer> layer;
    if (index % 3 == 0)
        layer = std::make_unique<ImageLayer>(photograph({8, 8}, quint32(index)), u"Picture"_s);
    else if (index % 3 == 1)
        layer = std::make_unique<TextLayer>(textStateFromPlainText(u"Text"_s, {}).blocks, 200.0, u"Text"_s);
    else
        layer = std::make_unique<ShapeLayer>(GeneratorGeometry{u"star"_s, {}}, QSizeF(80, 80), Stroke{Qt::black, 2.0},
                                             Fill(), u"Shape"_s);
    if (index % 10 == 0)
        layer->setFilters({{QUuid::createUuid(), u"vignette"_s, {}, true, false}});
    return layer;
}

QList<BenchRow> manyLayers()
{
    Document document;
    for (int i = 0; i < kSmallLayers; ++i)
        document.insertObject(smallLayer(i));
    QByteArray file;
    const double save = medianMilliseconds(kRuns, [&] { file = written(document, false); });
    bool read = true;
    const double load = medianMilliseconds(kRuns, [&] { read = read && canBeRead(file); });
    if (!read)
        return {};
    return {{u"10,000 small layers: save"_s, save, u"%1 KiB"_s.arg(file.size() / 1024)},
            {u"10,000 small layers: load"_s, load, u"goal under 300 ms"_s}};
}

/// What `info` asks a file of a gibibyte.
QList<BenchRow> recordsOfLargeFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"large.zelmora"_s);
    {
        // Wider than a WebP can be, so that the pixels are in the file as they are.
        const QImage wide = photograph({20'000, 5'000});
        Document document;
        for (int i = 0; i < 3; ++i)
            addImageLayer(document, wide);
        if (!ZelmoraDocumentIO::writeDocumentFile(document, path, false))
            return {};
    }
    Error error;
    const double records =
        medianMilliseconds(kRuns, [&] { ZelmoraDocumentIO::readRecordsFile(path, PixelReading::Skip, error); });
    if (error.isSet())
        return {};
    const double gibibytes = double(QFileInfo(path).size()) / double(1 << 30);
    return {{u"%1 GiB: records without pixels"_s.arg(gibibytes, 0, 'f', 2), records, u"nothing is decoded"_s}};
}

} // namespace

QList<BenchRow> benchDocuments()
{
    QList<QImage> pictures;
    for (quint32 seed = 1; seed <= kPictures; ++seed)
        pictures.append(photograph(kPictureSize, seed));
    QList<BenchRow> rows = largeRasters(pictures, false) + largeRasters(pictures, true);
    pictures.clear();
    return rows + manyLayers() + recordsOfLargeFile();
}

} // namespace zm::bench
