#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A round star: its rays end on one circle, however wide or tall the box is, and only the tips are rounded.
class StarShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(StarShapeGenerator)

public:
    QString id() const override { return u"star5"_s; }
    QString label() const override { return tr("Star"); }
    QSizeF defaultSize() const override { return {100.0, 100.0}; }
    QColor defaultFillColor() const override { return QColor(0xff, 0xdf, 0x00); }
    QColor defaultStrokeColor() const override { return QColor(0x22, 0x22, 0x22); }

    QList<ParameterDefinition> parameters() const override
    {
        return {integerParameter(u"spikes"_s, tr("Spikes"), 5, 2, 32), ratio(u"tipRoundness"_s, tr("Tip"), 0.0)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const int spikes = parameters.integer(u"spikes"_s);
        const double tipCut = parameters.real(u"tipRoundness"_s) * 0.7;
        const double outerRadius = std::min(size.width(), size.height()) * 0.48;
        const double innerRadius = outerRadius * 0.45;
        const auto vertex = [&](int index) {
            const double angle = index * std::numbers::pi / spikes - std::numbers::pi / 2.0;
            const double radius = index % 2 == 0 ? outerRadius : innerRadius;
            return QPointF(size.width() / 2.0 + radius * std::cos(angle),
                           size.height() / 2.0 + radius * std::sin(angle));
        };
        EditablePathBuilder builder;
        for (int i = 0; i < 2 * spikes; ++i) {
            const auto draw = [&](const QPointF &point) { i == 0 ? builder.moveTo(point) : builder.lineTo(point); };
            if (i % 2 == 1 || tipCut <= 0.0) {
                draw(vertex(i));
                continue;
            }
            const CubicCurve tip = cornerCurve(vertex(i - 1), vertex(i), vertex(i + 1), tipCut);
            draw(tip.start);
            builder.curveTo(tip.firstControl, tip.secondControl, tip.end);
        }
        builder.close();
        return builder.path();
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeStarShapeGenerator()
{
    return std::make_unique<StarShapeGenerator>();
}

} // namespace zm
