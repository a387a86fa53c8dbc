// What a document file may do to its reader: nothing. What was read is written and read again, and comes out the same.

#include "fuzz_support.h"
#include "io/document/zelmora_document_io.h"

#include <QBuffer>

using namespace zm;
using zm::fuzz::require;

namespace {

/// Rasters may be as large as a file says that they are. Larger ones than these only make the search slow.
constexpr qint64 kMostPixels = 4'000'000;

QByteArray written(const LoadedDocument &loaded, QString &error)
{
    Document document;
    std::vector<std::unique_ptr<SceneObject>> none;
    document.replaceContents(loaded.documentSize, loaded.backgroundColor, std::move(none));
    // The document only borrows the layers.
    for (const std::unique_ptr<Layer> &layer : loaded.layers)
        document.insertObject(std::unique_ptr<SceneObject>(layer.get()));
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const bool done = ZelmoraDocumentIO::writeDocument(document, &buffer, false, &error);
    for (const std::unique_ptr<Layer> &layer : loaded.layers)
        document.takeObject(layer->id()).release();
    return done ? buffer.data() : QByteArray();
}

std::optional<LoadedDocument> read(const QByteArray &file, QString &error)
{
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    return ZelmoraDocumentIO::readDocument(&buffer, &error);
}

qint64 announcedPixels(const DocumentRecords &records)
{
    qint64 pixels = 0;
    for (const LayerRecord &layer : records.layers) {
        if (const auto *image = std::get_if<ImageContent>(&layer.content))
            pixels += qint64(image->pixelSize.width()) * image->pixelSize.height();
    }
    return pixels;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    fuzz::application();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray file(reinterpret_cast<const char *>(data), qsizetype(size));
    QBuffer buffer;
    buffer.setData(file);
    buffer.open(QIODevice::ReadOnly);
    Error recordsError;
    const std::optional<DocumentRecords> records =
        ZelmoraDocumentIO::readRecords(&buffer, PixelReading::Skip, recordsError);
    require(records.has_value() != recordsError.isSet(), "a reader that fails tells why");
    if (records && announcedPixels(*records) > kMostPixels)
        return 0;

    QString error;
    const std::optional<LoadedDocument> loaded = read(file, error);
    require(loaded.has_value() == error.isEmpty(), "a reader that fails tells why");
    require(records || !loaded, "what is read with pixels is read without");
    if (!loaded)
        return 0;
    const QByteArray saved = written(*loaded, error);
    require(!saved.isEmpty(), "what was read can be saved");
    const std::optional<LoadedDocument> again = read(saved, error);
    require(again.has_value(), "what was saved can be read");
    require(written(*again, error) == saved, "what was read from a saved file is saved as the same bytes");
    return 0;
}
