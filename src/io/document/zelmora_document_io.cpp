#include "io/document/zelmora_document_io.h"

#include "io/document/document_reader.h"
#include "io/document/document_writer.h"
#include "io/document/file_message.h"
#include "io/save_target.h"

#include <QFile>
#include <QSaveFile>

namespace zm {

namespace {

/// Does what has an Error for a caller who has a string, or none.
template<typename Step>
auto reported(QString *message, const Step &step)
{
    Error error;
    auto result = step(error);
    if (message)
        *message = error.message();
    return result;
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

} // namespace

std::optional<LoadedDocument> ZelmoraDocumentIO::readDocument(QIODevice *source, Error &error)
{
    LoadedDocument document;
    const auto takeLayer = [&document](LayerRecord record, Error &layerError) {
        std::unique_ptr<Layer> layer = layerFrom(std::move(record), layerError);
        if (!layer)
            return false;
        document.layers.push_back(std::move(layer));
        return true;
    };
    const std::optional<DocumentHeader> header = readDocumentSections(*source, PixelReading::Decode, takeLayer, error);
    if (!header)
        return std::nullopt;
    document.documentSize = header->documentSize;
    document.backgroundColor = header->backgroundColor;
    return document;
}

std::optional<LoadedDocument> ZelmoraDocumentIO::readDocument(QIODevice *source, QString *errorMessage)
{
    return reported(errorMessage, [&](Error &error) { return readDocument(source, error); });
}

std::optional<LoadedDocument> ZelmoraDocumentIO::readDocumentFile(const QString &path, Error &error)
{
    QFile file(path);
    return openForReading(file, error) ? readDocument(&file, error) : std::nullopt;
}

std::optional<LoadedDocument> ZelmoraDocumentIO::readDocumentFile(const QString &path, QString *errorMessage)
{
    return reported(errorMessage, [&](Error &error) { return readDocumentFile(path, error); });
}

std::optional<DocumentRecords> ZelmoraDocumentIO::readRecords(QIODevice *source, PixelReading pixels, Error &error)
{
    DocumentRecords records;
    const auto takeLayer = [&records](LayerRecord record, Error &) {
        records.layers.push_back(std::move(record));
        return true;
    };
    const std::optional<DocumentHeader> header = readDocumentSections(*source, pixels, takeLayer, error);
    if (!header)
        return std::nullopt;
    records.formatVersion = header->formatVersion;
    records.documentSize = header->documentSize;
    records.backgroundColor = header->backgroundColor;
    return records;
}

std::optional<DocumentRecords> ZelmoraDocumentIO::readRecordsFile(const QString &path, PixelReading pixels,
                                                                  Error &error)
{
    QFile file(path);
    return openForReading(file, error) ? readRecords(&file, pixels, error) : std::nullopt;
}

bool ZelmoraDocumentIO::writeDocument(const Document &document, QIODevice *destination, bool compressImages,
                                      Error &error)
{
    return writeDocumentSections(document, *destination, imageMode(compressImages), error);
}

bool ZelmoraDocumentIO::writeDocument(const Document &document, QIODevice *destination, bool compressImages,
                                      QString *errorMessage)
{
    return reported(errorMessage,
                    [&](Error &error) { return writeDocument(document, destination, compressImages, error); });
}

bool ZelmoraDocumentIO::writeDocumentFile(const Document &document, const QString &path, bool compressImages,
                                          Error &error)
{
    const auto failToOpen = [&](const QString &reason) {
        return error.fail(FileMessage::tr("Could not open %1 for writing: %2").arg(path, reason));
    };
    if (!mayBeReplaced(path))
        return failToOpen(FileMessage::tr("The target is not a regular file."));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return failToOpen(file.errorString());
    if (!writeDocumentSections(document, file, imageMode(compressImages), error)) {
        file.cancelWriting();
        return false;
    }
    if (!file.commit())
        return error.fail(FileMessage::tr("Could not finish writing %1: %2").arg(path, file.errorString()));
    return true;
}

bool ZelmoraDocumentIO::writeDocumentFile(const Document &document, const QString &path, bool compressImages,
                                          QString *errorMessage)
{
    return reported(errorMessage,
                    [&](Error &error) { return writeDocumentFile(document, path, compressImages, error); });
}

} // namespace zm
