#include "values/gradient_fill.h"

#include "base/geometry.h"
#include "base/sanitize.h"
#include "values/valid_color.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace zm {

namespace {

double wrappedDegrees(double angle)
{
    if (!std::isfinite(angle))
        return 0.0;
    const double wrapped = std::fmod(angle, 360.0);
    // Adding 360 to a tiny negative angle rounds to 360 itself.
    return wrapped < 0.0 ? std::fmod(wrapped + 360.0, 360.0) : wrapped;
}

QPointF clampedIntoBox(const QPointF &point)
{
    return {std::clamp(point.x(), 0.0, 1.0), std::clamp(point.y(), 0.0, 1.0)};
}

GradientStop cleanStop(const GradientStop &stop)
{
    return {std::clamp(finiteOr(stop.position, 0.0), 0.0, 1.0), validOrBlack(stop.color)};
}

} // namespace

GradientFill cleanGradient(const GradientFill &gradient)
{
    GradientFill clean = gradient;
    if (gradient.type != GradientType::Radial)
        clean.type = GradientType::Linear;
    if (!isFinite(gradient.start) || !isFinite(gradient.end)) {
        const QLineF points = defaultGradientPoints(clean.type);
        clean.start = points.p1();
        clean.end = points.p2();
    }
    if (clean.stops.size() > kMaximumGradientStops)
        clean.stops.resize(kMaximumGradientStops);
    std::ranges::transform(clean.stops, clean.stops.begin(), cleanStop);
    if (clean.stops.isEmpty())
        clean.stops = {{0.0, Qt::transparent}, {1.0, Qt::transparent}};
    else if (clean.stops.size() == 1)
        clean.stops.append(GradientStop(clean.stops.first()));
    return clean;
}

QList<GradientStop> sortedStops(const QList<GradientStop> &stops)
{
    QList<GradientStop> sorted = stops;
    if (!std::ranges::is_sorted(stops, {}, &GradientStop::position))
        std::ranges::stable_sort(sorted, {}, &GradientStop::position);
    return sorted;
}

double gradientAngle(const GradientFill &gradient)
{
    const QPointF offset = gradient.end - gradient.start;
    if (std::abs(offset.x()) <= 1e-12 && std::abs(offset.y()) <= 1e-12)
        return 0.0;
    return wrappedDegrees(std::atan2(offset.y(), offset.x()) * 180.0 / std::numbers::pi);
}

QLineF gradientPoints(double angle)
{
    const double radians = wrappedDegrees(angle) * std::numbers::pi / 180.0;
    const QPointF direction(std::cos(radians), std::sin(radians));
    const double greater = std::max(std::abs(direction.x()), std::abs(direction.y()));
    const QPointF reach = direction * (greater > 0.0 ? 0.5 / greater : 0.5);
    const QPointF centre(0.5, 0.5);
    return {centre - reach, centre + reach};
}

QLineF defaultGradientPoints(GradientType type)
{
    return type == GradientType::Radial ? QLineF(0.5, 0.5, 1.0, 0.5) : gradientPoints(0.0);
}

QPointF radialOrigin(const GradientFill &gradient)
{
    return clampedIntoBox(gradient.start) * 100.0;
}

GradientFill withRadialOrigin(const GradientFill &gradient, const QPointF &percent)
{
    const auto fraction = [](double wanted, double present) {
        return std::isfinite(wanted) ? std::clamp(wanted / 100.0, 0.0, 1.0) : present;
    };
    GradientFill moved = gradient;
    moved.start = {fraction(percent.x(), gradient.start.x()), fraction(percent.y(), gradient.start.y())};
    moved.end += moved.start - gradient.start;
    return moved;
}

double radialRadius(const GradientFill &gradient)
{
    return lengthOf(clampedIntoBox(gradient.end) - clampedIntoBox(gradient.start)) * 100.0;
}

GradientFill withRadialRadius(const GradientFill &gradient, double percent)
{
    const double radius = std::clamp(finiteOr(percent, 0.0), 0.0, 100.0) / 100.0;
    // Below this the two points tell no direction.
    constexpr double shortestLength = 0.0001;
    GradientFill resized = gradient;
    resized.start = clampedIntoBox(gradient.start);
    const QPointF offset = clampedIntoBox(gradient.end) - resized.start;
    const QPointF direction = lengthOf(offset) < shortestLength ? QPointF(1.0, 0.0) : offset / lengthOf(offset);
    resized.end = resized.start + direction * radius;
    return resized;
}

} // namespace zm
