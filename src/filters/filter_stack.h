#pragma once

#include "filters/filter_render.h"
#include "values/editable_path.h"
#include "values/filter_instance.h"

#include <QList>

#include <optional>

namespace zm {

class Filter;

/// Runs a layer's filters over its unfiltered picture, first to last. Takes and gives QImage::Format_RGBA8888; size is
/// the picture's logical size in layer units. Disabled instances and instances of unknown filters are skipped, and one
/// that fails passes its input on. The selection, in layer units, limits the instances that are scoped to it. Results
/// that are at hand in the services' cache are taken from there. On the thread of the renderer only.
/// The revision tells an asynchronous filter whether its result is still wanted; none of the filters so far is one.
FilterRenderResult evaluateFilterStack(const QImage &image, const QSizeF &size, const QList<FilterInstance> &instances,
                                       const RenderServices *services,
                                       const std::optional<EditablePath> &rasterSelection, quint64 revision);

/// One filter over a picture; the canvas is the layer's own rectangle in the units of the bounds. The input, as
/// RGBA8888, and its bounds come back when the filter fails, and without a renderer for a filter that needs one.
FilterRenderResult renderFilter(const Filter &filter, const QImage &image, const QRectF &bounds,
                                const ParameterValues &parameters, const RenderServices *services,
                                const std::optional<QRectF> &canvas);

} // namespace zm
