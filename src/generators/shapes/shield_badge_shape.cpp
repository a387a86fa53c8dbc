#include "base/geometry.h"
#include "generators/cornered_outline.h"
#include "generators/cubic_curve.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The right half of a shield from the middle of its top to its point, in parts of the box, x from the middle outwards.
// The left half mirrors it.
class HalfShield
{
public:
    explicit HalfShield(const QPointF &top)
        : m_top(top)
    {
    }

    void lineTo(const QPointF &point) { m_sides.append({{}, {}, point, true}); }
    void curveTo(const QPointF &first, const QPointF &second, const QPointF &point)
    {
        m_sides.append({first, second, point, false});
    }

    CorneredOutline unfolded(const QSizeF &size) const
    {
        const auto right = [&size](const QPointF &half) {
            return QPointF((0.5 + half.x()) * size.width(), half.y() * size.height());
        };
        const auto left = [&right](const QPointF &half) { return right({-half.x(), half.y()}); };
        CorneredOutline outline(right(m_top));
        for (const Side &side : m_sides) {
            if (side.isStraight)
                outline.lineTo(right(side.end));
            else
                outline.curveTo(right(side.first), right(side.second), right(side.end));
        }
        for (qsizetype i = m_sides.size() - 1; i >= 0; --i) {
            const Side &side = m_sides[i];
            const QPointF end = left(i > 0 ? m_sides[i - 1].end : m_top);
            if (side.isStraight)
                outline.lineTo(end);
            else
                outline.curveTo(left(side.second), left(side.first), end);
        }
        return outline;
    }

private:
    struct Side
    {
        QPointF first;
        QPointF second;
        QPointF end;
        bool isStraight;
    };

    QPointF m_top;
    QList<Side> m_sides;
};

class ShieldBadgeShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(ShieldBadgeShapeGenerator)

public:
    QString id() const override { return u"shield-badge"_s; }
    QString label() const override { return tr("Shield Badge"); }
    QSizeF defaultSize() const override { return {100.0, 120.0}; }
    QColor defaultFillColor() const override { return QColor(0x31, 0x5c, 0x9d); }
    QColor defaultStrokeColor() const override { return QColor(0x17, 0x28, 0x46); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"form"_s, tr("Form"), 1, 1, 4), ratio(u"pointDepth"_s, tr("Point"), 0.65, 0.6, 1.0),
                ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.08)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double point = parameters.real(u"pointDepth"_s);
        const int form = parameters.integer(u"form"_s);
        // The tops of the second and the third lose their character when they are rounded as much as the others.
        const double share = form == 2 ? 0.1 : form == 3 ? 0.16 : 0.3;
        const double largestRadius = share * std::min(size.width(), size.height());
        return half(form, point).unfolded(size).rounded(parameters.real(u"cornerRoundness"_s) * largestRadius);
    }

private:
    static HalfShield half(int form, double point)
    {
        switch (form) {
        default:
            return heater(point);
        case 2:
            return shouldered(point);
        case 3:
            return scalloped(point);
        case 4:
            return crested(point);
        }
    }

    // Straight down from the side and round to the point, which is the longer and the sharper the deeper it is.
    struct Flank
    {
        Flank(double x, double y, double point, double fullness = 0.48)
            : start(x, y)
            , first(x, y + fullness * (1.0 - y))
            , second(0.5 * (0.86 - 0.5 * point), 1.0 - 0.22 * (1.0 - y))
        {
        }

        // The second control of a curve that runs into the flank without a jump in its curvature, by the first one.
        QPointF controlAfter(const QPointF &control) const
        {
            const double curvature = endCurvature(first.y() - start.y(), start.x() - second.x());
            return start - QPointF(0.0, handleForCurvature(curvature, start.x() - control.x()));
        }

        QPointF start, first, second;
    };

    static void draw(HalfShield &half, const Flank &flank) { half.curveTo(flank.first, flank.second, {0.0, 1.0}); }

    // The knight's shield: a straight top and straight upper sides.
    static HalfShield heater(double point)
    {
        const Flank flank(0.5, 1.12 - point, point);
        HalfShield half({0.0, 0.0});
        half.lineTo({0.5, 0.0});
        half.lineTo(flank.start);
        draw(half, flank);
        return half;
    }

    // The sheriff's badge: a peak between two shoulders, and a waist below them.
    static HalfShield shouldered(double point)
    {
        const Flank flank(0.47, 0.85 - 0.4 * point, point);
        const QPointF shoulder(0.5, 0.165);
        const double height = flank.start.y() - shoulder.y();
        const QPointF inwards(0.455 - 0.08 * height, shoulder.y() + 0.4 * height);
        HalfShield half({0.0, 0.0});
        half.curveTo({0.08, 0.075}, {0.22, 0.105}, {0.34, 0.045});
        half.lineTo(shoulder);
        half.curveTo(inwards, flank.controlAfter(inwards), flank.start);
        draw(half, flank);
        return half;
    }

    // The tournament shield: two hollows at the top, and full cheeks that run out into a small point.
    static HalfShield scalloped(double point)
    {
        const double depth = (point - 0.6) / 0.4;
        const QPointF side(0.5, 0.52 - 0.30 * depth);
        const QPointF cheek(0.26 - 0.06 * depth, 0.89 - 0.06 * depth);
        const QPointF beforePoint(0.04, 0.945);
        // Near an arc, with a curvature that grows a little towards the cheek.
        const double chord = lengthOf(cheek - side);
        const QPointF downSide = side + QPointF(0.0, 0.39 * chord);
        const double angle = (70.0 - 18.0 * depth) * std::numbers::pi / 180.0;
        const QPointF along(-std::sin(angle), std::cos(angle));
        const auto aside = [&](const QPointF &other) {
            const QPointF offset = other - cheek;
            return std::abs(along.x() * offset.y() - along.y() * offset.x());
        };
        const double handle = 0.36 * chord;
        const double onwards = handleForCurvature(endCurvature(handle, aside(downSide)), aside(beforePoint));
        HalfShield half({0.0, 0.03});
        half.curveTo({0.12, 0.14}, {0.36, 0.14}, {0.5, 0.0});
        half.lineTo(side);
        half.curveTo(downSide, cheek - along * handle, cheek);
        half.curveTo(cheek + along * onwards, beforePoint, {0.0, 1.0});
        return half;
    }

    // The crest: a round top, and sides that swell.
    static HalfShield crested(double point)
    {
        const Flank flank(0.5, 0.76 - 0.4 * point, point, 0.54);
        const QPointF shoulder(0.455, 0.12);
        const QPointF toFlank = flank.start - shoulder;
        const QPointF outwards = shoulder + QPointF(0.425 * toFlank.x(), 0.25 * toFlank.y());
        HalfShield half({0.0, 0.0});
        half.curveTo({0.18, 0.0}, {0.345, 0.04}, shoulder);
        half.curveTo(outwards, flank.controlAfter(outwards), flank.start);
        draw(half, flank);
        return half;
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeShieldBadgeShapeGenerator()
{
    return std::make_unique<ShieldBadgeShapeGenerator>();
}

} // namespace zm
