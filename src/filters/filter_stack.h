#pragma once

#include "document/editable_path.h"
#include "filters/filter_instance.h"

#include <QImage>
#include <QList>
#include <QRectF>

#include <optional>

namespace zm {

struct RenderServices;

/// A filtered picture and the rectangle, in layer coordinates, that it covers: larger than the layer when a filter grew
/// it.
struct FilterRenderResult
{
    QImage image;
    QRectF bounds;
};

/// Runs a layer's filters over its unfiltered picture, first to last. Takes and gives QImage::Format_RGBA8888; size is
/// the picture's logical size in layer units. Disabled instances and instances of unknown filters are skipped. The
/// selection limits the instances that are scoped to it.
FilterRenderResult evaluateFilterStack(const QImage &image, const QSizeF &size, const QList<FilterInstance> &instances,
                                       const RenderServices *services,
                                       const std::optional<EditablePath> &rasterSelection, quint64 revision);

} // namespace zm
