#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A kite: one vertex on each side of the box.
class DiamondShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(DiamondShapeGenerator)

public:
    QString id() const override { return u"diamond"_s; }
    QString label() const override { return tr("Diamond"); }
    QSizeF defaultSize() const override { return {100.0, 120.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.0),
                ratio(u"horizontalCenter"_s, tr("Horizontal"), 0.5, 0.1, 0.9),
                ratio(u"verticalCenter"_s, tr("Vertical"), 0.5, 0.1, 0.9)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double margin = std::min(size.width(), size.height()) * 0.02;
        const double x = std::max(parameters.real(u"horizontalCenter"_s), 0.15) * size.width();
        const double y = std::max(parameters.real(u"verticalCenter"_s), 0.15) * size.height();
        const QList<QPointF> vertices{
            {x, margin}, {size.width() - margin, y}, {x, size.height() - margin}, {margin, y}};
        return roundedPolygon(vertices, parameters.real(u"cornerRoundness"_s), 0.34);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeDiamondShapeGenerator()
{
    return std::make_unique<DiamondShapeGenerator>();
}

} // namespace zm
