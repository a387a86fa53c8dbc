#pragma once

#include "filters/filter_render.h"
#include "filters/library_uniform_block.h"

namespace zm {

/// Renders a shader with one sampler that adds a slow field of light. With a reduction of 2 or more the field is drawn
/// by itself first, with one pixel for a square of `reduction` pixels, and stacked with the picture, which is many
/// times cheaper than to draw it in full. Sets "u_size" and "u_mapSize", which tells the shader which of the three it
/// does.
FilterRenderResult renderWithLightMap(const FilterRenderRequest &request, LibraryUniformBlock block, int reduction);

} // namespace zm
