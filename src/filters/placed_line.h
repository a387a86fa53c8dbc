#pragma once

#include "filters/filter_render.h"

#include <QLineF>

namespace zm {

/// A gradient position of the request as a line in pixels of the picture: from a place to an end, or from a centre to
/// its rim.
inline QLineF placedLine(const FilterRenderRequest &request, const QString &key, const GradientPosition &fallback)
{
    const GradientPosition position = request.parameters.gradientPosition(key, fallback);
    const double width = request.image.width();
    const double height = request.image.height();
    return {position.x1 * width, position.y1 * height, position.x2 * width, position.y2 * height};
}

} // namespace zm
