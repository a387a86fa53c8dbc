#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Three strokes to the lower left, each thinner than the one above; bending carries the tip along most.
class LightningBoltShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(LightningBoltShapeGenerator)

public:
    QString id() const override { return u"lightning-bolt"_s; }
    QString label() const override { return tr("Lightning"); }
    QSizeF defaultSize() const override { return {90.0, 120.0}; }
    QColor defaultFillColor() const override { return QColor(0xff, 0xd2, 0x3f); }
    QColor defaultStrokeColor() const override { return QColor(0x3a, 0x31, 0x0b); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"bend"_s, tr("Bend"), 0.52), ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.0)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        struct BoltPoint
        {
            double x;
            double y;
            /// What a whole bend adds to x.
            double sway;
        };
        // Fractions of the box, clockwise from the top.
        static constexpr std::array<BoltPoint, 10> points{{{0.58, 0.0, 0.1},
                                                           {0.55, 0.38, 0.11},
                                                           {0.86, 0.38, 0.1},
                                                           {0.58, 0.64, 0.16},
                                                           {0.70, 0.64, 0.17},
                                                           {0.28, 1.0, 0.26},
                                                           {0.40, 0.76, 0.19},
                                                           {0.23, 0.76, 0.18},
                                                           {0.39, 0.54, 0.12},
                                                           {0.13, 0.54, 0.1}}};
        const double margin = std::min(size.width(), size.height()) * 0.02;
        const double bend = parameters.real(u"bend"_s) - 0.5;
        QList<QPointF> vertices;
        for (const BoltPoint &point : points) {
            vertices.append({(point.x + point.sway * bend) * size.width(),
                             std::clamp(point.y * size.height(), margin, size.height() - margin)});
        }
        return roundedPolygon(vertices, parameters.real(u"cornerRoundness"_s), 0.16);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeLightningBoltShapeGenerator()
{
    return std::make_unique<LightningBoltShapeGenerator>();
}

} // namespace zm
