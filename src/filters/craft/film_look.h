#pragma once

namespace zm {

// Measures that effects of film and of lenses share.

inline constexpr double kFilmGrainSize = 1.7; ///< of a grain, layer units
inline constexpr double kSharpenRadius = 0.8; ///< of the sharpening that ends an effect, layer units
inline constexpr double kGlowSize = 0.012; ///< sigma of a glow that fills a scene, as a share of the diagonal

} // namespace zm
