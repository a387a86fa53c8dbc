#pragma once

#include "io/document/embedded_image.h"

class QIODevice;

namespace zm {

class Document;

/// Writes a document file to the device. Rasters that have no file in the mode yet get it from several threads while
/// the layers before them are written. A document that cannot be stored because of its size or its number of layers
/// fails before the device is touched.
bool writeDocumentSections(const Document &document, QIODevice &device, EmbeddedImageMode mode, Error &error);

} // namespace zm
