#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A star with many short rays, as on price labels. It stretches with its box.
class BurstShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(BurstShapeGenerator)

public:
    QString id() const override { return u"burst"_s; }
    QString label() const override { return tr("Burst"); }
    QSizeF defaultSize() const override { return {100.0, 100.0}; }
    QColor defaultFillColor() const override { return QColor(0xff, 0xb0, 0x00); }
    QColor defaultStrokeColor() const override { return QColor(0x6d, 0x43, 0x00); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"rays"_s, tr("Rays"), 14, 6, 32), ratio(u"depth"_s, tr("Depth"), 0.05),
                ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.12)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const int rays = parameters.integer(u"rays"_s);
        const double valley = 0.84 - 0.54 * parameters.real(u"depth"_s);
        QList<QPointF> vertices;
        for (int i = 0; i < 2 * rays; ++i) {
            const double angle = i * std::numbers::pi / rays - std::numbers::pi / 2.0;
            const double reach = i % 2 == 0 ? 0.48 : 0.48 * valley;
            vertices.append(
                {size.width() * (0.5 + reach * std::cos(angle)), size.height() * (0.5 + reach * std::sin(angle))});
        }
        return roundedPolygon(vertices, parameters.real(u"cornerRoundness"_s), 0.18);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeBurstShapeGenerator()
{
    return std::make_unique<BurstShapeGenerator>();
}

} // namespace zm
