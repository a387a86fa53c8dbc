#include "generators/cubic_curve.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Six curves, three to a side: from the cleft over the lobe, round its shoulder, and down the flank to the tip.
class HeartShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(HeartShapeGenerator)

public:
    QString id() const override { return u"heart"_s; }
    QString label() const override { return tr("Heart"); }
    QSizeF defaultSize() const override { return {100.0, 90.0}; }
    QColor defaultFillColor() const override { return QColor(0xed, 0x22, 0x24); }
    QColor defaultStrokeColor() const override { return QColor(0xdd, 0x5f, 0x5f); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"lobeRoundness"_s, tr("Lobes"), 0.24), ratio(u"cleftDepth"_s, tr("Cleft"), 0.34),
                ratio(u"tipSharpness"_s, tr("Tip"), 0.23)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double lobes = parameters.real(u"lobeRoundness"_s);
        const double cleft = parameters.real(u"cleftDepth"_s) * 0.4;
        const double tip = parameters.real(u"tipSharpness"_s);

        // Half a heart in parts of the box, x from the middle outwards. Without a cleft the lobes move together, and
        // the top is one dome.
        const double parting = std::min(cleft / 0.12, 1.0);
        const double parted = parting * (2.0 - parting);
        const QPointF lobeTop((0.24 + 0.02 * lobes) * (0.2 + 0.8 * parted), 0.0);
        const QPointF shoulder(0.5, 0.22 + (0.26 - 0.11 * lobes) * lobes);
        const double tipHalfAngle = (64.0 - 74.0 * tip + 24.0 * tip * tip) * std::numbers::pi / 180.0;
        const QPointF tipRise = QPointF(std::sin(tipHalfAngle), -std::cos(tipHalfAngle)) * (0.18 + 0.07 * tip);

        // The handles of the lobe's outer quarter set the curvature at its two ends. The curves next to it take that
        // over, so that the lobe is round all the way.
        const double outerWidth = 0.5 - lobeTop.x();
        const double over = outerWidth * (0.55 + 0.05 * lobes);
        const double down = shoulder.y() * (0.505 - 0.025 * lobes);
        const double topCurvature = endCurvature(over, shoulder.y() - down);
        const double shoulderCurvature = endCurvature(down, outerWidth - over);

        const auto right = [&](const QPointF &half) {
            return QPointF((0.5 + half.x()) * size.width(), half.y() * size.height());
        };
        const auto left = [&](const QPointF &half) { return right({-half.x(), half.y()}); };
        const QPointF cleftPoint(0.0, cleft);
        const QPointF tipPoint(0.0, 1.0);
        const QPointF outOfCleft(lobeTop.x() * 0.25, cleft * (0.5 - 0.1 * lobes));
        // A cleft of next to nothing would leave no handle.
        const double fromInside = std::max(handleForCurvature(topCurvature, outOfCleft.y()), 0.2 * lobeTop.x());
        const QPointF intoLobe(lobeTop.x() - fromInside, 0.0);
        const QPointF outOfLobe(lobeTop.x() + over, 0.0);
        const QPointF intoShoulder(0.5, shoulder.y() - down);
        const QPointF outOfShoulder(0.5, shoulder.y() + handleForCurvature(shoulderCurvature, 0.5 - tipRise.x()));

        EditablePathBuilder builder;
        builder.moveTo(right(cleftPoint));
        builder.curveTo(right(outOfCleft), right(intoLobe), right(lobeTop));
        builder.curveTo(right(outOfLobe), right(intoShoulder), right(shoulder));
        builder.curveTo(right(outOfShoulder), right(tipPoint + tipRise), right(tipPoint));
        builder.curveTo(left(tipPoint + tipRise), left(outOfShoulder), left(shoulder));
        builder.curveTo(left(intoShoulder), left(outOfLobe), left(lobeTop));
        builder.curveTo(left(intoLobe), left(outOfCleft), left(cleftPoint));
        builder.close();
        return builder.path();
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeHeartShapeGenerator()
{
    return std::make_unique<HeartShapeGenerator>();
}

} // namespace zm
