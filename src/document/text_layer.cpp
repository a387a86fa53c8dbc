#include "document/text_layer.h"

#include "document/text_layout.h"

#include <QTextDocument>

namespace zm {

TextLayer::TextLayer(const QList<TextParagraph> &blocks, double textWidth, const QString &name, const QUuid &id)
    : Layer(name, id)
    , m_state(normalizedTextState({blocks, textWidth}))
{
}

RenderedContent TextLayer::renderContent(const RenderServices *) const
{
    return renderText(m_state);
}

std::unique_ptr<QTextDocument> TextLayer::layoutDocument(const RenderServices *) const
{
    return fittedTextDocument(m_state, TextLines::AsFormats);
}

bool TextLayer::setState(const TextLayerState &state)
{
    TextLayerState normalized = normalizedTextState(state);
    if (m_state == normalized)
        return false;
    m_state = std::move(normalized);
    markContentChanged();
    return true;
}

qint64 TextLayer::memoryBytes() const
{
    return Layer::memoryBytes() + zm::memoryBytes(m_state);
}

} // namespace zm
