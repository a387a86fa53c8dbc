#pragma once

namespace zm {

/// What QUndoCommand::id() answers for commands that merge within a gesture: one number for each class.
enum class MergeId : int {
    None = -1,
    Transform = 1,
    TextState = 2,
    ResizeText = 3,
    ShapeGeometry = 4,
    ShapeFill = 5,
    ShapeStroke = 6,
    ResizeShape = 7,
    ResizeImage = 8,
    LayerFilters = 9,
    Opacity = 10,
    ResizeDocument = 11,
    RasterSelection = 12,
    PaintImage = 13,
};

} // namespace zm
