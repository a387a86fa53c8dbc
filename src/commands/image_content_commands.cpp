#include "commands/image_content_commands.h"

#include "base/pixel_limits.h"

namespace zm {

namespace {

constexpr qsizetype kMaximumComparedNodes = 4096;

qsizetype nodeCount(const std::optional<EditablePath> &path)
{
    qsizetype count = 0;
    if (path) {
        for (const EditablePathContour &contour : path->contours)
            count += contour.nodes.size();
    }
    return count;
}

/// The state before, or nothing when there is no such layer or it cannot take the source.
template<typename Getter>
auto stateBefore(const ImageLayer *layer, const ImageLayerSource &source, Getter getter)
{
    return stateOf(isAllocatableRasterSize(pixelSize(source)) ? layer : nullptr, getter);
}

ImageSurface surfaceOf(const ImageLayer &layer)
{
    return {placedSource(layer), layer.rasterSurfacePolicy()};
}

std::optional<EditablePath> selectionFor(const ImageLayer *layer, const std::optional<EditablePath> &selection)
{
    return layer ? normalizedRasterSelection(selection, layer->layerSize()) : std::nullopt;
}

} // namespace

bool operator==(const PlacedImageSource &a, const PlacedImageSource &b)
{
    return a.transform == b.transform && sameSource(a.source, b.source);
}

PlacedImageSource placedSource(const ImageLayer &layer)
{
    return {layer.source(), layer.transform()};
}

bool isSameState(const std::optional<EditablePath> &a, const std::optional<EditablePath> &b)
{
    return nodeCount(a) + nodeCount(b) <= kMaximumComparedNodes && a == b;
}

PaintImageLayerCommand::PaintImageLayerCommand(Document *document, const QUuid &layerId, const ImageLayerSource &source,
                                               const ObjectTransform &transform, RasterSurfacePolicy policy,
                                               const QString &text, quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, layerId, stateBefore(document->imageLayer(layerId), source, surfaceOf),
                   {{normalizedSource(source), transform}, policy}, text.isEmpty() ? tr("Paint Image") : text, parent,
                   MergeId::PaintImage, mergeKey)
{
}

void PaintImageLayerCommand::apply(const ImageSurface &surface)
{
    document()->setImageLayerSource(objectId(), surface.placed.source, surface.placed.transform, surface.policy);
}

qint64 PaintImageLayerCommand::undoMemoryBytes() const
{
    return memoryBytes(before().placed.source) + memoryBytes(after().placed.source);
}

ResizeImageLayerCommand::ResizeImageLayerCommand(Document *document, const QUuid &layerId,
                                                 const ImageLayerSource &source, const ObjectTransform &transform,
                                                 quint64 mergeKey, QUndoCommand *parent)
    : StateCommand(document, layerId, stateBefore(document->imageLayer(layerId), source, placedSource),
                   {normalizedSource(source), transform}, tr("Resize Image"), parent, MergeId::ResizeImage, mergeKey)
{
}

void ResizeImageLayerCommand::apply(const PlacedImageSource &placed)
{
    document()->setImageLayerSource(objectId(), placed.source, placed.transform, object()->rasterSurfacePolicy());
}

qint64 ResizeImageLayerCommand::undoMemoryBytes() const
{
    return memoryBytes(before().source) + memoryBytes(after().source);
}

SetImageLayerRasterSelectionCommand::SetImageLayerRasterSelectionCommand(Document *document, const QUuid &layerId,
                                                                         const std::optional<EditablePath> &selection,
                                                                         const QString &text, quint64 mergeKey,
                                                                         QUndoCommand *parent)
    : StateCommand(document, layerId, stateOf(document->imageLayer(layerId), &ImageLayer::rasterSelection),
                   selectionFor(document->imageLayer(layerId), selection), text, parent, MergeId::RasterSelection,
                   mergeKey)
{
}

void SetImageLayerRasterSelectionCommand::apply(const std::optional<EditablePath> &selection)
{
    document()->setImageLayerRasterSelection(objectId(), selection);
}

qint64 SetImageLayerRasterSelectionCommand::undoMemoryBytes() const
{
    return (before() ? memoryBytes(*before()) : 0) + (after() ? memoryBytes(*after()) : 0);
}

} // namespace zm
