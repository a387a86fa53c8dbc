#include "generators/curved_outlines.h"

#include "base/geometry.h"
#include "values/editable_path_builder.h"

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

// How far the spline's parameter moves between two anchors: the root of their distance, the centripetal
// parametrisation (Lee, "Choosing nodes in parametric curve interpolation", 1989), which keeps uneven gaps from making
// loops and bumps.
double parameterGap(const QPointF &from, const QPointF &to)
{
    return std::sqrt(lengthOf(to - from));
}

// The derivatives, at the anchors, of the closed cubic spline through them whose second derivative is continuous
// (de Boor, "A Practical Guide to Splines", 1978, chapter IV).
QList<QPointF> splineTangents(const QList<QPointF> &anchors)
{
    const qsizetype count = anchors.size();
    const auto before = [count](qsizetype index) { return (index + count - 1) % count; };
    const auto after = [count](qsizetype index) { return (index + 1) % count; };
    QList<double> gaps(count);
    for (qsizetype i = 0; i < count; ++i)
        gaps[i] = parameterGap(anchors[i], anchors[after(i)]);

    // The rows' middles weigh twice as much as their sides together: Gauss-Seidel loses at least half of the error in
    // every round.
    QList<QPointF> tangents(count);
    constexpr int rounds = 24;
    for (int round = 0; round < rounds; ++round) {
        for (qsizetype i = 0; i < count; ++i) {
            const double in = gaps[before(i)];
            const double out = gaps[i];
            const QPointF chords =
                (anchors[i] - anchors[before(i)]) * (out / in) + (anchors[after(i)] - anchors[i]) * (in / out);
            tangents[i] = (chords * 3.0 - tangents[before(i)] * out - tangents[after(i)] * in) / (2.0 * (in + out));
        }
    }
    return tangents;
}

} // namespace

EditablePath smoothedPolygon(const QList<QPointF> &anchors, double strength)
{
    EditablePathBuilder builder;
    const qsizetype count = anchors.size();
    if (count == 0)
        return builder.path();
    const QList<QPointF> tangents = splineTangents(anchors);
    builder.moveTo(anchors.first());
    for (qsizetype i = 0; i < count; ++i) {
        const qsizetype next = (i + 1) % count;
        const QPointF from = anchors[i];
        const QPointF to = anchors[next];
        const double reach = strength * parameterGap(from, to) / 3.0;
        if (strength > 0.0)
            builder.curveTo(from + tangents[i] * reach, to - tangents[next] * reach, to);
        else if (next > 0)
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
