#pragma once

#include "document/layer.h"
#include "document/text_state.h"

#include <memory>

class QTextDocument;

namespace zm {

/// A layer of styled text. It keeps its state as a value; a QTextDocument is made of it for a moment, to lay it out.
class TextLayer : public Layer
{
public:
    TextLayer(const QList<TextParagraph> &blocks, double textWidth, const QString &name, const QUuid &id = {});

    LayerType layerType() const override { return LayerType::Text; }
    /// The text and its lines in a box that holds it. The image is null for a box beyond what a raster may have.
    RenderedContent renderContent(const RenderServices *services) const override;

    const TextLayerState &state() const { return m_state; }
    /// Normalises; returns whether something changed.
    bool setState(const TextLayerState &state);

    /// The text as it is laid out, with fills fitted to its box and its lines as formats of the text, for an editor.
    std::unique_ptr<QTextDocument> layoutDocument(const RenderServices *services) const;

    qint64 memoryBytes() const override;

private:
    TextLayerState m_state;
};

} // namespace zm
