#pragma once

#include "commands/state_command.h"
#include "commands/undo_memory_cost.h"

#include <QCoreApplication>

namespace zm {

// Commands of what an image layer holds. A merge key of 0 stands for an edit outside any gesture. The pixels are shared
// with the layer until one of the two is written to.

/// What an image layer shows and where it lies.
struct PlacedImageSource
{
    ImageLayerSource source;
    ObjectTransform transform;

    friend bool operator==(const PlacedImageSource &a, const PlacedImageSource &b);
};

/// The same, with the way in which painting may change its surface.
struct ImageSurface
{
    PlacedImageSource placed;
    RasterSurfacePolicy policy = RasterSurfacePolicy::Fixed;

    friend bool operator==(const ImageSurface &a, const ImageSurface &b) = default;
};

/// The source and place of a layer; a getter for stateOf().
PlacedImageSource placedSource(const ImageLayer &layer);

/// Comparing large selections node by node is too dear: two that have more than 4096 nodes together count as different.
bool isSameState(const std::optional<EditablePath> &a, const std::optional<EditablePath> &b);

/// New pixels, painted or filled. An empty text reads "Paint Image". A source that has no pixels, or more than a raster
/// may have, makes the command obsolete.
class PaintImageLayerCommand : public StateCommand<ImageSurface, ImageLayer>, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(PaintImageLayerCommand)

public:
    PaintImageLayerCommand(Document *document, const QUuid &layerId, const ImageLayerSource &source,
                           const ObjectTransform &transform, RasterSurfacePolicy policy, const QString &text,
                           quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

    qint64 undoMemoryBytes() const override;

protected:
    void apply(const ImageSurface &surface) override;
};

/// A source of another size, refused as above; the layer keeps the policy that it has when the command runs.
class ResizeImageLayerCommand : public StateCommand<PlacedImageSource, ImageLayer>, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(ResizeImageLayerCommand)

public:
    ResizeImageLayerCommand(Document *document, const QUuid &layerId, const ImageLayerSource &source,
                            const ObjectTransform &transform, quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

    qint64 undoMemoryBytes() const override;

protected:
    void apply(const PlacedImageSource &placed) override;
};

/// Layer-local pixels; normalised as the layer does. No path clears the selection.
class SetImageLayerRasterSelectionCommand : public StateCommand<std::optional<EditablePath>, ImageLayer>,
                                            public UndoMemoryCost
{
public:
    SetImageLayerRasterSelectionCommand(Document *document, const QUuid &layerId,
                                        const std::optional<EditablePath> &selection, const QString &text,
                                        quint64 mergeKey = 0, QUndoCommand *parent = nullptr);

    qint64 undoMemoryBytes() const override;

protected:
    void apply(const std::optional<EditablePath> &selection) override;
};

} // namespace zm
