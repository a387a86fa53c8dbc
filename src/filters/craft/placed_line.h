#pragma once

#include "filters/filter_render.h"

#include <QLineF>

namespace zm {

/// A gradient position of the request as a line in pixels of the picture: from a place to an end, or from a centre to
/// its rim.
inline QLineF placedLine(const FilterRenderRequest &request, const QString &key, const GradientPosition &fallback)
{
    const GradientPosition position = request.parameters.gradientPosition(key, fallback);
    return {request.placeInLayer(position.x1, position.y1), request.placeInLayer(position.x2, position.y2)};
}

} // namespace zm
