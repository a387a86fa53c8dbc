#pragma once

#include "io/document/zelmora_document_io.h"

#include <QJsonObject>

namespace zm::cli {

/// What a file holds: a document's records, or a picture as a document of one layer by the rules of its import, with
/// format version 0 because it is no document file. When pixels are skipped nothing is decoded.
std::optional<DocumentRecords> readFileRecords(const QString &path, PixelReading pixels, Error &error);

/// The records as "zelmora info --json" tells them. The digests need the pixels.
QJsonObject documentInfo(const QString &path, const DocumentRecords &records, bool withDigest);

} // namespace zm::cli
