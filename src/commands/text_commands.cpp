#include "commands/text_commands.h"

namespace zm {

namespace {

PlacedText placedText(const TextLayer &layer)
{
    return {layer.state(), layer.transform()};
}

} // namespace

SetTextLayerStateCommand::SetTextLayerStateCommand(Document *document, const QUuid &layerId,
                                                   const TextLayerState &state, const QString &text, quint64 mergeKey,
                                                   QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->textLayer(layerId), &TextLayer::state),
                   normalizedTextState(state), text, parent, MergeId::TextState, mergeKey)
{
}

void SetTextLayerStateCommand::apply(const TextLayerState &state)
{
    document()->setTextLayerState(objectId(), state);
}

qint64 SetTextLayerStateCommand::undoMemoryBytes() const
{
    return memoryBytes(before()) + memoryBytes(after());
}

ResizeTextLayerCommand::ResizeTextLayerCommand(Document *document, const QUuid &layerId, const TextLayerState &state,
                                               const ObjectTransform &transform, quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->textLayer(layerId), placedText),
                   {normalizedTextState(state), transform}, tr("Resize Text"), parent, MergeId::ResizeText, mergeKey)
{
}

void ResizeTextLayerCommand::apply(const PlacedText &placed)
{
    document()->setTextLayerState(objectId(), placed.text);
    document()->setObjectTransform(objectId(), placed.transform);
}

} // namespace zm
