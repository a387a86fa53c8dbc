#include "filters/filter_stack.h"

#include "base/fuzzy.h"
#include "filters/filter_registry.h"
#include "filters/filter_result_cache.h"
#include "filters/selection_blend.h"

namespace zm {

namespace {

QImage straightRgba(const QImage &image)
{
    return image.convertToFormat(QImage::Format_RGBA8888);
}

/// A filter and how it is set.
struct Step
{
    const Filter *filter;
    const FilterInstance *instance;
};

/// The instances that render at all, each with its filter.
QList<Step> stepsOf(const QList<FilterInstance> &instances)
{
    QList<Step> steps;
    for (const FilterInstance &instance : instances) {
        if (!instance.enabled)
            continue;
        if (const Filter *filter = FilterRegistry::instance().find(instance.filterId))
            steps.append({filter, &instance});
    }
    return steps;
}

/// An instance without what makes no difference to the result.
FilterInstance keyOf(const FilterInstance &instance)
{
    return {{}, instance.filterId, instance.parameters, true, instance.rasterSelectionScoped};
}

/// A filter that grew its picture cannot be limited to a selection.
bool isSamePlace(const FilterRenderResult &a, const FilterRenderResult &b)
{
    return a.image.size() == b.image.size() && fuzzyEqual(a.bounds, b.bounds);
}

FilterRenderResult renderScoped(const Step &step, const FilterRenderResult &before, const RenderServices *services,
                                const QRectF &layerBox, const std::optional<EditablePath> &selection)
{
    FilterRenderResult after =
        renderFilter(*step.filter, before.image, before.bounds, step.instance->parameters, services, layerBox);
    if (step.instance->rasterSelectionScoped && selection
        && step.filter->flags().testFlag(FilterFlag::SupportsRasterSelection) && isSamePlace(before, after))
        after.image = blendedInSelection(before.image, after.image, *selection, after.bounds);
    return after;
}

} // namespace

FilterRenderResult evaluateFilterStack(const QImage &image, const QSizeF &size, const QList<FilterInstance> &instances,
                                       const RenderServices *services,
                                       const std::optional<EditablePath> &rasterSelection,
                                       [[maybe_unused]] quint64 revision)
{
    const QList<Step> steps = stepsOf(instances);
    const QRectF layerBox(QPointF(), size);
    FilterRenderResult current{straightRgba(image), layerBox};
    if (current.image.isNull())
        return current;

    FilterResultCache *cache = services ? services->filterResults : nullptr;
    FilterStackKey key{current.image.cacheKey(), size, rasterSelection, {}};
    for (const Step &step : steps)
        key.instances.append(keyOf(*step.instance));
    const QList<FilterInstance> whole = key.instances;
    qsizetype finished = 0;
    if (cache) {
        const FilterResultCache::Beginning beginning = cache->longestBeginning(key);
        finished = beginning.count;
        if (finished > 0)
            current = beginning.result;
    }
    const FilterUtilityRenderer *renderer = services ? services->filterRenderer : nullptr;
    const quint64 failuresBefore = renderer ? renderer->failureCount() : 0;
    for (; finished < steps.size(); ++finished) {
        current = renderScoped(steps[finished], current, services, layerBox, rasterSelection);
        // What has seen a failure may come out better the next time.
        if (cache && renderer && renderer->failureCount() == failuresBefore) {
            key.instances = whole.first(finished + 1);
            cache->insert(key, current);
        }
    }
    return current;
}

FilterRenderResult renderFilter(const Filter &filter, const QImage &image, const QRectF &bounds,
                                const ParameterValues &parameters, const RenderServices *services,
                                const std::optional<QRectF> &canvas)
{
    FilterRenderRequest request;
    request.image = straightRgba(image);
    request.bounds = bounds;
    if (services)
        request.services = *services;
    request.renderer = request.services.filterRenderer;
    if (request.image.isNull() || (filter.needsRenderer() && !request.renderer))
        return request.unchanged();
    request.controls = filter.controls();
    request.parameters = readableParameters(request.controls, parameters);
    request.inputFormat = filter.inputImageFormat();
    request.outputFormat = filter.outputImageFormat();
    request.canvas = canvas;
    FilterRenderResult result = filter.render(request);
    result.image = straightRgba(result.image);
    return result;
}

} // namespace zm
