#pragma once

#include "commands/state_command.h"

namespace zm {

/// Swaps a layer's whole list of effects, whatever was done to it.
class SetLayerFiltersCommand : public StateCommand<QList<FilterInstance>, Layer>
{
public:
    SetLayerFiltersCommand(Document *document, const QUuid &layerId, const QList<FilterInstance> &filters,
                           const QString &text, quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

protected:
    void apply(const QList<FilterInstance> &filters) override;
};

} // namespace zm
