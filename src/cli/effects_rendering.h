#pragma once

#include "base/error.h"
#include "filters/filter_result_cache.h"
#include "generators/bundled_texture_loader.h"
#include "rendering/opengl_texture_renderer.h"
#include "scene/scene_snapshot.h"
#include "services/render_services.h"
#include "values/filter_instance.h"

namespace zm::cli {

/// What effects need, without a window.
class EffectsRendering
{
public:
    const RenderServices *services() const { return &m_services; }

    /// The document with its effects. Nothing when it has effects that cannot be rendered here, or that cannot be
    /// exported at all.
    std::optional<SceneSnapshot> snapshot(const Document &document, Error &error);

    /// True when effects can be rendered on this machine, and all have been so far.
    bool hasRenderedAll(Error &error);

private:
    bool isAvailable(Error &error);

    BundledTextureLoader m_textures{textureBundleDirectories(), textureSearchRoots()};
    OpenGLTextureRenderer m_renderer;
    FilterResultCache m_results;
    const RenderServices m_services{&m_textures, &m_renderer, &m_renderer, &m_results};
};

/// An instance of the effect with what was set on it. The error names the ids or keys that there are.
std::optional<FilterInstance> effectFromText(const QString &filterId, const QStringList &assignments, Error &error);

} // namespace zm::cli
