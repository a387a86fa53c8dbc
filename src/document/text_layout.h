#pragma once

#include "document/layer.h"
#include "document/text_state.h"

#include <QSize>

#include <memory>

class QTextDocument;

namespace zm {

/// Who draws the underlines, overlines and strike-outs of a laid out text.
enum class TextLines {
    /// The document itself, as an editor shows them.
    AsFormats,
    /// The renderer, over the finished text: the document's own lines are off, and each run is marked.
    ByHand,
};

/// Lays the text out. Fills are made for a box of fillSize pixels.
std::unique_ptr<QTextDocument> textDocument(const TextLayerState &state, const QSize &fillSize, TextLines lines);

/// Lays the text out twice: the first time tells the box that gradients and textures are fitted to.
std::unique_ptr<QTextDocument> fittedTextDocument(const TextLayerState &state, TextLines lines);

/// The text as a document was edited, the way back from textDocument().
TextLayerState textStateFromDocument(const QTextDocument &document, double textWidth);

/// The pixels of a text and the logical size they stand for. The image is null for a box beyond what a raster may have.
RenderedContent renderText(const TextLayerState &state);

} // namespace zm
