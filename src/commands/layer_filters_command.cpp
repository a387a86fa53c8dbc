#include "commands/layer_filters_command.h"

namespace zm {

SetLayerFiltersCommand::SetLayerFiltersCommand(Document *document, const QUuid &layerId,
                                               const QList<FilterInstance> &filters, const QString &text,
                                               quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->layer(layerId), &Layer::filters), filters, text, parent,
                   MergeId::LayerFilters, mergeKey)
{
}

void SetLayerFiltersCommand::apply(const QList<FilterInstance> &filters)
{
    document()->setLayerFilters(objectId(), filters);
}

} // namespace zm
