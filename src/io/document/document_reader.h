#pragma once

#include "io/document/layer_section.h"

#include <functional>

class QIODevice;

namespace zm {

/// What a document file tells about the document as a whole.
struct DocumentHeader
{
    quint32 formatVersion = 0;
    QSizeF documentSize;
    QColor backgroundColor;
};

/// Takes the layers of a file, the bottom first, on the thread that reads. False refuses one and ends the reading.
using LayerSink = std::function<bool(LayerRecord layer, Error &error)>;

/// Reads a document file to its end and hands over its layers. Large pictures are decoded by several threads, a few at
/// a time; layers and the first failure come as if there were one thread. When pixels are skipped, a file or a buffer
/// is not copied and must not be shortened meanwhile.
std::optional<DocumentHeader> readDocumentSections(QIODevice &device, PixelReading pixels, const LayerSink &sink,
                                                   Error &error);

} // namespace zm
