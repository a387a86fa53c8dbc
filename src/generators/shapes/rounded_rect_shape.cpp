#include "generators/rounded_outlines.h"
#include "generators/shape_generator.h"
#include "generators/shape_generators.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// The box itself, with circular corners.
class RoundedRectShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(RoundedRectShapeGenerator)

public:
    QString id() const override { return u"rounded-rect"_s; }
    QString label() const override { return tr("Rectangle"); }
    QSizeF defaultSize() const override { return {100.0, 70.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

    QList<ParameterDefinition> parameters() const override { return {pixels(u"radius"_s, tr("Corner Radius"), 0.0)}; }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double limit = std::min(size.width(), size.height()) / 2.0;
        const double radius = std::clamp(parameters.real(u"radius"_s), 0.0, limit);
        return roundedRectangle(QRectF(QPointF(), size), {radius, radius});
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeRoundedRectShapeGenerator()
{
    return std::make_unique<RoundedRectShapeGenerator>();
}

} // namespace zm
