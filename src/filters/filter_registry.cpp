#include "filters/filter_registry.h"

#include "filters/craft/tinted_mask_overlay_filter.h"
#include "filters/fade_out_filter.h"
#include "filters/library_filters.h"
#include "filters/shape_tool_filter.h"

#include <algorithm>

namespace zm {

FilterRegistry::FilterRegistry()
{
    m_filters.push_back(makeColorAdjustFilter());
    m_filters.push_back(makeShadowFilter());
    m_filters.push_back(makeRelightFilter());
    m_filters.push_back(makeSharpenFilter());
    m_filters.push_back(makeBokehPearlsFilter());
    m_filters.push_back(makeBrushstrokeFrameFilter());
    m_filters.push_back(std::make_unique<ColorScratchesFilter>());
    m_filters.push_back(std::make_unique<ShapeToolFilter>());
    m_filters.push_back(std::make_unique<FadeOutFilter>());
    m_filters.push_back(makeFocusFrameFilter());
    m_filters.push_back(makeJaggedEdgeFilter());
    m_filters.push_back(makeLightLeakFilter());
    m_filters.push_back(makePetzvalLensFilter());
    m_filters.push_back(makePrismFlareFilter());
    m_filters.push_back(makeBevelFilter());
    m_filters.push_back(makeRoundedCornersFilter());
    m_filters.push_back(std::make_unique<StarMaskFilter>());
    m_filters.push_back(makeStardustFilter());
    m_filters.push_back(makeSwirlStackFilter());
    m_filters.push_back(makeSwirlFrameFilter());
    m_filters.push_back(makeVignetteFilter());
    m_filters.push_back(makeZoomTrailsFilter());
    m_filters.push_back(makeLomoFilter());
    m_filters.push_back(makeCrystalContrastFilter());
    m_filters.push_back(makeSoftAmberFilter());
    m_filters.push_back(makeEightiesFlashFilter());
    m_filters.push_back(makeAutumnGlowFilter());
    m_filters.push_back(makeWinterBreezeFilter());
    m_filters.push_back(makeFilmGraderFilter());
    m_filters.push_back(makeFilmGrainFilter());
    m_filters.push_back(makeHalationFilter());
    m_filters.push_back(makeSignalMeltFilter());
    m_filters.push_back(makePixelDriftFilter());
    m_filters.push_back(makeDreamyBlendFilter());
    m_filters.push_back(makeColorswapFilter());
    m_filters.push_back(makeGrayscaleFilter());
    m_filters.push_back(makeSelectiveColorFilter());
    m_filters.push_back(makeComicBookFilter());
    m_filters.push_back(makeVoltageInkFilter());
    m_filters.push_back(makePencilSketchFilter());
    m_filters.push_back(makePaintingFilter());
    m_filters.push_back(makeWatercolorWashFilter());
    m_filters.push_back(makePaperDioramaFilter());
    m_filters.push_back(makeEmbroideryFilter());
    m_filters.push_back(makeStipplingFilter());
    m_filters.push_back(makeLowPolyEffectFilter());
    m_filters.push_back(makeStainedGlassFilter());
    m_filters.push_back(makeLightSculptorFilter());
    m_filters.push_back(makeGlassCausticsFilter());
    m_filters.push_back(makeHolographicFoilFilter());
    m_filters.push_back(makeRisoPressFilter());
    m_filters.push_back(makeTiltShiftFilter());
    m_filters.push_back(makePixelateFilter());
    m_filters.push_back(makeHDRPhotoFilter());
    m_filters.push_back(makeRetroFilter());
    m_filters.push_back(makeSepiaToneFilter());
    m_filters.push_back(makeTritoneFilter());
    m_filters.push_back(makeHeatmapFilter());
    m_filters.push_back(makeNightvisionFilter());
    m_filters.push_back(makeBlueprintFilter());
    m_filters.push_back(makeGhostFilter());
    m_filters.push_back(makeSobelFilter());
}

const FilterRegistry &FilterRegistry::instance()
{
    static const FilterRegistry registry;
    return registry;
}

const Filter *FilterRegistry::find(const QString &id) const
{
    if (id.isEmpty())
        return nullptr;
    const auto found =
        std::ranges::find_if(m_filters, [&id](const std::unique_ptr<Filter> &filter) { return filter->id() == id; });
    return found == m_filters.end() ? nullptr : found->get();
}

} // namespace zm
