#pragma once

#include <QColor>
#include <QLineF>
#include <QList>
#include <QPointF>

namespace zm {

enum class GradientType : quint32 { Linear = 0, Radial = 1 };

struct GradientStop
{
    /// 0..1 along the gradient.
    double position = 0.0;
    QColor color = Qt::black;

    friend bool operator==(const GradientStop &a, const GradientStop &b) = default;
};

/// A gradient in fractions of the box that it paints, so that it follows a resize. Linear: from start to end. Radial:
/// around start, with its rim through end.
struct GradientFill
{
    GradientType type = GradientType::Linear;
    QPointF start{0.0, 0.5};
    QPointF end{1.0, 0.5};
    /// In the order in which they were made; 2..kMaximumGradientStops.
    QList<GradientStop> stops{{0.0, Qt::black}, {1.0, Qt::white}};

    friend bool operator==(const GradientFill &a, const GradientFill &b) = default;
};

inline constexpr qsizetype kMaximumGradientStops = 1'000'000;

/// The gradient as a fill keeps it: an unknown type becomes linear, points that are not finite the default ones,
/// positions are limited to 0..1, an invalid colour becomes black, stops above the limit are dropped. A single stop is
/// doubled, and no stops become two transparent ones.
GradientFill cleanGradient(const GradientFill &gradient);

/// By position; equal positions keep their order.
QList<GradientStop> sortedStops(const QList<GradientStop> &stops);

/// Degrees, 0 up to 360, clockwise from the right; 0 where the points coincide.
double gradientAngle(const GradientFill &gradient);

/// From edge to edge of the box through its centre, in fractions of the box. Degrees; one that is not finite counts
/// as 0.
QLineF gradientPoints(double angle);

/// From the left to the right edge, or from the centre to the middle of the right edge.
QLineF defaultGradientPoints(GradientType type);

/// Percent of the box, 0..100.
QPointF radialOrigin(const GradientFill &gradient);
/// Limited to 0..100 percent; the rim moves along. A component that is not finite leaves its axis as it is.
GradientFill withRadialOrigin(const GradientFill &gradient, const QPointF &percent);

/// The distance of the rim, with both points limited to the box, in percent of the box.
double radialRadius(const GradientFill &gradient);
/// Limited to 0..100 percent, 0 for a number that is not finite. The rim keeps its direction from the centre, which is
/// to the right where the two coincide.
GradientFill withRadialRadius(const GradientFill &gradient, double percent);

} // namespace zm
