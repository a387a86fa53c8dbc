#pragma once

#include <memory>

namespace zm {

class Filter;

// One maker for each file of library/. Adding an effect takes its file, a line here and a line in the registry.

std::unique_ptr<Filter> makeAutumnGlowFilter();
std::unique_ptr<Filter> makeBevelFilter();
std::unique_ptr<Filter> makeBlueprintFilter();
std::unique_ptr<Filter> makeBokehPearlsFilter();
std::unique_ptr<Filter> makeBrushstrokeFrameFilter();
std::unique_ptr<Filter> makeColorAdjustFilter();
std::unique_ptr<Filter> makeColorswapFilter();
std::unique_ptr<Filter> makeComicBookFilter();
std::unique_ptr<Filter> makeCrystalContrastFilter();
std::unique_ptr<Filter> makeDreamyBlendFilter();
std::unique_ptr<Filter> makeEightiesFlashFilter();
std::unique_ptr<Filter> makeEmbroideryFilter();
std::unique_ptr<Filter> makeFilmGraderFilter();
std::unique_ptr<Filter> makeFilmGrainFilter();
std::unique_ptr<Filter> makeFocusFrameFilter();
std::unique_ptr<Filter> makeGhostFilter();
std::unique_ptr<Filter> makeGlassCausticsFilter();
std::unique_ptr<Filter> makeGrayscaleFilter();
std::unique_ptr<Filter> makeHDRPhotoFilter();
std::unique_ptr<Filter> makeHalationFilter();
std::unique_ptr<Filter> makeHeatmapFilter();
std::unique_ptr<Filter> makeHolographicFoilFilter();
std::unique_ptr<Filter> makeJaggedEdgeFilter();
std::unique_ptr<Filter> makeLightLeakFilter();
std::unique_ptr<Filter> makeLightSculptorFilter();
std::unique_ptr<Filter> makeLomoFilter();
std::unique_ptr<Filter> makeLowPolyEffectFilter();
std::unique_ptr<Filter> makeNightvisionFilter();
std::unique_ptr<Filter> makePaintingFilter();
std::unique_ptr<Filter> makePaperDioramaFilter();
std::unique_ptr<Filter> makePencilSketchFilter();
std::unique_ptr<Filter> makePetzvalLensFilter();
std::unique_ptr<Filter> makePixelDriftFilter();
std::unique_ptr<Filter> makePixelateFilter();
std::unique_ptr<Filter> makePrismFlareFilter();
std::unique_ptr<Filter> makeRelightFilter();
std::unique_ptr<Filter> makeRetroFilter();
std::unique_ptr<Filter> makeRisoPressFilter();
std::unique_ptr<Filter> makeRoundedCornersFilter();
std::unique_ptr<Filter> makeSelectiveColorFilter();
std::unique_ptr<Filter> makeSepiaToneFilter();
std::unique_ptr<Filter> makeShadowFilter();
std::unique_ptr<Filter> makeSharpenFilter();
std::unique_ptr<Filter> makeSignalMeltFilter();
std::unique_ptr<Filter> makeSobelFilter();
std::unique_ptr<Filter> makeSoftAmberFilter();
std::unique_ptr<Filter> makeStainedGlassFilter();
std::unique_ptr<Filter> makeStardustFilter();
std::unique_ptr<Filter> makeStipplingFilter();
std::unique_ptr<Filter> makeSwirlFrameFilter();
std::unique_ptr<Filter> makeSwirlStackFilter();
std::unique_ptr<Filter> makeTiltShiftFilter();
std::unique_ptr<Filter> makeTritoneFilter();
std::unique_ptr<Filter> makeVignetteFilter();
std::unique_ptr<Filter> makeVoltageInkFilter();
std::unique_ptr<Filter> makeWatercolorWashFilter();
std::unique_ptr<Filter> makeWinterBreezeFilter();
std::unique_ptr<Filter> makeZoomTrailsFilter();

} // namespace zm
