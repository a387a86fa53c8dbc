#include "filters/filter_stack.h"

namespace zm {

FilterRenderResult evaluateFilterStack(const QImage &image, const QSizeF &size,
                                       [[maybe_unused]] const QList<FilterInstance> &instances,
                                       [[maybe_unused]] const RenderServices *services,
                                       [[maybe_unused]] const std::optional<EditablePath> &rasterSelection,
                                       [[maybe_unused]] quint64 revision)
{
    // No filter is registered, so every instance is of an unknown one and the picture passes through.
    return {image.convertToFormat(QImage::Format_RGBA8888), QRectF(QPointF(), size)};
}

} // namespace zm
