#include "base/geometry.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

using std::numbers::pi;

// Half an ellipse that stands on the x axis, y upwards, centred at x = 0.
struct Arch
{
    double halfWidth;
    double height;

    QPointF at(double angle) const { return {halfWidth * std::cos(angle), height * std::sin(angle)}; }
    QPointF outwardNormal(double angle) const
    {
        const QPointF normal(std::cos(angle) * height, std::sin(angle) * halfWidth);
        return normal / lengthOf(normal);
    }
};

// A circle that rounds the right foot of an arch: it rests on the axis and touches the arch, from inside or outside.
struct Fillet
{
    double radius = 0.0;
    QPointF centre;
    /// Where on the arch it touches.
    double archAngle = 0.0;
    /// The direction of the arch's outward normal there.
    double normalAngle = 0.0;
};

/// side is -1 inside the arch and 1 outside. Walking up the arch, a circle on that side gains height from below the
/// axis to above it, so halving finds where it rests.
Fillet restingCircle(const Arch &arch, double radius, double side)
{
    double low = 0.0;
    double high = pi / 2.0;
    for (int i = 0; i < 48; ++i) {
        const double angle = (low + high) / 2.0;
        const double centreY = arch.at(angle).y() + side * radius * arch.outwardNormal(angle).y();
        (centreY < radius ? low : high) = angle;
    }
    const QPointF normal = arch.outwardNormal(low);
    return {radius, arch.at(low) + side * radius * normal, low, std::atan2(normal.y(), normal.x())};
}

/// The radius at which the circles of both feet meet in the middle. For an arch that is at least as high as half wide.
double largestRadius(const Arch &arch)
{
    const double slenderness = arch.halfWidth / arch.height;
    // A circle in the middle touches the top of a low arch, and the walls of a high one.
    return slenderness * slenderness > 0.5 ? arch.height / 2.0
                                           : arch.halfWidth * std::sqrt(1.0 - slenderness * slenderness);
}

// Draws in the arch's coordinates.
class ArchPen
{
public:
    /// stretch multiplies x.
    ArchPen(const QPointF &origin, double stretch)
        : m_origin(origin)
        , m_stretch(stretch)
    {
    }

    void moveTo(const QPointF &point) { m_builder.moveTo(inBox(point)); }
    void lineTo(const QPointF &point) { m_builder.lineTo(inBox(point)); }
    /// A part of an ellipse, counter-clockwise when to is above from, at most about a quarter.
    void arc(const QPointF &centre, double rx, double ry, double from, double to)
    {
        const double handle = 4.0 / 3.0 * std::tan((to - from) / 4.0);
        const auto at = [&](double angle) { return centre + QPointF(rx * std::cos(angle), ry * std::sin(angle)); };
        const auto tangent = [&](double angle) {
            return QPointF(-rx * std::sin(angle), ry * std::cos(angle)) * handle;
        };
        m_builder.curveTo(inBox(at(from) + tangent(from)), inBox(at(to) - tangent(to)), inBox(at(to)));
    }
    EditablePath finish()
    {
        m_builder.close();
        return m_builder.path();
    }

private:
    QPointF inBox(const QPointF &point) const
    {
        return {m_origin.x() + m_stretch * point.x(), m_origin.y() - point.y()};
    }

    EditablePathBuilder m_builder;
    QPointF m_origin;
    double m_stretch;
};

// A dome on its base line; hollowed from below it becomes a crescent.
class HalfCircleShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(HalfCircleShapeGenerator)

public:
    QString id() const override { return u"half-circle"_s; }
    QString label() const override { return tr("Half Circle"); }
    QSizeF defaultSize() const override { return {100.0, 60.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"crescent"_s, tr("Crescent"), 0.0), pixels(u"cornerRadius"_s, tr("Corner Radius"), 0.0)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double margin = std::min(size.width(), size.height()) * 0.02;
        const double crescent = parameters.real(u"crescent"_s);
        const double halfWidth = size.width() / 2.0 - margin;
        const double height = size.height() - 2.0 * margin;
        // In a dome wider than a half circle the feet are rounded by ellipses as wide as it is: a circle would not fit.
        const double stretch = std::max(halfWidth / height, 1.0);
        const Arch dome{halfWidth / stretch, height};

        // Two legs want more of the base than one body.
        const double share = 0.95 - 0.45 * std::min(8.0 * crescent, 1.0);
        const double wished = parameters.real(u"cornerRadius"_s);
        const Fillet outer = wished > 0.001 ? restingCircle(dome, std::min(wished, largestRadius(dome) * share), -1.0)
                                            : Fillet{0.0, {dome.halfWidth, 0.0}};
        const double foot = outer.centre.x();

        ArchPen pen({size.width() / 2.0, size.height() - margin}, stretch);
        pen.moveTo({-foot, 0.0});
        if (outer.radius > 0.0) {
            const double middle = (outer.normalAngle - pi / 2.0) / 2.0;
            const QPointF left(-foot, outer.centre.y());
            pen.arc(left, outer.radius, outer.radius, 1.5 * pi, pi - middle);
            pen.arc(left, outer.radius, outer.radius, pi - middle, pi - outer.normalAngle);
        }
        pen.arc({}, dome.halfWidth, dome.height, pi - outer.archAngle, pi / 2.0);
        pen.arc({}, dome.halfWidth, dome.height, pi / 2.0, outer.archAngle);
        if (outer.radius > 0.0) {
            const double middle = (outer.normalAngle - pi / 2.0) / 2.0;
            pen.arc(outer.centre, outer.radius, outer.radius, outer.normalAngle, middle);
            pen.arc(outer.centre, outer.radius, outer.radius, middle, -pi / 2.0);
        }
        if (crescent > 0.0)
            drawHollow(pen, foot, hollowHeight(size.height(), margin, crescent), outer.radius);
        return pen.finish();
    }

private:
    /// Above the base line, which lies a margin above the box's edge; also a slight crescent shows.
    static double hollowHeight(double height, double margin, double crescent)
    {
        return std::max(0.9 * height * crescent - margin, 0.45 * height * crescent);
    }

    /// From the right to the left. What is left of the base on either side is the end of a leg, rounded like its outer
    /// corner where there is room.
    static void drawHollow(ArchPen &pen, double foot, double height, double radius)
    {
        const Arch hollow{0.62 * foot, height};
        const double room = foot - hollow.halfWidth;
        const Fillet inner = radius > 0.0 ? restingCircle(hollow, std::min(radius, 0.95 * room), 1.0)
                                          : Fillet{0.0, {hollow.halfWidth, 0.0}};
        const double radiusUsed = inner.radius;
        pen.lineTo({inner.centre.x(), 0.0});
        if (radiusUsed > 0.0)
            pen.arc(inner.centre, radiusUsed, radiusUsed, 1.5 * pi, pi + inner.normalAngle);
        pen.arc({}, hollow.halfWidth, height, inner.archAngle, pi / 2.0);
        pen.arc({}, hollow.halfWidth, height, pi / 2.0, pi - inner.archAngle);
        if (radiusUsed > 0.0)
            pen.arc({-inner.centre.x(), inner.centre.y()}, radiusUsed, radiusUsed, -inner.normalAngle, -pi / 2.0);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeHalfCircleShapeGenerator()
{
    return std::make_unique<HalfCircleShapeGenerator>();
}

} // namespace zm
