#include "commands/crop_image_layer_command.h"

#include "commands/image_crop.h"

namespace zm {

CropImageLayerCommand::CropImageLayerCommand(Document *document, const QUuid &layerId, const QRectF &rectangle,
                                             double rotation, QUndoCommand *parent)
    : CropImageLayerCommand(document, layerId, stepFor(document->imageLayer(layerId), rectangle, rotation), parent)
{
}

CropImageLayerCommand::CropImageLayerCommand(Document *document, const QUuid &layerId, const Step &step,
                                             QUndoCommand *parent)
    : StateCommand(document, layerId, step.before, step.after, tr("Crop Image"), parent)
    , m_imageBefore(step.imageBefore)
{
}

CropImageLayerCommand::Step CropImageLayerCommand::stepFor(const ImageLayer *layer, const QRectF &rectangle,
                                                           double rotation)
{
    const QImage image = layer ? layer->rasterImage() : QImage();
    const std::optional<ImageCrop> crop = imageCrop(image.size(), rectangle, rotation);
    if (!crop)
        return {};
    const QImage cropped = croppedImage(image, *crop);
    if (cropped.isNull())
        return {};
    const ObjectTransform &transform = layer->transform();
    ObjectTransform placed = transform;
    if (!crop->keepsAll(image.size())) { // else its numbers would come back in another form
        const QTransform matrix = crop->toImage * transform.matrix(QRectF(image.rect()));
        placed = ObjectTransform::fromMatrix(matrix, QRectF(QPointF(), crop->size), transform.anchor());
    }
    return {CroppedLayerState{placedSource(*layer), layer->rasterSelection()},
            image,
            {{RasterImageSource{cropped}, placed}, std::nullopt}};
}

void CropImageLayerCommand::apply(const CroppedLayerState &state)
{
    // The source first: a selection is clamped into the layer.
    document()->setImageLayerSource(objectId(), state.placed.source, state.placed.transform,
                                    object()->rasterSurfacePolicy());
    document()->setImageLayerRasterSelection(objectId(), state.selection);
}

qint64 CropImageLayerCommand::undoMemoryBytes() const
{
    const auto &after = std::get<RasterImageSource>(this->after().placed.source);
    const std::optional<EditablePath> &selection = before().selection;
    return memoryBytes(before().placed.source) + m_imageBefore.sizeInBytes() + after.image.sizeInBytes()
        + (selection ? memoryBytes(*selection) : 0);
}

} // namespace zm
