#include "generators/cubic_curve.h"

#include "base/geometry.h"

#include <cmath>

namespace zm {

namespace {

constexpr int kLengthSteps = 16;

// Calls back with the parameter at the start of each step, where the step leads and how long it is, until told to stop.
template<typename Visit>
void walk(const CubicCurve &curve, const Visit &visit)
{
    QPointF previous = curve.start;
    for (int i = 0; i < kLengthSteps; ++i) {
        const QPointF point = curve.pointAt((i + 1.0) / kLengthSteps);
        const QPointF step = point - previous;
        if (!visit(double(i) / kLengthSteps, lengthOf(step)))
            return;
        previous = point;
    }
}

} // namespace

CubicCurve CubicCurve::line(const QPointF &start, const QPointF &end)
{
    const QPointF third = (end - start) / 3.0;
    return {start, start + third, end - third, end};
}

QPointF CubicCurve::pointAt(double t) const
{
    const double s = 1.0 - t;
    return start * (s * s * s) + firstControl * (3.0 * s * s * t) + secondControl * (3.0 * s * t * t)
        + end * (t * t * t);
}

QPointF CubicCurve::derivativeAt(double t) const
{
    const double s = 1.0 - t;
    return (firstControl - start) * (3.0 * s * s) + (secondControl - firstControl) * (6.0 * s * t)
        + (end - secondControl) * (3.0 * t * t);
}

double CubicCurve::length() const
{
    double total = 0.0;
    walk(*this, [&](double, double step) {
        total += step;
        return true;
    });
    return total;
}

double CubicCurve::parameterAt(double distance) const
{
    double walked = 0.0;
    double parameter = 1.0;
    walk(*this, [&](double t, double step) {
        if (walked + step < distance) {
            walked += step;
            return true;
        }
        parameter = step > 0.0 ? t + (distance - walked) / step / kLengthSteps : t;
        return false;
    });
    return parameter;
}

CubicCurve CubicCurve::piece(double from, double to) const
{
    const QPointF first = from > 0.0 ? pointAt(from) : start;
    const QPointF last = to < 1.0 ? pointAt(to) : end;
    const double third = (to - from) / 3.0;
    return {first, first + derivativeAt(from) * third, last - derivativeAt(to) * third, last};
}

double endCurvature(double handle, double aside)
{
    return 2.0 / 3.0 * aside / (handle * handle);
}

double handleForCurvature(double curvature, double aside)
{
    return std::sqrt(2.0 / 3.0 * aside / curvature);
}

} // namespace zm
