#pragma once

namespace zm {

/// What QUndoCommand::id() answers for commands that merge within a gesture: one number for each class.
enum class MergeId : int {
    None = -1,
    Transform = 1,
    LayerFilters = 9,
    Opacity = 10,
    ResizeDocument = 11,
};

} // namespace zm
