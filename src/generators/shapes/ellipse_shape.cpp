#include "generators/shape_generator.h"
#include "generators/shape_generators.h"
#include "values/editable_path_builder.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// An ellipse, which can be pinched towards a diamond and cut open by straight pieces at top and bottom.
class EllipseShapeGenerator final : public ShapeGenerator
{
    Q_DECLARE_TR_FUNCTIONS(EllipseShapeGenerator)

public:
    QString id() const override { return u"ellipse"_s; }
    QString label() const override { return tr("Ellipse"); }
    QSizeF defaultSize() const override { return {120.0, 80.0}; }
    QColor defaultFillColor() const override { return QColor(0x10, 0x1b, 0x27); }

    QList<ParameterDefinition> parameters() const override
    {
        return {ratio(u"roundness"_s, tr("Roundness"), 1.0), ratio(u"middleWidth"_s, tr("Middle"), 0.0)};
    }

protected:
    EditablePath outline(const QSizeF &size, const ShapeParameters &parameters) const override
    {
        const double width = size.width();
        const double height = size.height();
        // 0.12 at least, so that a pinched corner stays soft; with both terms it is the constant of the circle.
        const double handle = parameters.real(u"roundness"_s) * 0.4322847498 + 0.12;
        const double flat = parameters.real(u"middleWidth"_s) * width / 2.0;
        const double rx = (width - flat) / 2.0;
        const double ry = height / 2.0;
        const double dx = rx * handle;
        const double dy = ry * handle;

        EditablePathBuilder builder;
        builder.moveTo({rx, 0.0});
        if (flat > 0.0)
            builder.lineTo({width - rx, 0.0});
        builder.curveTo({width - rx + dx, 0.0}, {width, ry - dy}, {width, ry});
        builder.curveTo({width, ry + dy}, {width - rx + dx, height}, {width - rx, height});
        if (flat > 0.0)
            builder.lineTo({rx, height});
        builder.curveTo({rx - dx, height}, {0.0, ry + dy}, {0.0, ry});
        builder.curveTo({0.0, ry - dy}, {rx - dx, 0.0}, {rx, 0.0});
        builder.close();
        return builder.path();
    }
};

} // namespace

std::unique_ptr<ShapeGenerator> makeEllipseShapeGenerator()
{
    return std::make_unique<EllipseShapeGenerator>();
}

} // namespace zm
