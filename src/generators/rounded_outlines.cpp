#include "generators/rounded_outlines.h"

#include "values/editable_path_builder.h"

#include <algorithm>

namespace zm {

CubicCurve cornerCurve(const QPointF &previous, const QPointF &vertex, const QPointF &next, double cut)
{
    const QPointF start = vertex + (previous - vertex) * cut;
    const QPointF end = vertex + (next - vertex) * cut;
    return {start, start + (vertex - start) * (2.0 / 3.0), end + (vertex - end) * (2.0 / 3.0), end};
}

EditablePath roundedPolygon(const QList<QPointF> &vertices, double roundness, double cap)
{
    EditablePathBuilder builder;
    const double cut = std::min(roundness, 1.0) * cap;
    const qsizetype count = vertices.size();
    for (qsizetype i = 0; i < count; ++i) {
        const auto draw = [&](const QPointF &point) { i == 0 ? builder.moveTo(point) : builder.lineTo(point); };
        if (cut <= 0.0) {
            draw(vertices[i]);
            continue;
        }
        const CubicCurve corner =
            cornerCurve(vertices[(i + count - 1) % count], vertices[i], vertices[(i + 1) % count], cut);
        draw(corner.start);
        builder.curveTo(corner.firstControl, corner.secondControl, corner.end);
    }
    if (count > 0)
        builder.close();
    return builder.path();
}

EditablePath roundedRectangle(const QRectF &rectangle, const QSizeF &radii)
{
    const double rx = radii.width();
    const double ry = radii.height();
    EditablePathBuilder builder;
    if (rx <= 0.0 || ry <= 0.0) {
        builder.moveTo(rectangle.topLeft());
        builder.lineTo(rectangle.topRight());
        builder.lineTo(rectangle.bottomRight());
        builder.lineTo(rectangle.bottomLeft());
        builder.close();
        return builder.path();
    }
    // From the end of an arc a straight side follows, unless the arcs meet.
    const auto sideTo = [&](const QPointF &point, double length) {
        if (length > 0.0)
            builder.lineTo(point);
    };
    const double acrossLength = rectangle.width() - 2.0 * rx;
    const double downLength = rectangle.height() - 2.0 * ry;
    const QPointF right(rx, 0.0);
    const QPointF down(0.0, ry);
    // The handles lie this far from the corner itself.
    const QPointF rightOfCorner = right * (1.0 - kQuarterArc);
    const QPointF belowCorner = down * (1.0 - kQuarterArc);
    const QPointF topLeft = rectangle.topLeft();
    const QPointF topRight = rectangle.topRight();
    const QPointF bottomRight = rectangle.bottomRight();
    const QPointF bottomLeft = rectangle.bottomLeft();
    builder.moveTo(topLeft + right);
    sideTo(topRight - right, acrossLength);
    builder.curveTo(topRight - rightOfCorner, topRight + belowCorner, topRight + down);
    sideTo(bottomRight - down, downLength);
    builder.curveTo(bottomRight - belowCorner, bottomRight - rightOfCorner, bottomRight - right);
    sideTo(bottomLeft + right, acrossLength);
    builder.curveTo(bottomLeft + rightOfCorner, bottomLeft - belowCorner, bottomLeft - down);
    sideTo(topLeft + down, downLength);
    builder.curveTo(topLeft + belowCorner, topLeft + rightOfCorner, topLeft + right);
    builder.close();
    return builder.path();
}

} // namespace zm
