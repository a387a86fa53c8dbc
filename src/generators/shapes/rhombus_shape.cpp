#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// A parallelogram with one vertex on each side of the box. Each length is the share of the box that a pair of sides
// spans: with one of them 1 it leans, with both 1 it is the box, with both 0.5 it stands on its tip.
class RhombusShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(RhombusShapeGenerator)

public:
    QString id() const override { return u"rhombus"_s; }
    QString label() const override { return tr("Rhombus"); }
    QSizeF defaultSize() const override { return {120.0, 80.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.0),
                ratio(u"horizontalLength"_s, tr("Horizontal"), 0.72, 0.2, 1.0),
                ratio(u"verticalLength"_s, tr("Vertical"), 1.0, 0.2, 1.0)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double margin = std::min(size.width(), size.height()) * 0.025;
        const double width = size.width() - 2.0 * margin;
        const double height = size.height() - 2.0 * margin;
        const double across = parameters.real(u"horizontalLength"_s) * width;
        const double down = parameters.real(u"verticalLength"_s) * height;
        QList<QPointF> vertices{{width - across, 0.0}, {width, height - down}, {across, height}, {0.0, down}};
        for (QPointF &vertex : vertices)
            vertex += QPointF(margin, margin);
        return roundedPolygon(vertices, parameters.real(u"cornerRoundness"_s), 0.34);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeRhombusShapeGenerator()
{
    return std::make_unique<RhombusShapeGenerator>();
}

} // namespace zm
