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

} // namespace zm
