#include "filters/shape_tool_filter.h"

#include "filters/craft/coverage.h"
#include "filters/craft/shape_mask.h"
#include "filters/description/filter_definition.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace zm {

namespace {

const QString kDefaultShape = u"heart"_s;

/// The values of the shape's own controls.
ParameterValues shapeParameters(const ParameterValues &parameters)
{
    ParameterValues own;
    const QString prefix = ShapeToolFilter::kShapeKeyPrefix;
    const auto &entries = parameters.entries();
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        if (entry.key().startsWith(prefix))
            own.set(entry.key().sliced(prefix.size()), entry.value());
    }
    return own;
}

} // namespace

QStringList ShapeToolFilter::pickerKeywords() const
{
    constexpr auto english = QT_TR_NOOP("mask, cutout, crop, shape");
    return searchWords(tr(english), QString::fromLatin1(english));
}

QList<ParameterDefinition> ShapeToolFilter::controls() const
{
    auto transform = headed<MaskTransformParameter>(u"mask.transform"_s, tr("Position"));
    transform.buttonLabel = tr("Position Shape");
    auto shape = headed<ShapeParameter>(u"mask"_s, tr("Shape"));
    shape.defaultValue = {kDefaultShape};
    auto stroke = headed<StrokeParameter>(u"mask.stroke"_s, tr("Outline"));
    stroke.defaultValue = {Qt::black, 0.0};
    return {transform, shape, realParameter(u"mask.feather"_s, tr("Feather"), 0.0, 0.0, 100.0, 1.0),
            headed<BooleanParameter>(u"mask.inverted"_s, tr("Invert")), stroke};
}

QList<AutoAddFilter> ShapeToolFilter::autoAddFilters() const
{
    AutoAddFilter shadow;
    shadow.filterName = u"shadow"_s;
    shadow.ifMissing = true;
    return {shadow};
}

QImage ShapeToolFilter::cutOut(const QImage &image, const QRectF &bounds, const ParameterValues &parameters,
                               const RenderServices *services)
{
    if (bounds.isEmpty())
        return image;
    const QPainterPath path = shapeMaskPath(parameters.string(u"mask"_s, kDefaultShape), shapeParameters(parameters),
                                            parameters.maskTransform(u"mask.transform"_s, {}), bounds.size());
    if (path.isEmpty())
        return image;
    QImage mask = filledShapeMask(path, bounds.size(), image.size());
    const double sigma = featherSigma(parameters.number(u"mask.feather"_s, 0.0), image.size());
    if (sigma > 0.0 && services && services->filterRenderer) {
        const QImage soft = services->filterRenderer->gaussianBlur(mask, sigma);
        mask = soft.isNull() ? mask : soft;
    }
    QImage result = image;
    multiplyAlpha(result, mask, parameters.boolean(u"mask.inverted"_s, false));

    const Stroke stroke = parameters.stroke(u"mask.stroke"_s, {Qt::black, 0.0});
    if (stroke.width > 0.0) {
        QPainter painter(&result);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(image.width() / bounds.width(), image.height() / bounds.height());
        painter.strokePath(path, QPen(stroke.color, stroke.width, Qt::SolidLine, Qt::RoundCap, Qt::MiterJoin));
    }
    return result;
}

} // namespace zm
