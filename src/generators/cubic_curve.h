#pragma once

#include <QPointF>

namespace zm {

/// A cubic Bézier curve, for taking outlines apart.
struct CubicCurve
{
    QPointF start;
    QPointF firstControl;
    QPointF secondControl;
    QPointF end;

    /// A straight line that is walked at an even pace.
    static CubicCurve line(const QPointF &start, const QPointF &end);

    QPointF pointAt(double t) const;
    /// Along the curve, by the change of t.
    QPointF derivativeAt(double t) const;
    /// Measured along a polyline, which is good to a percent.
    double length() const;
    /// The parameter at a distance from the start; 1 beyond the end.
    double parameterAt(double distance) const;
    /// The piece between two parameters.
    CubicCurve piece(double from, double to) const;
};

/// The curvature at an end of a cubic curve, from the length of the handle there and the distance of the other control
/// from that handle's line.
double endCurvature(double handle, double aside);

/// The length of the handle that gives an end this curvature. Curves that meet in one direction and with one curvature
/// show no joint, in a stretched box neither.
double handleForCurvature(double curvature, double aside);

} // namespace zm
