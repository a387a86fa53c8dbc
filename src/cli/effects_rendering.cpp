#include "cli/effects_rendering.h"

#include "cli/parameter_text.h"
#include "document/document.h"
#include "filters/filter_registry.h"
#include "io/pictures/exported_effects.h"

using namespace Qt::StringLiterals;

namespace zm::cli {

namespace {

bool isKnown(const QString &effectId)
{
    return FilterRegistry::instance().find(effectId);
}

} // namespace

std::optional<SceneSnapshot> EffectsRendering::snapshot(const Document &document, Error &error)
{
    const QStringList effects = exportedEffects(document);
    if (!canExportEffects(effects, error))
        return std::nullopt;
    if (std::ranges::any_of(effects, isKnown) && !isAvailable(error))
        return std::nullopt;
    const quint64 failuresBefore = m_renderer.failureCount();
    SceneSnapshot snapshot = buildSceneSnapshot(document, {}, &m_services);
    if (m_renderer.failureCount() > failuresBefore && !hasRenderedAll(error))
        return std::nullopt;
    return snapshot;
}

bool EffectsRendering::isAvailable(Error &error)
{
    return m_renderer.maximumTextureSize() > 0
        || error.fail(u"Effects need OpenGL 3.3, which this machine does not offer."_s);
}

bool EffectsRendering::hasRenderedAll(Error &error)
{
    return isAvailable(error) && (m_renderer.failureCount() == 0 || error.fail(u"An effect could not be rendered."_s));
}

std::optional<FilterInstance> effectFromText(const QString &filterId, const QStringList &assignments, Error &error)
{
    const FilterRegistry &registry = FilterRegistry::instance();
    const Filter *filter = registry.find(filterId);
    if (!filter) {
        QStringList ids;
        for (const auto &known : registry.filters())
            ids.append(known->id());
        ids.sort();
        return error.fail(u"unknown effect %1; the effects are %2"_s.arg(filterId, ids.join(", "_L1)));
    }
    FilterInstance instance{QUuid::createUuid(), filterId, {}, true, false};
    for (const QString &assignment : assignments) {
        if (!setParameterFromText(instance.parameters, filter->controls(), assignment, error))
            return std::nullopt;
    }
    return instance;
}

} // namespace zm::cli
