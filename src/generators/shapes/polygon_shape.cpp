#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A regular polygon that stands on the ellipse in its box, one vertex at the top.
class RegularPolygonShapeGenerator : public ShapeGenerator
{
public:
    QSizeF defaultSize() const override { return {100.0, 100.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const int sides = parameters.integer(u"sides"_s);
        QList<QPointF> vertices;
        for (int i = 0; i < sides; ++i) {
            const double angle = i * 2.0 * std::numbers::pi / sides - std::numbers::pi / 2.0;
            vertices.append(
                {size.width() * (0.5 + 0.5 * std::cos(angle)), size.height() * (0.5 + 0.5 * std::sin(angle))});
        }
        // Nearly half of each side: the roundest at which neighbouring corners stay apart.
        return roundedPolygon(vertices, parameters.real(u"cornerRoundness"_s), 0.48);
    }
};

class PolygonShapeGenerator final : public RegularPolygonShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(PolygonShapeGenerator)

public:
    QString id() const override { return u"polygon"_s; }
    QString label() const override { return tr("Polygon"); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"sides"_s, tr("Sides"), 5, 3, 12),
                ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.0)};
    }
};

class TriangleShapeGenerator final : public RegularPolygonShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(TriangleShapeGenerator)

public:
    QString id() const override { return u"triangle"_s; }
    QString label() const override { return tr("Triangle"); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"sides"_s, tr("Sides"), 3, 3, 12),
                ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.0)};
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makePolygonShapeGenerator()
{
    return std::make_unique<PolygonShapeGenerator>();
}

std::unique_ptr<ShapeGenerator> makeTriangleShapeGenerator()
{
    return std::make_unique<TriangleShapeGenerator>();
}

} // namespace zm
