#pragma once

#include "document/layer.h"
#include "document/text_format.h"
#include "document/text_state.h"

#include <memory>

class QTextDocument;

namespace zm {

// All of these take states as normalizedTextState() gives them.

/// Lays the text out. Fills are made for a box of fillSize pixels.
std::unique_ptr<QTextDocument> textDocument(const TextLayerState &state, const QSize &fillSize, TextLines lines);

/// Lays the text out with its gradients and textures fitted to its box, which a first layout tells.
std::unique_ptr<QTextDocument> fittedTextDocument(const TextLayerState &state, TextLines lines);

/// The text as a document was edited, the way back from textDocument() with lines as formats.
TextLayerState textStateFromDocument(const QTextDocument &document, double textWidth);

/// The pixels of a text and the logical size they stand for. The image is null for a box beyond what a raster may have.
RenderedContent renderText(const TextLayerState &state);

} // namespace zm
