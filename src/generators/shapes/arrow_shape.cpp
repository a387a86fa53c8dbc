#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Points to the right: a shaft and a head.
class ArrowShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(ArrowShapeGenerator)

public:
    QString id() const override { return u"arrow-right"_s; }
    QString label() const override { return tr("Arrow"); }
    QSizeF defaultSize() const override { return {100.0, 80.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"cornerRoundness"_s, tr("Corner Radius"), 0.0), ratio(u"tipWidth"_s, tr("Tip"), 0.4, 0.2, 0.8),
                ratio(u"tailWidth"_s, tr("Tail"), 0.46, 0.1, 0.85)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double width = size.width();
        const double middle = size.height() / 2.0;
        const double neck = (1.0 - parameters.real(u"tipWidth"_s)) * width;
        const double halfTail = parameters.real(u"tailWidth"_s) * middle;
        const double halfHead = 0.44 * size.height();
        const QList<QPointF> vertices{{0.0, middle - halfTail}, {neck, middle - halfTail}, {neck, middle - halfHead},
                                      {width, middle},          {neck, middle + halfHead}, {neck, middle + halfTail},
                                      {0.0, middle + halfTail}};
        return roundedPolygon(vertices, parameters.real(u"cornerRoundness"_s), 0.16);
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeArrowShapeGenerator()
{
    return std::make_unique<ArrowShapeGenerator>();
}

} // namespace zm
