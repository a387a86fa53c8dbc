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

std::optional<SceneSnapshot> EffectsRendering::snapshot(const Document &document, QString *problem)
{
    const QStringList effects = exportedEffects(document);
    *problem = exportRefusal(effects);
    if (!problem->isEmpty())
        return std::nullopt;
    if (std::ranges::any_of(effects, isKnown) && m_renderer.maximumTextureSize() == 0) {
        *problem = this->problem();
        return std::nullopt;
    }
    const quint64 failuresBefore = m_renderer.failureCount();
    SceneSnapshot snapshot = buildSceneSnapshot(document, {}, &m_services);
    if (m_renderer.failureCount() > failuresBefore) {
        *problem = this->problem();
        return std::nullopt;
    }
    return snapshot;
}

QString EffectsRendering::problem()
{
    if (m_renderer.maximumTextureSize() == 0)
        return u"Effects need OpenGL 3.3, which this machine does not offer."_s;
    return m_renderer.failureCount() > 0 ? u"An effect could not be rendered."_s : QString();
}

std::optional<FilterInstance> effectFromText(const QString &filterId, const QStringList &assignments, QString *problem)
{
    const FilterRegistry &registry = FilterRegistry::instance();
    const Filter *filter = registry.find(filterId);
    if (!filter) {
        QStringList ids;
        for (const auto &known : registry.filters())
            ids.append(known->id());
        ids.sort();
        *problem = u"unknown effect %1; the effects are %2"_s.arg(filterId, ids.join(", "_L1));
        return std::nullopt;
    }
    FilterInstance instance{QUuid::createUuid(), filterId, {}, true, false};
    for (const QString &assignment : assignments) {
        *problem = setParameterFromText(instance.parameters, filter->controls(), assignment);
        if (!problem->isEmpty())
            return std::nullopt;
    }
    return instance;
}

} // namespace zm::cli
