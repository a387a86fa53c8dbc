#include "generators/cornered_outline.h"

#include "base/geometry.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zm {

namespace {

// Below two degrees of turn, two sides are one line to the eye.
constexpr double kSmoothTurn = 2.0 * std::numbers::pi / 180.0;
// What two corners may use up of the side between them.
constexpr double kSharedLength = 0.98;

QPointF unit(const QPointF &vector)
{
    const double size = lengthOf(vector);
    return size > 0.0 ? vector / size : QPointF();
}

double turnBetween(const CubicCurve &in, const CubicCurve &out)
{
    const QPointF before = unit(in.derivativeAt(1.0));
    const QPointF after = unit(out.derivativeAt(0.0));
    return std::acos(std::clamp(QPointF::dotProduct(before, after), -1.0, 1.0));
}

} // namespace

CorneredOutline::CorneredOutline(const QPointF &start)
    : m_start(start)
{
}

void CorneredOutline::lineTo(const QPointF &point)
{
    if (lengthOf(point - end()) > 1e-9)
        m_sides.append({CubicCurve::line(end(), point), true});
}

void CorneredOutline::curveTo(const QPointF &firstControl, const QPointF &secondControl, const QPointF &point)
{
    m_sides.append({{end(), firstControl, secondControl, point}, false});
}

EditablePath CorneredOutline::rounded(double radius) const
{
    CorneredOutline closed = *this;
    closed.lineTo(m_start);
    const QList<Side> &sides = closed.m_sides;
    const qsizetype count = sides.size();
    const auto next = [count](qsizetype index) { return (index + 1) % count; };

    // Corner i lies between side i and the next; an arc touches both at this distance from it.
    QList<double> lengths(count);
    QList<double> cuts(count, 0.0);
    for (qsizetype i = 0; i < count; ++i) {
        lengths[i] = sides[i].curve.length();
        const double turn = turnBetween(sides[i].curve, sides[next(i)].curve);
        if (radius > 0.0 && turn > kSmoothTurn)
            cuts[i] = radius * std::tan(std::min(turn, std::numbers::pi / 2.0) / 2.0);
    }
    QList<double> room(count, 1.0);
    for (qsizetype i = 0; i < count; ++i) {
        const double wanted = cuts[i] + cuts[next(i)];
        const double given = kSharedLength * lengths[next(i)];
        if (wanted > given) {
            room[i] = std::min(room[i], given / wanted);
            room[next(i)] = std::min(room[next(i)], given / wanted);
        }
    }
    for (qsizetype i = 0; i < count; ++i)
        cuts[i] *= room[i];

    QList<CubicCurve> kept(count);
    for (qsizetype i = 0; i < count; ++i) {
        const CubicCurve &curve = sides[i].curve;
        const double before = cuts[(i + count - 1) % count];
        kept[i] = curve.piece(before > 0.0 ? curve.parameterAt(before) : 0.0,
                              cuts[i] > 0.0 ? curve.parameterAt(lengths[i] - cuts[i]) : 1.0);
    }

    EditablePathBuilder builder;
    builder.moveTo(kept.first().start);
    for (qsizetype i = 0; i < count; ++i) {
        const CubicCurve &curve = kept[i];
        if (!sides[i].isStraight)
            builder.curveTo(curve.firstControl, curve.secondControl, curve.end);
        else if (i + 1 < count || cuts[i] > 0.0)
            builder.lineTo(curve.end);
        if (cuts[i] <= 0.0)
            continue;
        // The cubic nearest to a circle's arc has handles of 4/3 * tan(turn / 4) radii.
        const CubicCurve &following = kept[next(i)];
        const double quarter = std::tan(turnBetween(curve, following) / 4.0);
        const double handle = lengthOf(following.start - curve.end) * (1.0 + quarter * quarter) / 3.0;
        builder.curveTo(curve.end + unit(curve.derivativeAt(1.0)) * handle,
                        following.start - unit(following.derivativeAt(0.0)) * handle, following.start);
    }
    builder.close();
    return builder.path();
}

} // namespace zm
