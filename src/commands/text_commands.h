#pragma once

#include "commands/state_command.h"
#include "commands/undo_memory_cost.h"

#include <QCoreApplication>

namespace zm {

// Commands of what a text layer holds. A merge key of 0 stands for an edit outside any gesture.

/// A text and where its layer lies.
struct PlacedText
{
    TextLayerState text;
    ObjectTransform transform;

    friend bool operator==(const PlacedText &a, const PlacedText &b) = default;
};

class SetTextLayerStateCommand : public StateCommand<TextLayerState, TextLayer>, public UndoMemoryCost
{
public:
    SetTextLayerStateCommand(Document *document, const QUuid &layerId, const TextLayerState &state, const QString &text,
                             quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

    qint64 undoMemoryBytes() const override;

protected:
    void apply(const TextLayerState &state) override;
};

/// A text scaled or rewrapped, and the layer moved with it.
class ResizeTextLayerCommand : public StateCommand<PlacedText, TextLayer>
{
    Q_DECLARE_TR_FUNCTIONS(ResizeTextLayerCommand)

public:
    ResizeTextLayerCommand(Document *document, const QUuid &layerId, const TextLayerState &state,
                           const ObjectTransform &transform, quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

protected:
    void apply(const PlacedText &placed) override;
};

} // namespace zm
