#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The box with corners that are quarters of ellipses; at full radius an ellipse.
class VignetteShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(VignetteShapeGenerator)

public:
    QString id() const override { return u"vignette"_s; }
    QString label() const override { return tr("Vignette"); }
    QSizeF defaultSize() const override { return {100.0, 100.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"corner-radius"_s, tr("Corner Radius"), 0.7)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double radius = parameters.real(u"corner-radius"_s);
        return roundedRectangle(QRectF(QPointF(), size), radius > 0.001 ? size / 2.0 * radius : QSizeF(0.0, 0.0));
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeVignetteShapeGenerator()
{
    return std::make_unique<VignetteShapeGenerator>();
}

} // namespace zm
