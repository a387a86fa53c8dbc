#include "generators/curved_outlines.h"

#include "base/geometry.h"
#include "document/editable_path_builder.h"

#include <QTransform>

#include <algorithm>
#include <cmath>

namespace zm {

namespace {

/// What the curves of a path cover. QPainterPath takes the rounding of large and nearly symmetric arcs for a cubic term
/// and then misses their ends; measured at unit size the rounding stays below what it sees.
QRectF coveredBy(const EditablePath &path)
{
    const QPainterPath outline = painterPath(path);
    const QRectF hull = outline.controlPointRect();
    const double reach =
        std::max({std::abs(hull.left()), std::abs(hull.right()), std::abs(hull.top()), std::abs(hull.bottom())});
    if (reach <= 0.0)
        return {};
    const QRectF covered = QTransform::fromScale(1.0 / reach, 1.0 / reach).map(outline).boundingRect();
    return {covered.topLeft() * reach, covered.size() * reach};
}

} // namespace

EditablePath smoothedPolygon(const QList<QPointF> &anchors, double strength)
{
    const qsizetype count = anchors.size();
    const auto at = [&](qsizetype index) { return anchors[(index + count) % count]; };
    // The chord between the neighbours gives the direction, the nearer gap's share the length.
    const auto handle = [&](qsizetype index, double gap) {
        const QPointF chord = at(index + 1) - at(index - 1);
        const double chordLength = lengthOf(chord);
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
        const double gap = lengthOf(to - from);
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
    const QRectF covered = coveredBy(path);
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
