#include "generators/curved_outlines.h"

#include "document/editable_path_builder.h"

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

double length(const QPointF &vector)
{
    return std::hypot(vector.x(), vector.y());
}

} // namespace

EditablePath smoothedPolygon(const QList<QPointF> &anchors, double strength)
{
    const qsizetype count = anchors.size();
    const auto at = [&](qsizetype index) { return anchors[(index + count) % count]; };
    // The chord between the neighbours gives the direction, the nearer gap's share the length.
    const auto handle = [&](qsizetype index, double gap) {
        const QPointF chord = at(index + 1) - at(index - 1);
        const double chordLength = length(chord);
        constexpr double share = 0.39;
        return chordLength > 0.0 ? chord * (gap * share * strength / chordLength) : QPointF();
    };
    EditablePathBuilder builder;
    if (count == 0)
        return builder.path();
    builder.moveTo(anchors.first());
    for (qsizetype i = 0; i < count; ++i) {
        const QPointF from = at(i);
        const QPointF to = at(i + 1);
        const double gap = length(to - from);
        if (strength > 0.0)
            builder.curveTo(from + handle(i, gap), to - handle(i + 1, gap), to);
        else if (i + 1 < count)
            builder.lineTo(to);
    }
    builder.close();
    return builder.path();
}

void bulgeTo(EditablePathBuilder &builder, const QPointF &from, const QPointF &to, double bulge)
{
    // The cubic nearest to an arc of sweep a has handles of 4/3 * tan(a / 4) radii along its end tangents; with the
    // bulge, tan(a / 4), sine and cosine drop out.
    const QPointF chord = (to - from) / 3.0;
    const QPointF outwards(chord.y(), -chord.x());
    const QPointF rise = outwards * (2.0 * bulge);
    const QPointF run = chord * (1.0 - bulge * bulge);
    builder.curveTo(from + run + rise, to - run + rise, to);
}

EditablePath fittedInto(EditablePath path, const QRectF &box)
{
    const QRectF covered = pathBounds(path, 0.0);
    if (covered.width() <= 0.0 || covered.height() <= 0.0)
        return path;
    const double scaleX = box.width() / covered.width();
    const double scaleY = box.height() / covered.height();
    const auto fit = [&](QPointF &point) {
        point = {box.left() + (point.x() - covered.left()) * scaleX, box.top() + (point.y() - covered.top()) * scaleY};
    };
    for (EditablePathContour &contour : path.contours) {
        for (EditablePathNode &node : contour.nodes) {
            fit(node.anchor);
            fit(node.inControl);
            fit(node.outControl);
        }
    }
    return path;
}

} // namespace zm
