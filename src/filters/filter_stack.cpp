#include "filters/filter_stack.h"

#include "base/fuzzy.h"
#include "filters/fade_out_filter.h"
#include "filters/filter_registry.h"
#include "filters/filter_result_cache.h"
#include "filters/library_filter.h"
#include "filters/selection_blend.h"
#include "filters/shape_tool_filter.h"

using namespace Qt::StringLiterals;

namespace zm {

namespace {

QImage straightRgba(const QImage &image)
{
    return image.convertToFormat(QImage::Format_RGBA8888);
}

/// The instances that render at all, without what makes no difference to the result.
QList<FilterInstance> effectiveInstances(const QList<FilterInstance> &instances)
{
    QList<FilterInstance> effective;
    for (const FilterInstance &instance : instances) {
        if (instance.enabled && FilterRegistry::instance().find(instance.filterId))
            effective.append({{}, instance.filterId, instance.parameters, true, instance.rasterSelectionScoped});
    }
    return effective;
}

FilterRenderResult render(const FilterInstance &instance, const FilterRenderResult &input,
                          const RenderServices *services, const QRectF &layerBox)
{
    if (instance.filterId == ShapeToolFilter::kId)
        return {ShapeToolFilter::cutOut(input.image, input.bounds, instance.parameters, services), input.bounds};
    if (instance.filterId == FadeOutFilter::kId)
        return {FadeOutFilter::faded(input.image, instance.parameters, services), input.bounds};
    return renderLibraryFilter(instance.filterId, input.image, input.bounds, instance.parameters, services, layerBox);
}

/// A filter that grew its picture cannot be limited to a selection.
bool isSamePlace(const FilterRenderResult &a, const FilterRenderResult &b)
{
    return a.image.size() == b.image.size() && fuzzyEqual(a.bounds, b.bounds);
}

FilterRenderResult renderScoped(const FilterInstance &instance, const FilterRenderResult &before,
                                const RenderServices *services, const QRectF &layerBox,
                                const std::optional<EditablePath> &selection)
{
    FilterRenderResult after = render(instance, before, services, layerBox);
    after.image = straightRgba(after.image);
    const Filter *filter = FilterRegistry::instance().find(instance.filterId);
    if (instance.rasterSelectionScoped && selection && filter->flags().testFlag(FilterFlag::SupportsRasterSelection)
        && isSamePlace(before, after))
        after.image = blendedInSelection(before.image, after.image, *selection, after.bounds);
    return after;
}

} // namespace

FilterRenderResult evaluateFilterStack(const QImage &image, const QSizeF &size, const QList<FilterInstance> &instances,
                                       const RenderServices *services,
                                       const std::optional<EditablePath> &rasterSelection,
                                       [[maybe_unused]] quint64 revision)
{
    const QList<FilterInstance> effective = effectiveInstances(instances);
    const QRectF layerBox(QPointF(), size);
    FilterRenderResult current{straightRgba(image), layerBox};
    if (current.image.isNull())
        return current;

    FilterResultCache *cache = services ? services->filterResults : nullptr;
    FilterStackKey key{current.image.cacheKey(), size, rasterSelection, effective};
    qsizetype finished = 0;
    if (cache) {
        const FilterResultCache::Beginning beginning = cache->longestBeginning(key);
        finished = beginning.count;
        if (finished > 0)
            current = beginning.result;
    }
    const FilterUtilityRenderer *renderer = services ? services->filterRenderer : nullptr;
    const quint64 failuresBefore = renderer ? renderer->failureCount() : 0;
    for (; finished < effective.size(); ++finished) {
        current = renderScoped(effective[finished], current, services, layerBox, rasterSelection);
        // What has seen a failure may come out better the next time.
        if (cache && renderer && renderer->failureCount() == failuresBefore) {
            key.instances = effective.first(finished + 1);
            cache->insert(key, current);
        }
    }
    return current;
}

FilterRenderResult renderLibraryFilter(const QString &filterId, const QImage &image, const QRectF &bounds,
                                       const ParameterValues &parameters, const RenderServices *services,
                                       const std::optional<QRectF> &canvas)
{
    const auto *filter = dynamic_cast<const LibraryFilter *>(FilterRegistry::instance().find(filterId));
    const QImage input = straightRgba(image);
    if (!filter || input.isNull() || !services || !services->filterRenderer)
        return {input, bounds};
    FilterRenderRequest request;
    request.image = input;
    request.bounds = bounds;
    request.parameters = completeParameters(filter->controls(), parameters);
    request.services = *services;
    request.renderer = services->filterRenderer;
    request.inputFormat = filter->inputImageFormat();
    request.outputFormat = filter->outputImageFormat();
    request.canvas = canvas;
    FilterRenderResult result = filter->render(request);
    result.image = straightRgba(result.image);
    return result;
}

} // namespace zm
