#include "io/document/zelmora_document_io.h"

#include "io/document/document_reader.h"
#include "io/document/document_writer.h"
#include "io/document/file_message.h"
#include "io/save_target.h"

#include <QFile>
#include <QSaveFile>

namespace zm {

namespace {

void report(const Error &error, QString *message)
{
    if (message)
        *message = error.message();
}

std::optional<LoadedDocument> load(QIODevice &source, Error &error)
{
    LoadedDocument document;
    const auto takeLayer = [&document](LayerRecord record, Error &layerError) {
        std::unique_ptr<Layer> layer = layerFrom(std::move(record), layerError);
        if (!layer)
            return false;
        document.layers.push_back(std::move(layer));
        return true;
    };
    const std::optional<DocumentHeader> header = readDocumentSections(source, PixelReading::Decode, takeLayer, error);
    if (!header)
        return std::nullopt;
    document.documentSize = header->documentSize;
    document.backgroundColor = header->backgroundColor;
    return document;
}

std::optional<DocumentRecords> loadRecords(QIODevice &source, PixelReading pixels, Error &error)
{
    DocumentRecords records;
    const auto takeLayer = [&records](LayerRecord record, Error &) {
        records.layers.push_back(std::move(record));
        return true;
    };
    const std::optional<DocumentHeader> header = readDocumentSections(source, pixels, takeLayer, error);
    if (!header)
        return std::nullopt;
    records.formatVersion = header->formatVersion;
    records.documentSize = header->documentSize;
    records.backgroundColor = header->backgroundColor;
    return records;
}

bool openForReading(QFile &file, Error &error)
{
    if (file.open(QIODevice::ReadOnly))
        return true;
    return error.fail(FileMessage::tr("Could not open %1 for reading: %2").arg(file.fileName(), file.errorString()));
}

EmbeddedImageMode imageMode(bool compressImages)
{
    return compressImages ? EmbeddedImageMode::Compressed : EmbeddedImageMode::Lossless;
}

bool save(const Document &document, const QString &path, EmbeddedImageMode mode, Error &error)
{
    const auto failToOpen = [&](const QString &reason) {
        return error.fail(FileMessage::tr("Could not open %1 for writing: %2").arg(path, reason));
    };
    if (!mayBeReplaced(path))
        return failToOpen(FileMessage::tr("The target is not a regular file."));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failToOpen(file.errorString());
    if (!writeDocumentSections(document, file, mode, error)) {
        file.cancelWriting();
        return false;
    }
    if (!file.commit())
        return error.fail(FileMessage::tr("Could not finish writing %1: %2").arg(path, file.errorString()));
    return true;
}

} // namespace

std::optional<LoadedDocument> ZelmoraDocumentIO::readDocument(QIODevice *source, QString *errorMessage)
{
    Error error;
    std::optional<LoadedDocument> document = load(*source, error);
    report(error, errorMessage);
    return document;
}

std::optional<LoadedDocument> ZelmoraDocumentIO::readDocumentFile(const QString &path, QString *errorMessage)
{
    Error error;
    QFile file(path);
    std::optional<LoadedDocument> document;
    if (openForReading(file, error))
        document = load(file, error);
    report(error, errorMessage);
    return document;
}

std::optional<DocumentRecords> ZelmoraDocumentIO::readRecords(QIODevice *source, PixelReading pixels,
                                                              QString *errorMessage)
{
    Error error;
    std::optional<DocumentRecords> records = loadRecords(*source, pixels, error);
    report(error, errorMessage);
    return records;
}

std::optional<DocumentRecords> ZelmoraDocumentIO::readRecordsFile(const QString &path, PixelReading pixels,
                                                                  QString *errorMessage)
{
    Error error;
    QFile file(path);
    std::optional<DocumentRecords> records;
    if (openForReading(file, error))
        records = loadRecords(file, pixels, error);
    report(error, errorMessage);
    return records;
}

bool ZelmoraDocumentIO::writeDocument(const Document &document, QIODevice *destination, bool compressImages,
                                      QString *errorMessage)
{
    Error error;
    const bool written = writeDocumentSections(document, *destination, imageMode(compressImages), error);
    report(error, errorMessage);
    return written;
}

bool ZelmoraDocumentIO::writeDocumentFile(const Document &document, const QString &path, bool compressImages,
                                          QString *errorMessage)
{
    Error error;
    const bool saved = save(document, path, imageMode(compressImages), error);
    report(error, errorMessage);
    return saved;
}

} // namespace zm
