#include "filters/craft/coverage.h"
#include "filters/craft/shape_mask.h"
#include "filters/description/filter_definition.h"
#include "filters/library_filter.h"

#include <QCoreApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

// Begins the keys under which the parameters of the shape's generator stand.
constexpr QLatin1StringView kShapeKeyPrefix{"shape."};

/// The values of the shape's own controls.
ParameterValues shapeParameters(const ParameterValues &parameters)
{
    ParameterValues own;
    for (const auto &[key, value] : parameters.entries().asKeyValueRange()) {
        if (key.startsWith(kShapeKeyPrefix))
            own.set(key.sliced(kShapeKeyPrefix.size()), value);
    }
    return own;
}

// Cuts a picture to a shape: outside it has no alpha, colours stay.
class ShapeToolFilter final : public Filter
{
    Q_DECLARE_TR_FUNCTIONS(ShapeToolFilter)

public:
    QString id() const override { return u"shape-tool"_s; }
    QString label() const override { return tr("Shape Editor"); }
    QString pickerLabel() const override { return tr("Cut to Shape"); }

    QStringList pickerKeywords() const override
    {
        constexpr auto english = QT_TR_NOOP("mask, cutout, crop, shape");
        return searchWords(tr(english), QString::fromLatin1(english));
    }

    QList<ParameterDefinition> controls() const override
    {
        auto transform = headed<MaskTransformParameter>(u"mask.transform"_s, tr("Position"));
        transform.buttonLabel = tr("Position Shape");
        auto shape = headed<ShapeParameter>(u"mask"_s, tr("Shape"));
        shape.defaultValue = {u"heart"_s};
        auto stroke = headed<StrokeParameter>(u"mask.stroke"_s, tr("Outline"));
        stroke.defaultValue = {Qt::black, 0.0};
        return {transform, shape, realParameter(u"mask.feather"_s, tr("Feather"), 0.0, 0.0, 100.0, 1.0),
                headed<BooleanParameter>(u"mask.inverted"_s, tr("Invert")), stroke};
    }

    QList<AutoAddFilter> autoAddFilters() const override
    {
        AutoAddFilter shadow;
        shadow.filterName = u"shadow"_s;
        shadow.ifMissing = true;
        return {shadow};
    }

    /// The processor cuts; only a feather needs the renderer, and without one the edge is hard.
    bool needsRenderer() const override { return false; }

    FilterRenderResult render(const FilterRenderRequest &request) const override
    {
        const QSizeF box = request.bounds.size();
        if (request.bounds.isEmpty())
            return request.unchanged();
        const QPainterPath path = shapeMaskPath(request.text(u"mask"_s), shapeParameters(request.parameters),
                                                request.maskTransform(u"mask.transform"_s), box);
        if (path.isEmpty())
            return request.unchanged();
        QImage mask = filledShapeMask(path, box, request.size());
        const double sigma = featherSigma(request.number(u"mask.feather"_s), request.size());
        if (sigma > 0.0 && request.renderer) {
            const QImage soft = request.renderer->gaussianBlur(mask, sigma);
            mask = soft.isNull() ? mask : soft;
        }
        QImage image = request.image;
        multiplyAlpha(image, mask, request.flag(u"mask.inverted"_s));

        const Stroke stroke = request.parameters.stroke(u"mask.stroke"_s, {});
        if (stroke.width > 0.0) {
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.scale(image.width() / box.width(), image.height() / box.height());
            painter.strokePath(path, QPen(stroke.color, stroke.width, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
        }
        return request.result(image);
    }
};

} // namespace

ZM_LIBRARY_EFFECT(ShapeTool, ShapeToolFilter)

} // namespace zm
