#pragma once

namespace zm {

class FilterResultCache;
class FilterUtilityRenderer;
class ShaderTextureRenderer;
class TextureLoader;

/// What everything that renders is given instead of a global: pointers to services that outlive it and are not owned.
/// A null pointer to the aggregate, or a null renderer, means that no GPU is available for it.
struct RenderServices
{
    TextureLoader *textureLoader = nullptr;
    ShaderTextureRenderer *textureRenderer = nullptr;
    FilterUtilityRenderer *filterRenderer = nullptr;
    /// Null: nothing is kept between two evaluations.
    FilterResultCache *filterResults = nullptr;
};

} // namespace zm
