#pragma once

#include "io/document/zelmora_document_io.h"

namespace zm {

/// True for a name that ends in ".zelmora", in any case.
bool hasDocumentSuffix(const QString &path);

/// Makes what was read the content of the document. It is as it was when that is refused.
bool replaceWithLoaded(Document &document, LoadedDocument loaded, Error &error);

/// Opens a document file, or imports a picture as a document of one layer. A failure leaves the document as it was.
bool openDocument(Document &document, const QString &path, Error &error);

} // namespace zm
