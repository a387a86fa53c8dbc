#pragma once

#include "filters/filter_render.h"
#include "filters/library_uniform_block.h"

#include <QSize>

namespace zm {

/// A picture with a small map of its broad tones, in one texture, for shaders that change local contrast. The map
/// follows strong edges, so that what is done with it makes no halos. common/tone_base.glsl tells how.
struct ToneBase
{
    PassChain chain{}; ///< that makes them
    PassChain::Picture stack{};
    QSize pictureSize;
    QSize mapSize;
    double cell; ///< side of the square that one pixel of the map stands for, pixels of the picture, at least 1
};

/// The steps of the shader "hdr-photo", in its numbers.
enum class ToneBaseStage { Use, Gather, Smooth };

/// `radius`: what is finer counts as detail, pixels.
ToneBase toneBase(const FilterRenderRequest &request, double radius);

/// Uniforms of "hdr-photo" for a step; the ones of its look are still zero.
LibraryUniformBlock toneBaseBlock(const ToneBase &base, ToneBaseStage stage);

/// The picture as the block's shader makes it of the stack; unchanged where the two do not fit
/// into a texture.
FilterRenderResult renderToneBase(const FilterRenderRequest &request, const ToneBase &base,
                                  const LibraryUniformBlock &block);

} // namespace zm
