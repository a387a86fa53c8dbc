#pragma once

#include "io/document/zelmora_document_io.h"

namespace zm {

/// True for a name that ends in ".zelmora", in any case.
bool hasDocumentSuffix(const QString &path);

/// Makes what was read the content of the document. False, with the document as it was, when it is refused.
bool replaceWithLoaded(Document &document, LoadedDocument loaded);

/// Opens a document file, or imports a picture as a document of one layer. Returns why it failed, for people, and then
/// the document is as it was; empty on success.
QString openDocument(Document &document, const QString &path);

} // namespace zm
