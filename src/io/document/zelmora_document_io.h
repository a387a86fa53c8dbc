#pragma once

#include "base/error.h"
#include "document/document.h"
#include "io/document/layer_section.h"

#include <memory>
#include <optional>
#include <vector>

class QIODevice;

namespace zm {

/// A document that was read. Its layers are in the order of the file, the bottom first.
struct LoadedDocument
{
    QSizeF documentSize;
    QColor backgroundColor;
    std::vector<std::unique_ptr<Layer>> layers;
};

/// What a document file tells, for those who do not need a document.
struct DocumentRecords
{
    quint32 formatVersion = 0;
    QSizeF documentSize;
    QColor backgroundColor;
    std::vector<LayerRecord> layers;
};

/// Reads and writes .zelmora documents, which keep everything editable. Rasters are embedded with loss when
/// compressImages is set, else without. A failure leaves nothing half done. Who has no Error may give a string for the
/// sentence, which a success empties. Layers are encoded and decoded by several threads; the caller's waits.
class ZelmoraDocumentIO
{
public:
    static std::optional<LoadedDocument> readDocument(QIODevice *source, Error &error);
    static std::optional<LoadedDocument> readDocument(QIODevice *source, QString *errorMessage = nullptr);
    static std::optional<LoadedDocument> readDocumentFile(const QString &path, Error &error);
    static std::optional<LoadedDocument> readDocumentFile(const QString &path, QString *errorMessage = nullptr);
    /// Without pixels nothing of them is decoded, whatever they are.
    static std::optional<DocumentRecords> readRecords(QIODevice *source, PixelReading pixels, Error &error);
    static std::optional<DocumentRecords> readRecordsFile(const QString &path, PixelReading pixels, Error &error);

    static bool writeDocument(const Document &document, QIODevice *destination, bool compressImages, Error &error);
    static bool writeDocument(const Document &document, QIODevice *destination, bool compressImages,
                              QString *errorMessage = nullptr);
    /// All or nothing: what was at the path stays there until the new file is complete.
    static bool writeDocumentFile(const Document &document, const QString &path, bool compressImages, Error &error);
    static bool writeDocumentFile(const Document &document, const QString &path, bool compressImages,
                                  QString *errorMessage = nullptr);
};

} // namespace zm
