#pragma once

#include "commands/image_content_commands.h"

namespace zm {

/// What a crop changes: pixels, place and, since it speaks of the old pixels, the selection.
struct CroppedLayerState
{
    PlacedImageSource placed;
    std::optional<EditablePath> selection;

    friend bool operator==(const CroppedLayerState &a, const CroppedLayerState &b) = default;
};

/// Cuts an image layer to a rectangle in pixels of its picture, turned by degrees about its centre. What is left stays
/// in its place in the document and keeps the anchor; an SVG becomes pixels. Resamples when it is made.
class CropImageLayerCommand : public StateCommand<CroppedLayerState, ImageLayer>, public UndoMemoryCost
{
    Q_DECLARE_TR_FUNCTIONS(CropImageLayerCommand)

public:
    CropImageLayerCommand(Document *document, const QUuid &layerId, const QRectF &rectangle, double rotation,
                          QUndoCommand *parent = nullptr);

    qint64 undoMemoryBytes() const override;

protected:
    void apply(const CroppedLayerState &state) override;

private:
    struct Step
    {
        std::optional<CroppedLayerState> before;
        QImage imageBefore;
        CroppedLayerState after;
    };

    static Step stepFor(const ImageLayer *layer, const QRectF &rectangle, double rotation);
    CropImageLayerCommand(Document *document, const QUuid &layerId, const Step &step, QUndoCommand *parent);

    // The source's own pixels, or those that an SVG was drawn to.
    QImage m_imageBefore;
};

} // namespace zm
